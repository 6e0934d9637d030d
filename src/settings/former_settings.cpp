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
  if (auto fault = file.Load(path)) {
    return {UserText(STARFOLDS_TEXT("it cannot be read"), {}, *fault), {}};
  }
  TreeBulk change = TreeBulk::Change(tree);
  if (!change.Begun()) {
    return {UserText(STARFOLDS_TEXT("the stored settings cannot be changed")), {}};
  }
  const KeptCopy copy = KeepFormerSettings(tree, disk, folder);
  if (!copy.Fault.empty()) {
    return {UserText(STARFOLDS_TEXT("your settings cannot be kept as %1"), {Quoted(copy.Path)},
                     copy.Fault),
            {}};
  }
  const bool isFirstAct = !HasMark(tree, kAnimationType);
  EnsureFactoryProfiles(tree);
  auto fault = ImportTemplate(file, path, tree, profiles);
  if (isFirstAct) RegistryWrite(tree, sections::kGeneral, kResetSettings, Long{1});
  if (!change.Commit() || fault) {
    return {UserText(STARFOLDS_TEXT("the settings could not be stored")), {}};
  }
  return {std::nullopt, copy.Path};
}

std::string ImportNote(const std::string& path, const TemplateImport& done,
                       const ShownText& shown) {
  std::string note = shown(
      {STARFOLDS_TEXT("Stored the universe and the advanced settings of %1."), {Quoted(path)}});
  note += "\n";
  if (done.FormerSettings.empty()) {
    note +=
        shown(STARFOLDS_TEXT("To get the factory settings back: starfolds --settings, Edit > Reset "
                             "Properties, Accept Settings."));
  } else {
    note +=
        shown({STARFOLDS_TEXT("Your former settings are kept in %1.\nTo get them back: starfolds "
                              "--settings, File > Open Template, Accept Settings."),
               {Quoted(done.FormerSettings)}});
  }
  note += "\n";
  return note +
         shown(STARFOLDS_TEXT("To look at a template and store nothing: starfolds --window FILE")) +
         "\n";
}

}  // namespace starfolds
