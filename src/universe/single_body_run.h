// `SingleBodyRun`: the small sister of `UniverseRun`. One body, straight ahead of an eye that does
// not move.
#pragma once

#include "colour/saver.h"

namespace starfolds {

/// Runs profile `body` (0 to 49), or composite `body` (0 to 15) if `isComposite`, until a flag says
/// stop or, if `limitFrames`, for `frameLimit` frames. `stars` times `scale` is the star count,
/// clamped to 1 to 30000; `trail` is clamped to 1 to what 30000 trail places leave for each star.
void SingleBodyRun(Saver& saver, Integer body, bool limitFrames, Integer frameLimit, Long stars,
                   Integer trail, bool isComposite, Single scale);

}  // namespace starfolds
