// The data of the factory settings. Only factory.cpp reads it.
#pragma once

#include <span>
#include <string_view>

#include "numbers/words.h"

namespace starfolds {

/// One profile. The row is written in four lines: body and shape (fields 0 to 18), flares (19 to
/// 34), comets and hues (35 to 49), and ribbon, force, levels and the count of points or atoms (50
/// to 67), followed by the centre and the points or atoms.
struct FactoryProfile {
  std::string_view Name;
  Integer Pct = 0;
  std::string_view Row;
};

std::span<const FactoryProfile> FactoryProfiles4x();
/// The defined ones only.
std::span<const FactoryProfile> FactoryProfiles20();
/// Name, weight, member count, members.
std::span<const std::string_view> FactoryComposites4x();
std::span<const std::string_view> FactoryComposites20();

struct FactoryTheme {
  std::string_view Name;
  std::string_view Row;
};
/// Theme 1 is the one for the 4.x set.
std::span<const FactoryTheme> FactoryThemes();
std::string_view FactoryClassicalTheme20();

}  // namespace starfolds
