// A universe drawn at random, in ranges in which universes look good.
#pragma once

#include <array>

#include "numbers/rnd.h"
#include "settings/records.h"

namespace starfolds {

struct SurprisedUniverse {
  UniverseSettings Universe;  // in range
  std::array<Integer, kProfileCount> ProfileWeights{};
  std::array<Integer, kCompositeCount> CompositeWeights{};
};

/// Draws all settings of a universe, and which bodies it shows: 5 to 12 profiles, and up to two of
/// the composites that have members. The settings that no run uses are those of `former`.
SurprisedUniverse SurpriseUniverse(Rnd& random, const UniverseSettings& former,
                                   const CompositeArray& composites);

}  // namespace starfolds
