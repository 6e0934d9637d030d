// Settings by their name, for a page that knows nothing of records. Names are those of `SetByName`,
// and for the parts of a body "Starfold7/IFS_CenterX", "Starfold7/IFS0/IFS_LocX",
// "Starfold7/Atom_CenterX" and "Starfold7/Atom31/Atom_Size".
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "settings/records.h"

namespace starfolds::web {

/// The text of a setting as it is stored; nullopt if there is none of this name.
std::optional<std::string> SettingText(SettingsRecords& records, std::string_view name);

/// Sets a setting from text, and clamps it to the range that the dialogs allow. Returns a message
/// if the name or the value is invalid; then nothing is changed.
std::optional<std::string> ChangeSetting(SettingsRecords& records, std::string_view name,
                                         std::string_view value);

/// Calls `take` with the names within the record, and the texts, of all settings of the universe
/// (`record` is ""), of the advanced settings ("Advanced"), of profile 7 ("Starfold7") or composite
/// 3
/// ("CompFold3"). False if there is no such record.
using TakeSetting = std::function<void(const std::string& name, const std::string& text)>;
bool ForEachSetting(SettingsRecords& records, std::string_view record, const TakeSetting& take);

}  // namespace starfolds::web
