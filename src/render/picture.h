// A finished picture for the file writers.
#pragma once

#include <span>
#include <vector>

#include "platform/surface.h"

namespace starfolds {

/// `Width * Height` colours, row by row, without padding.
struct Picture {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Pixels;

  std::span<const Colour> Row(int y) const {
    const auto width = static_cast<std::size_t>(Width);
    return std::span(Pixels).subspan(static_cast<std::size_t>(y) * width, width);
  }
};

inline Picture PictureOf(const Surface& surface) {
  return {surface.Width(), surface.Height(), surface.Pixels()};
}

}  // namespace starfolds
