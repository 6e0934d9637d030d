// The routines of the styles of body: one row per `FoldStyle`. What a style is to the settings and
// the dialogs is in settings/styles.h.
#pragma once

#include "bodies/run_arrays.h"
#include "bodies/seed_point.h"
#include "settings/styles.h"

namespace starfolds {

/// Each routine takes the slots of all starfolds and the index of the one it works for. References,
/// so that a row without one of them does not compile.
struct StyleRoutines {
  FoldStyle Style;
  /// Fills a slot when a universe or a run of a single body begins.
  void (&SetUpSlot)(BodySlots& slots, std::size_t slot, const Body& body);
  /// Steps a slot by one frame.
  void (&StepSlot)(BodySlots& slots, std::size_t slot, const Body& body);
  /// Places one star.
  void (&SeedStar)(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot);
  /// Places a comet's nucleus.
  void (&SeedNucleus)(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot);
  /// Moves a nucleus by one frame.
  void (&MoveNucleus)(CometHead& head, const Body& body, const BodySlots& slots, std::size_t slot);
  /// The same as `SetUpSlot` and `SeedStar` for the blast, which has one slot of its own.
  void (&SetUpBlast)(BodySlots& slots, std::size_t slot, const Body& body);
  void (&SeedBlast)(SeedPoint& point, const Body& body, BodySlots& slots, std::size_t slot);
};

/// The row of a profile's style.
const StyleRoutines& RoutinesOf(FoldStyle style);

}  // namespace starfolds
