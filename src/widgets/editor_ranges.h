// The ranges of number boxes: those of the field table, and the exceptions of some editors.
#pragma once

#include "settings/fields.h"
#include "settings/number_range.h"

namespace starfolds {

/// The editors with exceptions. The properties dialog has none: its ranges are those of the field
/// table.
enum class RangedEditor { Levels, Themed, PropertyCopy };

/// What can be typed for a setting, by the type of its member.
template <class Record>
NumberKind KindOf(const Field<Record>& field) {
  if (std::holds_alternative<Long Record::*>(field.Where)) return NumberKind::AsLong;
  return std::holds_alternative<Single Record::*>(field.Where) ? NumberKind::AsSingle
                                                               : NumberKind::AsInteger;
}

/// The range of a setting in the field table. Its rule must be `RangeRule::Fixed`.
template <class Record>
NumberRange RangeOf(const Field<Record>& field) {
  return {KindOf(field), field.Low, field.High};
}

/// The range in an editor: that of the field table unless the editor has an exception for the
/// setting.
NumberRange RangeIn(RangedEditor editor, Setting<StarfoldProfile> setting);

}  // namespace starfolds
