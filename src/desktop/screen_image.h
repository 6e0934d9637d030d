// Writes a surface into the 32-bit image that a window shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "desktop/pixel_scale.h"
#include "platform/surface.h"

namespace starfolds {

/// An image in memory that another object owns, in physical pixels of one word 0xffRRGGBB each. It
/// is valid only until the owner reallocates the image, so it is created for every frame.
class ScreenImage {
 public:
  ScreenImage(void* bits, std::ptrdiff_t bytesPerLine, int width, int height)
      : bits_(static_cast<std::byte*>(bits)),
        bytesPerLine_(bytesPerLine),
        width_(width),
        height_(height) {}

  /// Paints the pixels of the surface that a journal lists.
  void PaintPlaces(const PixelScale& scale, const Surface& surface,
                   std::span<const PixelPlace> places);

  /// Paints the whole surface, and black outside of it. `scale` must have been measured for the
  /// size of the surface.
  void PaintAll(const PixelScale& scale, const Surface& surface);

 private:
  std::uint32_t* Line(int row) {
    return reinterpret_cast<std::uint32_t*>(bits_ + row * bytesPerLine_);
  }
  void PaintBlock(const PixelScale& scale, int x, int y, std::uint32_t word);
  void PaintLine(int row, const AxisScale& columns, const Colour* colours);

  std::byte* bits_;
  std::ptrdiff_t bytesPerLine_;
  int width_;
  int height_;
};

}  // namespace starfolds
