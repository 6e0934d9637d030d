#include "platform/surface.h"

#include <algorithm>

namespace starfolds {

Surface::Surface(Integer width, Integer height, std::size_t journalCapacity,
                 std::pmr::memory_resource* memory)
    : pixels_(memory), journal_(journalCapacity) {
  Resize(width, height);
}

Colour Surface::Pixel(Long x, Long y) const {
  const auto column = static_cast<std::uint32_t>(x);
  const auto row = static_cast<std::uint32_t>(y);
  if (column >= width_ || row >= height_) return 0;
  return pixels_[static_cast<std::size_t>(row) * width_ + column] & ~kJournalled;
}

void Surface::CopyRow(int x, int y, std::span<Colour> colours) const {
  const auto begin = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * Width() + x;
  std::transform(begin, begin + static_cast<std::ptrdiff_t>(colours.size()), colours.begin(),
                 [](Colour pixel) { return pixel & ~kJournalled; });
}

std::vector<Colour> Surface::Pixels() const {
  std::vector<Colour> colours(pixels_.size());
  for (std::uint32_t y = 0; y < height_; ++y) {
    CopyRow(0, static_cast<int>(y), std::span(colours).subspan(std::size_t{y} * width_, width_));
  }
  return colours;
}

std::span<const PixelChange> Surface::TakeChanges() {
  std::size_t changes = 0;
  for (std::size_t i = 0; i < journalSize_; ++i) {
    const auto [place, before] = journal_[i];
    if ((before & kJournalled) != 0) continue;
    Colour& pixel = PixelAt(place);
    pixel &= ~kJournalled;
    journal_[changes] = {place, pixel};
    changes += pixel != before;
  }
  journalSize_ = 0;
  everythingChanged_ = false;
  return {journal_.data(), changes};
}

void Surface::ForgetJournal() {
  for (std::size_t i = 0; i < journalSize_; ++i) PixelAt(journal_[i].Place) &= ~kJournalled;
  journalSize_ = 0;
  everythingChanged_ = false;
}

void Surface::Clear() {
  std::fill(pixels_.begin(), pixels_.end(), 0);
  journalSize_ = 0;
  everythingChanged_ = true;
}

void Surface::Resize(Integer width, Integer height) {
  width_ = static_cast<std::uint32_t>(std::max<Integer>(width, 0));
  height_ = static_cast<std::uint32_t>(std::max<Integer>(height, 0));
  pixels_.assign(static_cast<std::size_t>(width_) * height_, 0);
  journalSize_ = 0;
  everythingChanged_ = true;
}

std::uint64_t MemorySurface::Hash() const {
  std::uint64_t hash = 14695981039346656037ULL;
  std::vector<Colour> row(static_cast<std::size_t>(Width()));
  for (int y = 0; y < Height(); ++y) {
    CopyRow(0, y, row);
    for (const Colour colour : row) hash = (hash ^ colour) * 1099511628211ULL;
  }
  return hash;
}

}  // namespace starfolds
