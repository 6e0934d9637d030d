#include "desktop/screen_image.h"

#include <algorithm>

namespace starfolds {

void ScreenImage::PaintBlock(const PixelScale& scale, int x, int y, std::uint32_t word) {
  const int left = scale.Columns.Begin(x);
  const int right = scale.Columns.End(x);
  for (int row = scale.Rows.Begin(y); row < scale.Rows.End(y); ++row) {
    std::fill(Line(row) + left, Line(row) + right, word);
  }
}

/// Most of a frame's cost is here, in scattered memory accesses: the one-to-one scale has a loop
/// without any scaling.
void ScreenImage::PaintPlaces(const PixelScale& scale, const Surface& surface,
                              std::span<const PixelPlace> places) {
  const Colour* const pixels = surface.Pixels().data();
  const std::ptrdiff_t width = surface.Width();
  if (scale.IsOneToOne()) {
    for (const PixelPlace place : places) {
      const int x = ColumnOf(place);
      const int y = RowOf(place);
      Line(y)[x] = ScreenWord(pixels[y * width + x]);
    }
    return;
  }
  for (const PixelPlace place : places) {
    const int x = ColumnOf(place);
    const int y = RowOf(place);
    PaintBlock(scale, x, y, ScreenWord(pixels[y * width + x]));
  }
}

void ScreenImage::PaintLine(int row, const AxisScale& columns, const Colour* colours) {
  std::uint32_t* const line = Line(row);
  const int size = columns.Size();
  std::fill(line, line + columns.Begin(0), ScreenWord(0));
  for (int x = 0; x < size; ++x) {
    std::fill(line + columns.Begin(x), line + columns.End(x), ScreenWord(colours[x]));
  }
  std::fill(line + columns.End(size - 1), line + width_, ScreenWord(0));
}

void ScreenImage::PaintAll(const PixelScale& scale, const Surface& surface) {
  const int width = surface.Width();
  int painted = 0;
  for (int y = 0; width > 0 && y < surface.Height(); ++y) {
    const Colour* const colours = surface.Pixels().data() + static_cast<std::ptrdiff_t>(y) * width;
    const int begin = scale.Rows.Begin(y);
    const int end = scale.Rows.End(y);
    if (begin == end) continue;
    for (; painted < begin; ++painted) std::fill_n(Line(painted), width_, ScreenWord(0));
    PaintLine(begin, scale.Columns, colours);
    for (int row = begin + 1; row < end; ++row) std::copy_n(Line(begin), width_, Line(row));
    painted = end;
  }
  for (int row = painted; row < height_; ++row) std::fill_n(Line(row), width_, ScreenWord(0));
}

}  // namespace starfolds
