#include "settings/former_settings.h"

#include <memory>

#include "numbers/text.h"
#include "settings/first_run.h"
#include "settings/registry.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

constexpr int kMostCopies = 99;

std::string CopyPath(const std::string& folder, int number) {
  return folder + "/former-settings-" + std::to_string(number) + ".sfd";
}

std::string StoredAsTemplate(KeyValueTree& tree) {
  MemoryFiles memory;
  TemplateFile file(memory);
  file.TemplateFileName = "stored";
  const auto records = std::make_unique<SettingsRecords>(SettingsToShow(tree));
  WriteTemplate(file, tree, records->Universe, records->Profiles, records->Composites, {});
  return memory.Contents["stored"];
}

}  // namespace

KeptCopy KeepFormerSettings(KeyValueTree& tree, Files& disk, const std::string& folder) {
  const std::string former = StoredAsTemplate(tree);
  MemoryTree empty;
  if (former == StoredAsTemplate(empty)) return {};
  int number = 1;
  for (; number < kMostCopies && disk.Exists(CopyPath(folder, number)); ++number) {
    if (disk.Read(CopyPath(folder, number), kLargestTemplate).Bytes == former) break;
  }
  const std::string path = CopyPath(folder, number);
  if (disk.Read(path, kLargestTemplate).Bytes == former) return {path, {}};
  return {path, disk.Replace(path, former).value_or("")};
}

TemplateImport ImportOverFormerSettings(TemplateFile& file, const std::string& path,
                                        KeyValueTree& tree, ProfileArray& profiles, Files& disk,
                                        const std::string& folder) {
  if (auto fault = file.Load(path)) return {"cannot read it: " + *fault, {}};
  TreeBulk change = TreeBulk::Change(tree);
  if (!change.Begun()) return {"the stored settings cannot be changed", {}};
  const KeptCopy copy = KeepFormerSettings(tree, disk, folder);
  if (!copy.Fault.empty()) {
    return {"your settings cannot be kept as " + Quoted(copy.Path) + ": " + copy.Fault, {}};
  }
  const bool isFirstAct = !HasMark(tree, kAnimationType);
  EnsureFactoryProfiles(tree);
  auto fault = ImportTemplate(file, path, tree, profiles);
  if (isFirstAct) RegistryWrite(tree, sections::kGeneral, kResetSettings, Long{1});
  if (!change.Commit() || fault) return {"the settings could not be stored", {}};
  return {std::nullopt, copy.Path};
}

std::string ImportNote(const std::string& path, const TemplateImport& done) {
  std::string note = "Stored the universe and the advanced settings of " + Quoted(path) + ".\n";
  if (done.FormerSettings.empty()) {
    note +=
        "To get the factory settings back: starfolds --settings, Edit > Reset Properties, Accept "
        "Settings.\n";
  } else {
    note += "Your former settings are kept in " + Quoted(done.FormerSettings) +
            ".\n"
            "To get them back: starfolds --settings, File > Open Template, Accept Settings.\n";
  }
  return note + "To look at a template and store nothing: starfolds --window FILE\n";
}

}  // namespace starfolds
