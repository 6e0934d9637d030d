// Maps the pixels of a surface to pixels of the screen. One surface pixel is one logical pixel of
// Qt; on a dense screen that is a block of physical pixels.
#pragma once

#include <vector>

namespace starfolds {

/// One axis: logical pixel `i` covers the physical pixels from `Begin(i)` to `End(i)` exclusive. A
/// physical pixel belongs to the logical pixel at its centre, so that with a fractional factor the
/// blocks differ in width by one and have neither gaps nor overlaps.
class AxisScale {
 public:
  /// `physicalSize` is the size of the target; logical pixels beyond it are empty. `origin` is the
  /// position of the first logical pixel in the target, in logical pixels; negative if before it.
  void Measure(int logicalSize, double factor, int physicalSize, int origin = 0);

  int Size() const { return static_cast<int>(begins_.size()) - 1; }
  int Begin(int i) const { return begins_[static_cast<std::size_t>(i)]; }
  int End(int i) const { return begins_[static_cast<std::size_t>(i) + 1]; }

  /// Whether each logical pixel is the physical pixel of the same number.
  bool IsOneToOne() const { return oneToOne_; }

 private:
  std::vector<int> begins_{0};
  bool oneToOne_ = true;
};

struct PixelScale {
  AxisScale Columns;
  AxisScale Rows;

  bool IsOneToOne() const { return Columns.IsOneToOne() && Rows.IsOneToOne(); }
};

}  // namespace starfolds
