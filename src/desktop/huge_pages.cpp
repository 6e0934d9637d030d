#include "desktop/huge_pages.h"

#ifdef __linux__
#include <sys/mman.h>
#endif

#include <algorithm>
#include <cstddef>

namespace starfolds {
namespace {

constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;

class HugePageMemory : public std::pmr::memory_resource {
 private:
  static std::size_t Alignment(std::size_t bytes, std::size_t alignment) {
    return bytes >= kHugePage ? std::max(alignment, kHugePage) : alignment;
  }

  void* do_allocate(std::size_t bytes, std::size_t alignment) override {
    void* const block = parent_->allocate(bytes, Alignment(bytes, alignment));
#ifdef __linux__
    // Advice: without such pages the block is an ordinary one. The last page of a block that ends
    // within it stays ordinary, because other blocks share it.
    if (bytes >= kHugePage) madvise(block, bytes / kHugePage * kHugePage, MADV_HUGEPAGE);
#endif
    return block;
  }

  void do_deallocate(void* block, std::size_t bytes, std::size_t alignment) override {
    parent_->deallocate(block, bytes, Alignment(bytes, alignment));
  }

  bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
    return this == &other;
  }

  std::pmr::memory_resource* parent_ = std::pmr::new_delete_resource();
};

}  // namespace

std::pmr::memory_resource* HugePages() {
  static HugePageMemory memory;
  return &memory;
}

}  // namespace starfolds
