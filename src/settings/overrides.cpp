#include "settings/overrides.h"

#include <algorithm>
#include <vector>

#include "numbers/text.h"
#include "settings/fields.h"
#include "settings/registry.h"
#include "settings/storage.h"

namespace starfolds {
namespace {

/// Copies the value `key` of `section` if there is one.
void CopyValue(KeyValueTree& from, KeyValueTree& to, std::string_view section,
               std::string_view key) {
  // No stored text holds a NUL.
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

/// Copies what a good `name` stands for among the sections of all records.
void CopyNamed(KeyValueTree& from, KeyValueTree& to, std::string_view name) {
  const std::size_t slash = name.find_first_of("/\\");
  if (slash != std::string_view::npos) {
    return CopyValue(from, to, SectionOf(name.substr(0, slash)), name.substr(slash + 1));
  }
  CopyValue(from, to, sections::kUniverse, name);
  CopyValue(from, to, sections::kAdvanced, name);
  for (int i = 0; i < kProfileCount; ++i) CopyValue(from, to, ProfileSection(i), name);
}

}  // namespace

/// The text that is stored for a value is the matter of those who save records.
void OverriddenTree::Override(std::span<const std::pair<std::string, std::string>> changes) {
  const auto records = std::make_unique<SettingsRecords>();
  // Only members that count are saved.
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
  if (auto text = beginning_.Read(hive, path, name)) return text;
  return stored_.Read(hive, path, name);
}

bool OverriddenTree::Write(Hive hive, std::string_view path, std::string_view name,
                           std::string_view text) {
  if (!stored_.Write(hive, path, name, text)) return false;
  if (beginning_.Read(hive, path, name)) beginning_.Write(hive, path, name, text);
  return true;
}

bool OverriddenTree::DeleteKey(Hive hive, std::string_view path) {
  return stored_.DeleteKey(hive, path);
}

bool OverriddenTree::Begin(Access access) {
  const auto begin = [access](KeyValueTree& tree) {
    return new TreeBulk(access == Access::Look ? TreeBulk::Look(tree) : TreeBulk::Change(tree));
  };
  bulk_.reset(begin(stored_));
  beginningBulk_.reset(begin(beginning_));
  return bulk_->Begun();
}

bool OverriddenTree::End(bool keep) {
  const bool stored = keep && bulk_->Commit();
  bulk_.reset();
  if (stored) beginningBulk_->Commit();
  beginningBulk_.reset();
  return stored;
}

}  // namespace starfolds
