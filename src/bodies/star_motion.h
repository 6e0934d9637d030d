// How a star moves in a frame and where it shows: the innermost code of the system. Everything here
// is inline and free of branches that the compiler could not take out of a rotating star's way;
// arithmetic runs in double and is stored as Singles.
#pragma once

#include <cmath>

#include "bodies/plotters.h"
#include "bodies/run_arrays.h"
#include "colour/saver.h"
#include "numbers/conversions.h"

namespace starfolds {

/// Keeps the squared distance from the core off zero in the attraction.
inline constexpr double kSoftCore = 1e-09;

inline void RotateStar(StarArrays& stars, std::size_t i) {
  const double c = stars.StarSpinCos[i];
  const double s = stars.StarSpinSin[i];
  const double x = stars.StarX[i];
  const double z = stars.StarZ[i];
  stars.StarX[i] = static_cast<Single>(x * c - s * z);
  stars.StarZ[i] = static_cast<Single>(z * c + s * x);
}

inline void DriftStar(StarArrays& stars, std::size_t i) {
  stars.StarX[i] = static_cast<Single>(static_cast<double>(stars.StarX[i]) + stars.StarVX[i]);
  stars.StarY[i] = static_cast<Single>(static_cast<double>(stars.StarY[i]) + stars.StarVY[i]);
  stars.StarZ[i] = static_cast<Single>(static_cast<double>(stars.StarZ[i]) + stars.StarVZ[i]);
}

inline void AttractStar(StarArrays& stars, std::size_t i, const StarMotion& motion) {
  const double x = stars.StarX[i];
  const double y = stars.StarY[i];
  const double z = stars.StarZ[i];
  const double k = -motion.RunForce / (z * z + x * x + y * y + kSoftCore);
  stars.StarVX[i] = static_cast<Single>(stars.StarVX[i] + k * x);
  stars.StarVY[i] = static_cast<Single>(stars.StarVY[i] + k * y);
  stars.StarVZ[i] = static_cast<Single>(stars.StarVZ[i] + k * z);
  DriftStar(stars, i);
}

/// Ages the star, so that with trails, where every star ages by itself, a wave ages twice as fast.
inline void WaveStar(StarArrays& stars, std::size_t i, const StarMotion& motion) {
  const Long age = ++stars.StarAge[i];
  stars.StarX[i] = static_cast<Single>(static_cast<double>(stars.StarX[i]) + stars.StarVX[i]);
  const Single phase =
      static_cast<Single>(static_cast<double>(stars.StarVY[i]) + motion.WavePhaseStep);
  stars.StarVY[i] = phase;
  const double decay = motion.WaveDecay;
  const double fading = decay > 0 ? decay / (age + decay) : 0;
  stars.StarY[i] =
      static_cast<Single>(motion.WaveAmplitude * std::sin(static_cast<double>(phase)) * fading);
  stars.StarZ[i] = static_cast<Single>(static_cast<double>(stars.StarZ[i]) + stars.StarVZ[i]);
}

inline void MoveStar(StarArrays& stars, std::size_t i, const StarMotion& motion) {
  if (motion.RunMotion == Motion::Rotate) [[likely]] {
    return RotateStar(stars, i);
  }
  switch (motion.RunMotion) {
    case Motion::Rotate: return;
    case Motion::Drift: return DriftStar(stars, i);
    case Motion::Attract: return AttractStar(stars, i, motion);
    case Motion::Wave: return WaveStar(stars, i, motion);
  }
}

/// A place relative to the eye.
struct View {
  double X, Y, Depth;

  bool InFront() const { return Depth > kNearDepth; }
};

/// Tilts a star's place by its level and puts it where its starfold is.
inline View ViewStar(const StarArrays& stars, std::size_t i, const StarMotion& motion,
                     const StarfoldArrays& folds) {
  const auto level = static_cast<std::size_t>(stars.StarLevel[i]);
  const auto home = static_cast<std::size_t>(stars.StarHome[i]);
  const double c = motion.LevelCos[level];
  const double s = motion.LevelSin[level];
  const double x = stars.StarX[i];
  const double y = stars.StarY[i];
  const double z = stars.StarZ[i];
  const double depth = y * s + z * c + folds.StarfoldRelZ[home];
  const double u = z * s - y * c;
  if (motion.AxisPlane) return {u + folds.StarfoldRelX[home], x + folds.StarfoldRelY[home], depth};
  return {x + folds.StarfoldRelX[home], u + folds.StarfoldRelY[home], depth};
}

/// Where a view in front of the eye falls on the screen. A place that no Long holds leaves the
/// former one on that axis.
inline void ProjectView(const Display& screen, const View& view, Long& x, Long& y) {
  const double f = screen.FocalPixels / view.Depth;
  AssignRounded(x, view.X * f + screen.CenterX);
  AssignRounded(y, view.Y * f + screen.CenterY);
}

}  // namespace starfolds
