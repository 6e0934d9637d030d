// How a star moves in a frame and where it shows: the innermost code of the system. Everything here
// is inline; a rotating star costs one predictable branch, no trigonometry and, in front of the
// eye, one division. Arithmetic runs in double and is stored as Singles.
#pragma once

#include <cmath>
#include <limits>

#include "bodies/plotters.h"
#include "bodies/run_arrays.h"
#include "numbers/conversions.h"
#include "numbers/elementary.h"
#include "process/process_state.h"

namespace starfolds {

/// Keeps the squared distance from the core off zero in the attraction.
inline constexpr double kSoftCore = 1e-09;

/// Rotates a place about the Y axis, computed in double and rounded once.
inline void RotateAboutY(Single& placeX, Single& placeZ, double cosine, double sine) {
  const double x = placeX;
  const double z = placeZ;
  placeX = static_cast<Single>(x * cosine - sine * z);
  placeZ = static_cast<Single>(z * cosine + sine * x);
}

inline void RotateStar(StarState& star) {
  RotateAboutY(star.StarX, star.StarZ, star.StarSpinCos, star.StarSpinSin);
}

inline void DriftStar(StarState& star) {
  star.StarX += star.StarVX;
  star.StarY += star.StarVY;
  star.StarZ += star.StarVZ;
}

inline void AttractStar(StarState& star, const StarMotion& motion) {
  const double x = star.StarX;
  const double y = star.StarY;
  const double z = star.StarZ;
  const double k = -motion.RunForce / (z * z + x * x + y * y + kSoftCore);
  star.StarVX = static_cast<Single>(star.StarVX + k * x);
  star.StarVY = static_cast<Single>(star.StarVY + k * y);
  star.StarVZ = static_cast<Single>(star.StarVZ + k * z);
  DriftStar(star);
}

/// Counts a frame of the star's age, up to the largest Long.
inline void AgeStar(StarState& star) {
  if (star.StarAge < std::numeric_limits<Long>::max()) ++star.StarAge;
}

/// Ages the star, so that with trails, where every star ages by itself, a wave ages twice as fast.
inline void WaveStar(StarState& star, const StarMotion& motion) {
  AgeStar(star);
  star.StarX += star.StarVX;
  star.StarVY += motion.WavePhaseStep;
  const double decay = motion.WaveDecay;
  const double fading = decay > 0 ? decay / (star.StarAge + decay) : 0;
  star.StarY =
      static_cast<Single>(motion.WaveAmplitude * Sine(static_cast<double>(star.StarVY)) * fading);
  star.StarZ += star.StarVZ;
}

inline void MoveStar(StarState& star, const StarMotion& motion) {
  if (motion.RunMotion == Motion::Rotate) [[likely]] {
    return RotateStar(star);
  }
  switch (motion.RunMotion) {
    case Motion::Rotate: return;
    case Motion::Drift: return DriftStar(star);
    case Motion::Attract: return AttractStar(star, motion);
    case Motion::Wave: return WaveStar(star, motion);
  }
}

/// A place relative to the eye.
struct View {
  double X, Y, Depth;

  bool InFront() const { return Depth > kNearDepth; }
};

/// The place of a star of level-tilt (c, s), at `home` to the eye.
inline View TiltStar(const StarState& star, double c, double s, bool axisPlane,
                     const RelPlace& home) {
  const double x = star.StarX;
  const double y = star.StarY;
  const double z = star.StarZ;
  const double depth = y * s + z * c + home.Z;
  const double across = z * s - y * c;
  if (axisPlane) return {across + home.X, x + home.Y, depth};
  return {x + home.X, across + home.Y, depth};
}

/// Tilts a star's place by its level and puts it where its starfold is.
inline View ViewStar(const StarState& star, const StarMotion& motion, const StarfoldArrays& folds) {
  const auto level = static_cast<std::size_t>(star.StarLevel);
  return TiltStar(star, motion.LevelCos[level], motion.LevelSin[level], motion.AxisPlane,
                  folds.StarfoldRel[static_cast<std::size_t>(star.StarHome)]);
}

/// What a projection needs of the display, ready to use.
struct Lens {
  double Focal, CentreX, CentreY;

  explicit Lens(const Display& screen)
      : Focal(screen.FocalPixels), CentreX(screen.CenterX), CentreY(screen.CenterY) {}
};

/// Where a view in front of the eye falls on the screen. A place that no Long holds leaves the
/// former one on that axis.
inline void ProjectView(const Lens& lens, const View& view, Long& x, Long& y) {
  const double f = lens.Focal / view.Depth;
  AssignRounded(x, view.X * f + lens.CentreX);
  AssignRounded(y, view.Y * f + lens.CentreY);
}

/// Projects and plots a star in front of the eye, and notes the place.
inline void PlotView(Surface::Pen& pen, const Lens& lens, const View& view, TrailPlace& trail,
                     Colour colour) {
  const double f = lens.Focal / view.Depth;
  const double x = view.X * f + lens.CentreX;
  const double y = view.Y * f + lens.CentreY;
  // One test of the range for both axes: far below it, both places fit a Long.
  if (std::abs(x) + std::abs(y) < 0x1p30) [[likely]] {
    trail.TrailX = static_cast<Long>(std::llrint(x));
    trail.TrailY = static_cast<Long>(std::llrint(y));
  } else {
    AssignRounded(trail.TrailX, x);
    AssignRounded(trail.TrailY, y);
  }
  pen.SetPixelV(trail.TrailX, trail.TrailY, colour);
}

}  // namespace starfolds
