// Reads and writes whole records of the stored tree. A value that is missing or not a number gives
// the default; a value out of range is clamped.
#pragma once

#include <string>

#include "platform/key_value_tree.h"
#include "settings/records.h"
#include "settings/registry.h"

namespace starfolds {

/// "Universe\Starfold<i>" and "Universe\CompFold<i>".
std::string ProfileSection(int index);
std::string CompositeSection(int index);

/// The values of section "Universe", as stored: a run clamps them after it has scaled them.
UniverseSettings LoadUniverseFromRegistry(KeyValueTree& tree,
                                          RootSelector root = RootSelector::CurrentUser);
/// The values of section "Advanced", clamped.
AdvancedSettings LoadAdvancedFromRegistry(KeyValueTree& tree);

/// One record, unclamped. `index` gives the default name.
StarfoldProfile LoadProfileFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                        RootSelector root);
CompositeProfile LoadCompositeFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                           RootSelector root);

/// All records, clamped.
void LoadAllProfiles(KeyValueTree& tree, ProfileArray& profiles, RootSelector root);
void LoadAllComposites(KeyValueTree& tree, CompositeArray& composites, RootSelector root);

// Saving goes to the user's hive. Texts that are too long for a value are cut.

void SaveUniverseToRegistry(KeyValueTree& tree, const UniverseSettings& universe);
void SaveAdvancedToRegistry(KeyValueTree& tree, const AdvancedSettings& advanced);
/// The record must have been clamped.
void SaveProfileToRegistry(KeyValueTree& tree, const StarfoldProfile& profile,
                           std::string_view section);
void SaveCompositeToRegistry(KeyValueTree& tree, const CompositeProfile& composite,
                             std::string_view section);
/// Clamps the profiles first.
void SaveAllProfiles(KeyValueTree& tree, ProfileArray& profiles);
void SaveAllComposites(KeyValueTree& tree, const CompositeArray& composites);

/// All settings that a run reads, in one transaction. Loading from a tree that cannot be read gives
/// the defaults; saving returns true if everything was stored.
SettingsRecords LoadSettings(KeyValueTree& tree);
bool SaveSettings(KeyValueTree& tree, SettingsRecords& records);

}  // namespace starfolds
