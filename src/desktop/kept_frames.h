// Frames that were computed before they are due.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "desktop/dirty_tiles.h"
#include "desktop/point_painter.h"
#include "platform/surface.h"

namespace starfolds {

/// What a frame changes, ready to be shown.
struct KeptFrame {
  std::vector<PixelChange> Changes;
  DirtyTiles Tiles;  // which contain the changes
  bool AsPoints = false;
  PointDrawing Points;  // if `AsPoints`
};

/// A queue of frames. Their memory is reused.
class KeptFrames {
 public:
  static constexpr std::size_t kMost = Surface::kMostKeptFrames;

  std::size_t Count() const { return count_; }

  /// Appends a frame and returns it, with the content of an older one. Not while `kMost` are kept.
  KeptFrame& Add() { return frames_[(first_ + count_++) % kMost]; }

  /// Removes the oldest frame and returns it, valid until the next `Add`. Not while none is kept.
  KeptFrame& TakeOldest() {
    KeptFrame& oldest = frames_[first_];
    first_ = (first_ + 1) % kMost;
    --count_;
    return oldest;
  }

  void Clear() { count_ = 0; }

 private:
  std::array<KeptFrame, kMost> frames_;
  std::size_t first_ = 0;
  std::size_t count_ = 0;
};

}  // namespace starfolds
