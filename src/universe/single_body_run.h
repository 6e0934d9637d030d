// `SingleBodyRun`: the small sister of `UniverseRun`. One body, straight ahead of an eye that does
// not move.
#pragma once

#include "colour/saver.h"

namespace starfolds {

/// Runs profile `body` (0 to 49), or composite `body` (0 to 15) if `isComposite`, until a flag says
/// stop or, if `limitFrames`, for `frameLimit` frames. `stars` times `scale` is the star count, at
/// least 10 and at most 30000; the trail is lowered where both would not fit. The caller clamps.
void SingleBodyRun(Saver& saver, Integer body, bool limitFrames, Integer frameLimit, Long stars,
                   Integer trail, bool isComposite, Single scale);

}  // namespace starfolds
