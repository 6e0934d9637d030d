// The properties that can be copied into all profiles, without widgets.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/user_text.h"
#include "settings/dialog_rows.h"
#include "settings/records.h"
#include "widgets/number_box.h"

namespace starfolds {

/// The control for the value: `txtPropCopy`, `cboPropCopy`, `chkPropCopy`.
enum class CopyControl { Text, Choice, Check };

using NameList = std::span<const std::string_view> (*)();

/// An entry of `cboPropCopyList`.
struct CopyRow {
  std::optional<Setting<StarfoldProfile>> Labelled =
      {};                      // the setting whose label the entry has, or
  std::string_view Text = {};  // its own text
  CopyControl Control = CopyControl::Text;
  NumberRange Range = {};      // of the number, if the entry has its own text
  NameList Choices = nullptr;  // of the list
  std::optional<Setting<StarfoldProfile>> Target =
      {};            // the setting that is changed; nullopt: none
  Styles Skipped{};  // profiles of these styles are not changed
};

/// In the order of the list.
std::span<const CopyRow> CopyRows();

std::string EntryText(const CopyRow& row);
NumberRange RangeOf(const CopyRow& row);
/// "Range (0 - 99.9):"
UserText RangeText(const NumberRange& range);

/// The number of profiles that a copy of the row sets.
int TypesSetBy(const CopyRow& row, const ProfileArray& profiles);

/// Writes the value into the row's target in all profiles but those of skipped styles, rounded
/// if the target is a whole number. False if the row has no target.
bool CopyProperty(const CopyRow& row, Single value, ProfileArray& profiles);

}  // namespace starfolds
