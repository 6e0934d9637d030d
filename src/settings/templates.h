// The settings records on their way to and from template files.
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

/// Copies a value as text between the user's tree and the template; a missing one arrives as
/// `fallback`. Texts too long for the tree are cut.
void CopyRegistryToTemplate(KeyValueTree& tree, TemplateFile& file, std::string_view section,
                            std::string_view key, std::string_view fallback);
void CopyTemplateToRegistry(TemplateFile& file, KeyValueTree& tree, std::string_view section,
                            std::string_view key, std::string_view fallback);

/// The advanced values that templates hold, between the file and the user's tree.
void CopyAdvancedToTemplate(KeyValueTree& tree, TemplateFile& file);
/// False: none of them was stored.
bool CopyAdvancedFromTemplate(TemplateFile& file, KeyValueTree& tree);

/// One record, unclamped. Missing values are the defaults, but for weights and counts, which are 0.
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
/// the records as they are given, clamped. Gives a reason for the user where it could not.
std::optional<std::string> WriteTemplate(TemplateFile& file, KeyValueTree& tree,
                                         const UniverseSettings& universe, ProfileArray& profiles,
                                         CompositeArray& composites,
                                         const TemplateProgress& progress);

/// Every record of the template at `path`, for a run that stores nothing. Gives a reason for the
/// user where it cannot be read; then `records` is as it was.
std::optional<std::string> ReadTemplate(TemplateFile& file, const std::string& path,
                                        SettingsRecords& records);

/// Stores all of the template at `path` in a tree, as if its user had always had it. Gives a reason
/// for the user where it cannot be read or stored; then nothing is stored.
std::optional<std::string> StoreTemplate(TemplateFile& file, const std::string& path,
                                         KeyValueTree& tree);

/// The route of the command line: the template's universe and advanced values go to the user's tree
/// as they are, its profiles to memory. Profiles and composites in the tree stay, so the run that
/// follows shows the template's universe over the bodies that the user has. Gives a reason where
/// the file cannot be read or the values cannot be stored; then nothing is written.
std::optional<std::string> ImportTemplate(TemplateFile& file, const std::string& path,
                                          KeyValueTree& tree, ProfileArray& profiles);

}  // namespace starfolds
