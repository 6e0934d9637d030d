// Writes a surface into the 32-bit image that a window shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "desktop/dirty_tiles.h"
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

  // `scale` must have been measured for the size of the surface.

  void PaintChanges(const PixelScale& scale, std::span<const PixelChange> changes);

  /// Paints a part of the surface.
  void PaintRect(const PixelScale& scale, const Surface& surface, const TileRect& rect);

  /// Paints the whole surface, and black outside of it.
  void PaintAll(const PixelScale& scale, const Surface& surface);

 private:
  std::uint32_t* Line(int row) {
    return reinterpret_cast<std::uint32_t*>(bits_ + row * bytesPerLine_);
  }
  void PaintBlock(const PixelScale& scale, int x, int y, std::uint32_t word);
  /// Paints a row of the surface into the rows of the image that it covers.
  void PaintRow(const PixelScale& scale, int x, int y, std::span<const Colour> colours);

  std::byte* bits_;
  std::ptrdiff_t bytesPerLine_;
  int width_;
  int height_;
};

}  // namespace starfolds
