#include "platform/surface.h"

#include <algorithm>

namespace starfolds {

Surface::Surface(Integer width, Integer height, std::size_t journalCapacity)
    : journal_(journalCapacity) {
  Resize(width, height);
}

Colour Surface::Pixel(Long x, Long y) const {
  const auto column = static_cast<std::uint32_t>(x);
  const auto row = static_cast<std::uint32_t>(y);
  if (column >= width_ || row >= height_) return 0;
  return pixels_[static_cast<std::size_t>(row) * width_ + column];
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
  for (const Colour colour : Pixels()) {
    hash = (hash ^ colour) * 1099511628211ULL;
  }
  return hash;
}

}  // namespace starfolds
