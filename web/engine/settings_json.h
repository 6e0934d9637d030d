// The table of all settings for the page, as JSON: `SettingsTable` of web/src/engine/protocol.ts.
#pragma once

#include <string>
#include <string_view>

namespace starfolds::web {

/// Made from the field table, the rows of the dialogs and the facts of the styles.
std::string SettingsTableJson();

/// A text in double quotes, with escapes. Bytes that are not UTF-8 are replaced.
std::string JsonText(std::string_view text);

}  // namespace starfolds::web
