// `StarStep`: moves and redraws every star of a run, once a frame. There is no frame buffer: a star
// is a few pixels that are written and later overwritten with black, star by star in index order.
#pragma once

#include "bodies/flares.h"

namespace starfolds {

/// Where the tour is in this frame.
struct TourPlace {
  Integer VisitIdx = 0;   // the starfold under visit
  Integer CometProf = 0;  // the profile that the comets obey
  Integer SegIdx = 1;     // control step of the visit, from 1
  Single SplineT = 0;     // progress within it, 0 to 1
  bool TourOn = false;

  /// The first step of a visit, which leads away from the starfold visited before.
  bool LeavesFormer() const { return SegIdx == 1 && VisitIdx >= 1; }
};

/// Erases, moves and plots all stars, steps the comets (only where gravity is exactly 0), re-seeds
/// the frame's quota of stars and moves the hues on. Without trails the hues move at the start of
/// the next `StarStep`, before anything reads them.
void StarStep(const FrameScene& scene, const TourPlace& place);

/// The re-seeding of a frame: its rate, and the weights by which the stars follow the eye.
struct Recycling {
  Long Quota = 0;        // hundredths of a star per frame
  double CrossFade = 1;  // from 1 at the start of a tour step to 0 at its end
};
Recycling NewQuota(const FrameScene& scene, const TourPlace& place);

/// The number of stars to draw for a quota, with its rounding quirk: 1250 gives 12 or 14, never 13.
/// One draw.
int RecycleCount(Long quota, Rnd& random);

/// The starfold that a re-seeded star goes to: one or two draws.
Integer ChooseHome(const FrameScene& scene, const TourPlace& place, double crossFade);

/// Moves the hue of every star whose profile cycles, and updates its colour.
void AdvanceStarHues(const ProcessState& process, StarArrays& stars);

/// Does the hue work that the last `StarStep` left to the next one. To be called before anything
/// but `StarStep` reads or moves the hues.
void FinishHueWork(const ProcessState& process, StarArrays& stars);

}  // namespace starfolds
