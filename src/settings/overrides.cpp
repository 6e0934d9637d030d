#include "settings/overrides.h"

#include <algorithm>
#include <vector>

#include "numbers/text.h"
#include "settings/fields.h"
#include "settings/registry.h"
#include "settings/stored_records.h"

namespace starfolds {
namespace {

/// Copies the value `key` of `section` if there is one.
void CopyValue(KeyValueTree& from, KeyValueTree& to, std::string_view section,
               std::string_view key) {
  // A stored text never contains NUL, so this one means that the value is missing.
  static constexpr std::string_view missing("\0", 1);
  const std::string text = RegistryReadText(from, section, key, missing);
  if (text != missing) RegistryWrite(to, section, key, text);
}

/// The section that "Starfold7" or "CompFold3" names; "Starfold07" is the same.
std::string SectionOf(std::string_view record) {
  const std::size_t digits = std::min(record.find_first_of("0123456789"), record.size());
  const auto number = static_cast<int>(LenientNumber(record.substr(digits)));
  return "Universe\\" + std::string(record.substr(0, digits)) + std::to_string(number);
}

/// Copies the values that a valid `name` denotes, from the sections of all records.
void CopyNamed(KeyValueTree& from, KeyValueTree& to, std::string_view name) {
  const std::size_t slash = name.find_first_of("/\\");
  if (slash != std::string_view::npos) {
    return CopyValue(from, to, SectionOf(name.substr(0, slash)), name.substr(slash + 1));
  }
  CopyValue(from, to, sections::kUniverse, name);
  CopyValue(from, to, sections::kAdvanced, name);
  for (int i = 0; i < kProfileCount; ++i) CopyValue(from, to, ProfileSection(i), name);
}

/// The label of a setting in the dialogs, without range and colon; the stored name if several
/// settings share the label.
std::string NameInWords(std::string_view setting) {
  std::string_view label = setting;
  if (const auto* field = FindField(UniverseFields(), setting)) label = field->Label;
  if (const auto* field = FindField(AdvancedFields(), setting)) label = field->Label;
  label = label.substr(0, label.find(" ("));
  if (label.ends_with(':')) label.remove_suffix(1);
  return std::string(label);
}

}  // namespace

std::optional<std::string> LayeredTree::Read(Hive hive, std::string_view path,
                                             std::string_view name) {
  return below_.Read(hive, path, name);
}

bool LayeredTree::Write(Hive hive, std::string_view path, std::string_view name,
                        std::string_view text) {
  return below_.Write(hive, path, name, text);
}

bool LayeredTree::DeleteKey(Hive hive, std::string_view path) {
  return below_.DeleteKey(hive, path);
}

bool LayeredTree::Begin(Access access) {
  bulk_.reset(access == Access::Look ? new TreeBulk(TreeBulk::Look(below_))
                                     : new TreeBulk(TreeBulk::Change(below_)));
  return bulk_->Begun();
}

bool LayeredTree::End(bool keep) {
  const bool ended = keep && bulk_->Commit();
  bulk_.reset();
  return ended;
}

std::optional<std::string> BeginningTree::Read(Hive hive, std::string_view path,
                                               std::string_view name) {
  if (auto text = values_.Read(hive, path, name)) return text;
  return LayeredTree::Read(hive, path, name);
}

bool BeginningTree::Write(Hive hive, std::string_view path, std::string_view name,
                          std::string_view text) {
  if (!LayeredTree::Write(hive, path, name, text)) return false;
  if (values_.Read(hive, path, name)) values_.Write(hive, path, name, text);
  return true;
}

bool BeginningTree::Begin(Access access) {
  valuesBulk_.reset(new TreeBulk(TreeBulk::Change(values_)));
  return LayeredTree::Begin(access);
}

/// Values that could not be stored below are discarded here as well.
bool BeginningTree::End(bool keep) {
  const bool ended = LayeredTree::End(keep);
  if (ended) valuesBulk_->Commit();
  valuesBulk_.reset();
  return ended;
}

/// Saves the records to a tree in memory, so that the values have the texts as which they are
/// stored.
void OverriddenTree::Override(std::span<const SettingChange> changes) {
  const auto records = std::make_unique<SettingsRecords>();
  // Only the first `CompFold_Count` members are saved.
  for (CompositeProfile& composite : records->Composites) composite.CompFold_Count = kMaxMembers;
  std::vector<std::string_view> names;
  for (const auto& [name, value] : changes) {
    if (!SetByName(*records, name, value)) names.push_back(name);
  }
  MemoryTree saved;
  SaveSettings(saved, *records);
  for (const std::string_view name : names) CopyNamed(saved, overrides_, name);
}

std::optional<std::string> OverriddenTree::Read(Hive hive, std::string_view path,
                                                std::string_view name) {
  if (auto text = overrides_.Read(hive, path, name)) return text;
  return LayeredTree::Read(hive, path, name);
}

std::vector<std::string> ChangesInWords(std::span<const SettingChange> changes) {
  std::vector<std::string> words;
  for (auto change = changes.begin(); change != changes.end(); ++change) {
    const bool changedAgain =
        std::any_of(std::next(change), changes.end(),
                    [&](const SettingChange& later) { return later.first == change->first; });
    if (!changedAgain) words.push_back(NameInWords(change->first) + " = " + change->second);
  }
  return words;
}

}  // namespace starfolds
