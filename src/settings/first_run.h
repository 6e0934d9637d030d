// What happens before anything is read: settings of an earlier version are brought over, and a tree
// that is empty gets the factory's bodies.
#pragma once

#include "platform/key_value_tree.h"
#include "settings/records.h"

namespace starfolds {

// The two marks of section "General".
/// Present (always 0) once a complete set of settings is in the user's tree.
inline constexpr std::string_view kAnimationType = "AnimationType";
/// Present (1) once the welcome dialog has been offered to this user.
inline constexpr std::string_view kResetSettings = "ResetSettings";

/// Whether a mark of section "General" is in the user's tree.
bool HasMark(KeyValueTree& tree, std::string_view mark);

/// Copies what an earlier version wrote for the whole machine to the user's tree, once: if the
/// machine's tree is complete and the user's is not.
void MigrateMachineSettings(KeyValueTree& tree);

/// What a run shows without storing anything: the user's settings, with the factory's bodies where
/// the tree is not complete or could not be read as a whole.
SettingsRecords SettingsToShow(KeyValueTree& tree);

/// Writes the factory's bodies to a user's tree that is not complete. The mark is left to the
/// properties dialog, so that its first opening still counts as the first. False where the tree is
/// not complete and cannot be written: a run from it would show the bare defaults.
bool EnsureFactoryProfiles(KeyValueTree& tree);

}  // namespace starfolds
