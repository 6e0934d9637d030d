// Reads and writes whole records of template files.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/key_value_tree.h"
#include "settings/records.h"
#include "settings/template_file.h"

namespace starfolds {

/// Steps of a progress bar over a load or a save: one for each profile and composite.
inline constexpr int kTemplateSteps = kBodyCount;
/// Called with the number of steps done, of `kTemplateSteps`.
using TemplateProgress = std::function<void(int step)>;

/// "UniFold<i>" and "CompFold<i>".
std::string ProfileTemplateSection(int index);
std::string CompositeTemplateSection(int index);

/// Copies a value as text between the user's tree and the template; writes `fallback` if it is
/// missing. Texts too long for the tree are cut.
void CopyRegistryToTemplate(KeyValueTree& tree, TemplateFile& file, std::string_view section,
                            std::string_view key, std::string_view fallback);
void CopyTemplateToRegistry(TemplateFile& file, KeyValueTree& tree, std::string_view section,
                            std::string_view key, std::string_view fallback);

/// Copies the advanced values that templates contain between the file and the user's tree.
void CopyAdvancedToTemplate(KeyValueTree& tree, TemplateFile& file);
/// False if none of them was stored.
bool CopyAdvancedFromTemplate(TemplateFile& file, KeyValueTree& tree);

/// One record, unclamped. Missing values get the defaults, except weights and counts, which get 0.
StarfoldProfile LoadProfileFromTemplate(TemplateFile& file, int index, std::string_view section);
CompositeProfile LoadCompositeFromTemplate(TemplateFile& file, int index, std::string_view section);
/// In a template a missing check box is off, and a missing universe profile is the first one.
UniverseSettings LoadUniverseFromTemplate(TemplateFile& file);

void SaveProfileToTemplate(TemplateFile& file, const StarfoldProfile& profile,
                           std::string_view section);
void SaveCompositeToTemplate(TemplateFile& file, const CompositeProfile& composite,
                             std::string_view section);

/// All profiles and composites, clamped.
void LoadBodiesFromTemplate(TemplateFile& file, ProfileArray& profiles, CompositeArray& composites,
                            const TemplateProgress& progress);

/// Writes the whole file under `TemplateFileName`: the advanced values as the user's tree has them,
/// the given records, clamped. Returns a reason for the user if that fails.
std::optional<std::string> WriteTemplate(TemplateFile& file, KeyValueTree& tree,
                                         const UniverseSettings& universe, ProfileArray& profiles,
                                         CompositeArray& composites,
                                         const TemplateProgress& progress);

/// Reads all records of the template at `path`, for a run that stores nothing. Returns a reason for
/// the user if it cannot be read; then `records` is unchanged.
std::optional<std::string> ReadTemplate(TemplateFile& file, const std::string& path,
                                        SettingsRecords& records);

/// Stores all of the template at `path` in a tree, in place of all settings. Returns a reason
/// for the user if it cannot be read or stored; then nothing is stored.
std::optional<std::string> StoreTemplate(TemplateFile& file, const std::string& path,
                                         KeyValueTree& tree);

/// The import from the command line: the template's universe and advanced values are stored in the
/// user's tree unchanged, its profiles only in memory. Profiles and composites in the tree stay, so
/// the following run shows the template's universe with the user's bodies. Returns a reason if the
/// file cannot be read or the values cannot be stored; then nothing is written.
std::optional<std::string> ImportTemplate(TemplateFile& file, const std::string& path,
                                          KeyValueTree& tree, ProfileArray& profiles);

}  // namespace starfolds
