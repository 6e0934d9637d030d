// The uniform cubic B-spline, which both the camera and the ribbons ride on.
#pragma once

namespace starfolds {

/// One coordinate of the curve at `t` in [0, 1) from four control values. It passes near its
/// control points, and neighbouring windows join smoothly in place, slope and curvature. The factor
/// is the Single nearest to a sixth, on purpose.
inline double BSpline(double t, double p0, double p1, double p2, double p3) {
  constexpr double sixth = 0.16666667F;
  const double cubic = 3 * p1 - p0 - 3 * p2 + p3;
  const double square = 3 * p0 - 6 * p1 + 3 * p2;
  const double linear = 3 * p2 - 3 * p0;
  return (cubic * (t * t * t) + square * (t * t) + linear * t + (4 * p1 + p0 + p2)) * sixth;
}

}  // namespace starfolds
