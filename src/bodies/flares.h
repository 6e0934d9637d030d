// The life of a star beyond being a dot: re-seeding, and the flare that comes with it.
#pragma once

#include "bodies/run_arrays.h"
#include "bodies/star_motion.h"
#include "process/process_state.h"

namespace starfolds {

/// What a run shows.
enum class RunKind { Universe, SingleProfile, SingleComposite };

/// What a frame's routines share.
struct FrameScene {
  ProcessState& Process;
  RunArrays& Arrays;
  RunKind Kind = RunKind::Universe;
};

/// Re-seeds star `i` in the starfold `StarHome[i]` and rolls its flare: a pulsar, a nova or a new
/// star (one draw against the profile's chances). A nova and a new star show at once.
void ReseedStar(const FrameScene& scene, std::size_t i);

/// The row of the nova's colour ramp with `left` of `frames` frames left. The system forms frames
/// times 80 as a 16-bit number: beyond 409 frames of age it does not fit, and the last row that did
/// stays.
int NovaRow(Integer frames, Integer left);

/// Erases a new star, a nova or a pulsar where it was last drawn.
void EraseFlare(const FrameScene& scene, std::size_t i);

/// Moves a nova or pulsar, stores its place relative to the eye, and draws it if it is in front of
/// the eye.
void MoveAndDrawFlare(const FrameScene& scene, std::size_t i);

/// Stores a new star's depth and, if it is in front of the eye, its screen position; draws it.
void PlaceAndDrawNewStar(const FrameScene& scene, std::size_t i, const View& view);

}  // namespace starfolds
