// What is done before settings are read: importing those of an earlier version, and storing the
// factory's bodies in an empty tree.
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

/// Takes over, once, what an earlier version stored in another tree, such as the registry of
/// Windows: the user's settings as they are or, if that tree has none, those of the machine, like
/// `MigrateMachineSettings`. Nothing is changed in `earlier`. All is stored in one transaction; if
/// that fails, the next start tries again.
void ImportEarlierSettings(KeyValueTree& tree, KeyValueTree& earlier);

/// The settings of a run that stores nothing: the user's, with the factory's bodies if the tree is
/// incomplete or could not be read as a whole.
SettingsRecords SettingsToShow(KeyValueTree& tree);

/// Writes the factory's bodies to a user's tree that is incomplete. It stays marked as incomplete
/// until the properties dialog is first opened. False if the tree is incomplete and cannot be
/// written: a run from it would show only defaults.
bool EnsureFactoryProfiles(KeyValueTree& tree);

}  // namespace starfolds
