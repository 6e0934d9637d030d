#include "platform/key_value_tree.h"

#include <utility>

namespace starfolds {
namespace {

std::string Folded(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

}  // namespace

TreeBulk::TreeBulk(KeyValueTree& tree, KeyValueTree::Access access) : tree_(tree) {
  using Access = KeyValueTree::Access;
  if (tree.bulks_++ == 0) {
    tree.access_ = access;
    tree.abandoned_ = !tree.Begin(access);
  } else if (access == Access::Change && tree.access_ == Access::Look) {
    tree.abandoned_ = true;
  }
  begun_ = !tree.abandoned_;
}

TreeBulk::~TreeBulk() {
  if (open_) Leave(false);
}

bool TreeBulk::Commit() { return open_ && Leave(true); }

bool TreeBulk::Leave(bool keep) {
  open_ = false;
  if (!keep) tree_.abandoned_ = true;
  if (--tree_.bulks_ > 0) return !tree_.abandoned_;
  return tree_.End(!tree_.abandoned_) && !tree_.abandoned_;
}

std::optional<std::string> MemoryTree::Read(Hive hive, std::string_view path,
                                            std::string_view name) {
  if (!Readable) {
    faulty_ = true;
    return std::nullopt;
  }
  const auto found = values_.find({hive, Folded(path), Folded(name)});
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

bool MemoryTree::Write(Hive hive, std::string_view path, std::string_view name,
                       std::string_view text) {
  if (!Writable || WritesUntilFull == 0) {
    faulty_ = true;
    return false;
  }
  if (WritesUntilFull > 0) --WritesUntilFull;
  values_[{hive, Folded(path), Folded(name)}] = std::string(text);
  return true;
}

bool MemoryTree::DeleteKey(Hive hive, std::string_view path) {
  if (!Writable) return false;
  const std::string key = Folded(path);
  const auto lies = [&](const Place& place) {
    const std::string& other = std::get<1>(place);
    return std::get<0>(place) == hive && (other == key || other.starts_with(key + "\\"));
  };
  return std::erase_if(values_, [&](const auto& value) { return lies(value.first); }) > 0;
}

bool MemoryTree::Begin(Access access) {
  before_ = values_;
  faulty_ = false;
  return Readable && (access == Access::Look || Writable);
}

bool MemoryTree::End(bool keep) {
  const bool whole = keep && !faulty_;
  if (!whole) values_ = std::move(before_);
  before_.clear();
  return whole;
}

}  // namespace starfolds
