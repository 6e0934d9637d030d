// What can be copied into all profiles at once, without the widgets.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "widgets/number_box.h"
#include "properties/property_tables.h"
#include "settings/records.h"

namespace starfolds {

/// Where the value comes from: `txtPropCopy`, `cboPropCopy`, `chkPropCopy`.
enum class CopyControl { Text, Choice, Check };

using NameList = std::span<const std::string_view> (*)();

/// An entry of `cboPropCopyList`.
struct CopyRow {
  std::string_view Entry;  // a setting, whose label is the entry's text; or the text itself
  CopyControl Control = CopyControl::Text;
  NumberRange Range = {};        // of the number; `High` of 0: the range of the setting `Entry`
  NameList Choices = nullptr;    // of the list
  std::string_view Target = {};  // the setting that is changed; empty: none, which is as it must be
  Styles Skipped{};              // profiles of these styles are left alone
};

/// In the order of the list.
std::span<const CopyRow> CopyRows();

std::string EntryText(const CopyRow& row);
NumberRange RangeOf(const CopyRow& row);
/// "Range (0 - 99.9):"
std::string RangeText(const NumberRange& range);

/// Writes the value into the row's target in all profiles but those of skipped styles, rounded
/// where the target is a whole number. False if the row has no target.
bool CopyProperty(const CopyRow& row, Single value, ProfileArray& profiles);

}  // namespace starfolds
