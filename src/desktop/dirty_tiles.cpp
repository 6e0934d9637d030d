#include "desktop/dirty_tiles.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace starfolds {
namespace {

std::int64_t AreaOf(const TileRect& rect) {
  return static_cast<std::int64_t>(rect.Width) * rect.Height;
}

std::size_t TilesOf(int length) {
  return static_cast<std::size_t>((length + DirtyTiles::kTileSize - 1) >> DirtyTiles::kTileShift);
}

}  // namespace

void DirtyTiles::Resize(int width, int height) {
  width_ = width;
  height_ = height;
  columns_ = TilesOf(width);
  rows_ = TilesOf(height);
  touched_.assign(columns_ * rows_, 0);
}

std::int64_t DirtyTiles::Area() const {
  const auto tiles = std::accumulate(touched_.begin(), touched_.end(), std::int64_t{0});
  return tiles * kTileSize * kTileSize;
}

void DirtyTiles::TakeFrom(DirtyTiles& other) {
  for (std::size_t i = 0; i < touched_.size(); ++i) touched_[i] |= other.touched_[i];
  std::fill(other.touched_.begin(), other.touched_.end(), std::uint8_t{0});
}

const std::vector<TileRect>& DirtyTiles::Take() {
  rects_.clear();
  for (std::size_t row = 0; row < rows_; ++row) TakeRow(row);
  std::fill(touched_.begin(), touched_.end(), std::uint8_t{0});

  const TileRect bounds = Bounds();
  std::int64_t covered = 0;
  for (const TileRect& rect : rects_) covered += AreaOf(rect);
  const bool nearlyFull =
      static_cast<double>(covered) > kFullShare * static_cast<double>(AreaOf(bounds));
  if (rects_.size() > 1 && (nearlyFull || rects_.size() > kMaxRects)) rects_.assign(1, bounds);
  return rects_;
}

/// Appends the runs of changed tiles in a row.
void DirtyTiles::TakeRow(std::size_t row) {
  const auto begin = touched_.begin() + static_cast<std::ptrdiff_t>(row * columns_);
  const auto end = begin + static_cast<std::ptrdiff_t>(columns_);
  auto at = std::find(begin, end, 1);
  while (at != end) {
    const auto runEnd = std::find(at, end, 0);
    rects_.push_back(CutToSurface(static_cast<int>(at - begin), static_cast<int>(row),
                                  static_cast<int>(runEnd - at)));
    at = std::find(runEnd, end, 1);
  }
}

TileRect DirtyTiles::CutToSurface(int column, int row, int columns) const {
  TileRect rect{column << kTileShift, row << kTileShift, columns << kTileShift, kTileSize};
  rect.Width = std::min(rect.Width, width_ - rect.X);
  rect.Height = std::min(rect.Height, height_ - rect.Y);
  return rect;
}

TileRect DirtyTiles::Bounds() const {
  if (rects_.empty()) return {};
  int left = width_;
  int right = 0;
  for (const TileRect& rect : rects_) {
    left = std::min(left, rect.X);
    right = std::max(right, rect.X + rect.Width);
  }
  const int top = rects_.front().Y;
  return {left, top, right - left, rects_.back().Y + rects_.back().Height - top};
}

}  // namespace starfolds
