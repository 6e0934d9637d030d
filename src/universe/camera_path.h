// The camera: one endless B-spline through a sliding window of four control points. The eye only
// moves; it looks along +Z and never turns.
#pragma once

#include <array>

#include "numbers/words.h"

namespace starfolds {

struct TourPoint {
  Single X = 0, Y = 0, Z = 0;
};

/// `TourCtrl`, the oldest point first.
struct TourWindow {
  std::array<TourPoint, 4> Points;

  void Fill(const TourPoint& point) { Points.fill(point); }
  /// Drops the oldest point and takes a new one.
  void Append(const TourPoint& point) { Points = {Points[1], Points[2], Points[3], point}; }
};

/// The eye at `t` in [0, 1) of the window.
TourPoint BSplinePoint(const TourWindow& window, Single t);

/// The control point of step `segIdx` (from 1) of a visit to a starfold at `fold`: first in front
/// of it, `distance` toward -Z, then, past the `approach` steps, in equal parts on to half the
/// distance behind it.
TourPoint VisitPoint(const TourPoint& fold, Single distance, int segIdx, int approach, int closeIn);

/// The control point of step `k` (from 1) of the pull-out: behind the universe, and at last far
/// away.
TourPoint PullOutPoint(Single expandTotal, int k, int steps);

}  // namespace starfolds
