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

/// The tiles of a surface that changed since the last `Take`. Stars are scattered, so one bounding
/// rectangle would nearly always be the whole screen; rectangles much smaller than these tiles cost
/// the window system more than the pixels that they save.
class DirtyTiles {
 public:
  static constexpr int kTileShift = 6;
  static constexpr int kTileSize = 1 << kTileShift;  // surface pixels
  /// If the tiles fill at least this share of their bounding rectangle, that rectangle is returned:
  /// its unchanged pixels are cheaper than many requests.
  static constexpr double kFullShare = 0.7;
  /// Above this number of rectangles the bounding rectangle is returned.
  static constexpr std::size_t kMaxRects = 256;

  /// Sets the size of the surface in pixels, and marks all tiles as unchanged.
  void Resize(int width, int height);

  /// Marks the tile of a pixel. `x` and `y` must be on the surface.
  void Touch(int x, int y) {
    touched_[static_cast<std::size_t>(y >> kTileShift) * columns_ +
             static_cast<std::size_t>(x >> kTileShift)] = 1;
  }

  /// The number of pixels in changed tiles; those at the edge of the surface count as whole.
  std::int64_t Area() const;

  /// Marks the changed tiles of `other` as well; they are unchanged in `other` afterwards. Both
  /// have the same size.
  void TakeFrom(DirtyTiles& other);

  /// The changed tiles as rectangles that do not overlap, sorted by row and then by column, each as
  /// wide as possible within its row and clipped to the surface. All tiles are unchanged
  /// afterwards.
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
