#include "settings/number_range.h"

#include "numbers/conversions.h"
#include "numbers/text.h"

namespace starfolds {

std::string TextOf(double number, NumberKind kind) {
  if (IsWhole(kind)) return NumberText(RoundedToLimits<Long>(number));
  return NumberText(static_cast<Single>(number));
}

/// A "0" is prepended, so that empty text is 0 and a sign is ignored.
std::string ClampedText(const std::string& text, const NumberRange& range) {
  double number = LenientNumber("0" + text);
  if (IsWhole(range.Kind)) number = RoundedToLimits<Long>(number);
  return TextOf(ClampTo(number, range.Low, range.High), range.Kind);
}

}  // namespace starfolds
