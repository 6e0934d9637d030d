// The ribbon generator: stars along a cubic B-spline whose control points drift.
#pragma once

#include "bodies/body_slots.h"
#include "bodies/seed_point.h"

namespace starfolds {

/// Draws the keys of slot `slots[index]` (per point, per key: X, Y, Z) and places the control
/// points. The points are evaluated from the keys of slot 0, whichever slot is set up; the first
/// `MorphRibbon` mends that.
void SetUpRibbon(std::vector<RibbonSlot>& slots, std::size_t index, const Body& body);

/// Draws the control points of a ribbon that does not move.
void SetUpStillRibbon(RibbonSlot& slot, const Body& body);

/// One frame of a ribbon: its control points move on between their keys, and turn.
void MorphRibbon(RibbonSlot& slot, const Body& body);

/// Places a star on the ribbon, drifting off it. Draws: three for the place, then a direction.
void SeedRibbon(SeedPoint& point, const Body& body, const RibbonSlot& slot);

/// A point of the ribbon at `place` in control points.
Point3 RibbonPoint(const RibbonSlot& slot, int controlPoints, double place);

}  // namespace starfolds
