// Which parts of a surface changed, in coarse tiles.
#pragma once

#include <cstdint>
#include <vector>

namespace starfolds {

struct TileRect {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;

  bool operator==(const TileRect&) const = default;
};

/// The tiles of a surface that were touched since they were last taken. Stars lie scattered, so
/// one bounding rectangle would nearly always be the whole screen; and rectangles much smaller than
/// these cost the window system more than the pixels that they save.
class DirtyTiles {
 public:
  static constexpr int kTileShift = 6;
  static constexpr int kTileSize = 1 << kTileShift;  // surface pixels
  /// From this share of their bounding rectangle on, tiles are shown as that one rectangle: its
  /// few idle pixels are cheaper than the many requests.
  static constexpr double kFullShare = 0.7;
  /// More rectangles than this are one rectangle too.
  static constexpr std::size_t kMaxRects = 256;

  /// Takes the size of the surface, in pixels; nothing is touched then.
  void Resize(int width, int height);

  /// `x` and `y` lie on the surface.
  void Touch(int x, int y) {
    touched_[static_cast<std::size_t>(y >> kTileShift) * columns_ +
             static_cast<std::size_t>(x >> kTileShift)] = 1;
  }

  /// What was touched, in rectangles that do not overlap, sorted by row and then by column, each as
  /// long as its row allows and none beyond the surface. Nothing is touched afterwards.
  const std::vector<TileRect>& Take();

 private:
  void TakeRow(std::size_t row);
  TileRect Bounds() const;
  TileRect CutToSurface(int column, int row, int columns) const;

  int width_ = 0;
  int height_ = 0;
  std::size_t columns_ = 0;
  std::size_t rows_ = 0;
  std::vector<std::uint8_t> touched_;
  std::vector<TileRect> rects_;
};

}  // namespace starfolds
