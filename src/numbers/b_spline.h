// The uniform cubic B-spline, used by the camera and the ribbons.
#pragma once

namespace starfolds {

/// One coordinate of the curve at `t` in [0, 1) from four control values. The curve passes near its
/// control points; adjacent segments join with the same position, slope and curvature. The factor
/// is the Single nearest to 1/6: pictures depend on it.
inline double BSpline(double t, double p0, double p1, double p2, double p3) {
  constexpr double sixth = 0.16666667F;
  const double cubic = 3 * p1 - p0 - 3 * p2 + p3;
  const double square = 3 * p0 - 6 * p1 + 3 * p2;
  const double linear = 3 * p2 - 3 * p0;
  return (cubic * (t * t * t) + square * (t * t) + linear * t + (4 * p1 + p0 + p2)) * sixth;
}

}  // namespace starfolds
