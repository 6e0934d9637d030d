// `SeedStar`: gives a star its place in its body, by the body's style, and its colour.
#pragma once

#include "bodies/run_arrays.h"
#include "bodies/seed_point.h"

namespace starfolds {

/// Places star `i` in the starfold `StarHome[i]`, as a star of `StarProf[i]`: position,
/// velocity, spin, level, hue and colour. Age, wait and flares become 0.
void SeedStar(ProcessState& process, StarArrays& stars, BodySlots& slots, std::size_t i);

}  // namespace starfolds
