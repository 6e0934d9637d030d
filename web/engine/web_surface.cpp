#include "web_surface.h"

#include <vector>

#include "host_calls.h"

namespace starfolds::web {

static_assert(sizeof(PixelChange) == 2 * sizeof(std::uint32_t));

void WebSurface::Present() {
  ++frames_;
  if (EverythingChanged()) {
    ForgetJournal();
    const std::vector<Colour> pixels = Pixels();
    PagePresent(pixels.data(), static_cast<std::uint32_t>(pixels.size()), 1);
    return;
  }
  const std::span<const PixelChange> changes = TakeChanges();
  PagePresent(&changes.data()->Place, static_cast<std::uint32_t>(changes.size()), 0);
}

std::uint64_t WebSurface::Hash() const {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const Colour colour : Pixels()) hash = (hash ^ colour) * 1099511628211ULL;
  return hash;
}

void WebPump::WaitForEvents(Long milliseconds) { ticks_ = PageWait(milliseconds); }

void WebPump::WaitForRefresh() { ticks_ = PageWait(0); }

}  // namespace starfolds::web
