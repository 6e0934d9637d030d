#include "desktop/screen_image.h"

#include <algorithm>
#include <vector>

namespace starfolds {

void ScreenImage::PaintBlock(const PixelScale& scale, int x, int y, std::uint32_t word) {
  const int left = scale.Columns.Begin(x);
  const int right = scale.Columns.End(x);
  for (int row = scale.Rows.Begin(y); row < scale.Rows.End(y); ++row) {
    std::fill(Line(row) + left, Line(row) + right, word);
  }
}

/// A frame's cost is in scattered memory accesses: the one-to-one scale has a loop without any
/// scaling.
void ScreenImage::PaintChanges(const PixelScale& scale, std::span<const PixelChange> changes) {
  if (scale.IsOneToOne()) {
    for (const auto& [place, ink] : changes) Line(RowOf(place))[ColumnOf(place)] = ScreenWord(ink);
    return;
  }
  for (const auto& [place, ink] : changes) {
    PaintBlock(scale, ColumnOf(place), RowOf(place), ScreenWord(ink));
  }
}

void ScreenImage::PaintRow(const PixelScale& scale, int x, int y, std::span<const Colour> colours) {
  const int begin = scale.Rows.Begin(y);
  const int end = scale.Rows.End(y);
  if (begin == end || colours.empty()) return;
  std::uint32_t* const line = Line(begin);
  const int left = scale.Columns.Begin(x);
  for (const Colour colour : colours) {
    std::fill(line + scale.Columns.Begin(x), line + scale.Columns.End(x), ScreenWord(colour));
    ++x;
  }
  const int width = scale.Columns.End(x - 1) - left;
  for (int row = begin + 1; row < end; ++row) std::copy_n(line + left, width, Line(row) + left);
}

void ScreenImage::PaintRect(const PixelScale& scale, const Surface& surface, const TileRect& rect) {
  std::vector<Colour> colours(static_cast<std::size_t>(rect.Width));
  for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
    surface.CopyRow(rect.X, y, colours);
    PaintRow(scale, rect.X, y, colours);
  }
}

void ScreenImage::PaintAll(const PixelScale& scale, const Surface& surface) {
  for (int row = 0; row < height_; ++row) std::fill_n(Line(row), width_, ScreenWord(0));
  PaintRect(scale, surface, {0, 0, surface.Width(), surface.Height()});
}

}  // namespace starfolds
