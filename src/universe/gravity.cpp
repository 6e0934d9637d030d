#include "universe/gravity.h"

namespace starfolds {
namespace {

/// Adds to the velocity of body `i` the pull of all others.
void PullBody(StarfoldArrays& folds, std::size_t i, double force) {
  constexpr double soft = 1e-09F;  // two bodies at one place must not divide by zero
  const double x = folds.StarfoldX[i];
  const double y = folds.StarfoldY[i];
  const double z = folds.StarfoldZ[i];
  Single vx = folds.StarfoldVX[i];
  Single vy = folds.StarfoldVY[i];
  Single vz = folds.StarfoldVZ[i];
  const std::size_t count = folds.StarfoldX.size();
  for (std::size_t j = 0; j < count; ++j) {
    if (j == i) continue;
    const double dx = static_cast<Single>(folds.StarfoldX[j] - x);
    const double dy = static_cast<Single>(folds.StarfoldY[j] - y);
    const double dz = static_cast<Single>(folds.StarfoldZ[j] - z);
    const double f = static_cast<Single>(force / (dx * dx + dy * dy + dz * dz + soft));
    vx = static_cast<Single>(vx + dx * f);
    vy = static_cast<Single>(vy + dy * f);
    vz = static_cast<Single>(vz + dz * f);
  }
  folds.StarfoldVX[i] = vx;
  folds.StarfoldVY[i] = vy;
  folds.StarfoldVZ[i] = vz;
}

}  // namespace

void StepGravity(StarfoldArrays& folds, Single force, bool evaluate) {
  for (std::size_t i = 0; i < folds.StarfoldX.size(); ++i) {
    if (evaluate) PullBody(folds, i, force);
    folds.StarfoldX[i] += folds.StarfoldVX[i];
    folds.StarfoldY[i] += folds.StarfoldVY[i];
    folds.StarfoldZ[i] += folds.StarfoldVZ[i];
  }
}

}  // namespace starfolds
