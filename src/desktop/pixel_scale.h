// Where the pixels of a surface lie on the screen. One surface pixel is one logical pixel of the
// toolkit; on a dense screen that is a block of physical ones.
#pragma once

#include <vector>

namespace starfolds {

/// One axis: logical pixel `i` covers the physical pixels from `Begin(i)` up to, without, `End(i)`.
/// A physical pixel belongs to the logical one under its centre, so at a fractional factor the
/// blocks differ in width by one and leave neither gap nor overlap.
class AxisScale {
 public:
  /// `physicalSize` is the room there is; what lies beyond it is empty. `origin` is the place of
  /// the first logical pixel in that room, in logical pixels; negative if it lies before the room.
  void Measure(int logicalSize, double factor, int physicalSize, int origin = 0);

  int Size() const { return static_cast<int>(begins_.size()) - 1; }
  int Begin(int i) const { return begins_[static_cast<std::size_t>(i)]; }
  int End(int i) const { return begins_[static_cast<std::size_t>(i) + 1]; }

  /// Whether every logical pixel is the one physical pixel of the same number.
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
