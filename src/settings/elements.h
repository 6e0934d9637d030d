// The first 17 elements of the periodic table, and how molecules show them.
#pragma once

#include <string_view>

#include "numbers/words.h"

namespace starfolds {

inline constexpr int kElementCount = 17;

struct Element {
  std::string_view Name;  // spelled as in earlier versions
  std::string_view Symbol;
  std::string_view Shells;  // electrons per shell
  Integer Radius;
  Integer Color;  // a hue in degrees
};

/// Element 1 to 17, by atomic number; clamped.
const Element& ElementInfo(int element);

}  // namespace starfolds
