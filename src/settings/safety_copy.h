// The copy of the settings that is saved before a factory reset.
#pragma once

#include <string>

#include "settings/property_flows.h"

namespace starfolds {

/// Writes "propsave.sfd" from the dialog and the records. If that fails, a message box says so.
void SaveSafetyCopy(PropertySettings& settings, PropertiesDialog& dialog, ProgressPicture* picture);

/// The path of the safety copy: in the program's folder, or in the user's if that cannot be
/// written.
std::string SafetyCopyPath(PropertySettings& settings);

}  // namespace starfolds
