// Ambient stars: points that belong to no starfold, born with a flash somewhere in the universe,
// that glow, cool and are born again elsewhere.
#pragma once

#include "bodies/run_arrays.h"
#include "universe/camera_path.h"
#include "universe/expansion.h"

namespace starfolds {

/// Whether the universe is still growing (the stars move with it) or finished.
enum class AmbientMode : Integer { Growing = 0, Finished = 1 };

struct AmbientScene {
  ProcessState& Process;
  AmbientArrays& Stars;
  BodySlots& Shape;
};

/// Builds the grey ramp of the flash: white, then a quarter cosine from 255 toward 88.
void BuildAmbRamp(AmbientArrays& ambient);

/// All ambient stars at the core, flying out with the blast.
void SeedAmbientStars(const AmbientScene& scene, Integer prof, Single expandStep);

/// One frame of all ambient stars, seen from `eye`. `radius` is `ExpandTotal`, `speed`
/// `ExpandStep`.
void StepAmbientStars(const AmbientScene& scene, const TourPoint& eye, Single radius, Single speed,
                      AmbientMode mode, Integer prof);

}  // namespace starfolds
