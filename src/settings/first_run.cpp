#include "settings/first_run.h"

#include <memory>

#include "settings/factory.h"
#include "settings/field_order.h"
#include "settings/fields.h"
#include "settings/registry.h"
#include "settings/stored_records.h"

namespace starfolds {
namespace {

bool HasMarkIn(KeyValueTree& tree, std::string_view mark, RootSelector root) {
  constexpr Integer missing = -1;
  return RegistryReadInteger(tree, sections::kGeneral, mark, missing, root) != missing;
}

/// The values of section "Advanced" that earlier versions stored.
using A = AdvancedSettings;
using U = UniverseSettings;
constexpr Setting<A> kEarlierAdvanced[] = {&A::FocalLength,   &A::Adv_TimeDelay, &A::Adv_FontName,
                                           &A::Adv_FontSize,  &A::Adv_FontHueV,  &A::LockMessage,
                                           &A::Adv_MouseMove, &A::Adv_DispBackG, &A::Adv_WinResize};

/// The sections with the place of a window.
constexpr std::string_view kPlaces[] = {sections::kGeneral,       sections::kMain,
                                        sections::kLevelsPlace,   sections::kIfsPlace,
                                        sections::kAtomicsPlace,  sections::kAdvancedPlace,
                                        sections::kTemplatePlace, sections::kSystemDiagPlace};

/// The values outside of the records, from the user's hive.
void CopyUserValues(KeyValueTree& tree, KeyValueTree& from) {
  for (const std::string_view place : kPlaces) {
    CopyUserValue(tree, from, place, "WindowState");
    CopyUserValue(tree, from, place, "WindowSize");
  }
  CopyUserValue(tree, from, sections::kTemplate, "Path_Drive");
  CopyUserValue(tree, from, sections::kTemplate, "Path_Dir");
  for (const Field<A>& field : AdvancedFields()) {
    CopyUserValue(tree, from, sections::kAdvanced, field.Name);
  }
  for (const Field<U>& field : UniverseFields()) {
    CopyUserValue(tree, from, sections::kUniverse, field.Name);
  }
  CopyUserValue(tree, from, sections::kGeneral, kResetSettings);
}

/// The same from the machine's hive, where earlier versions stored fewer.
void CopyMachineValues(KeyValueTree& tree, KeyValueTree& from) {
  CopyMachineValueToUser(tree, from, sections::kMain, "WindowState", "0");
  CopyMachineValueToUser(tree, from, sections::kMain, "WindowSize", {});
  for (const Setting<A>& setting : kEarlierAdvanced) {
    const Field<A>& field = FieldOf(setting);
    CopyMachineValueToUser(tree, from, sections::kAdvanced, field.Name, DefaultText(field));
  }
  static constexpr Moved<U> listLast[] = {{&U::Universe_GS_Idx, &U::Universe_GravFrame}};
  for (const Field<UniverseSettings>* field : OrderOf<U>(UniverseFields(), listLast)) {
    CopyMachineValueToUser(tree, from, sections::kUniverse, field->Name, DefaultText(*field));
  }
}

void CopyRecords(KeyValueTree& tree, KeyValueTree& from, RootSelector root) {
  const auto records = std::make_unique<SettingsRecords>();
  LoadAllProfiles(from, records->Profiles, root);
  LoadAllComposites(from, records->Composites, root);
  SaveAllProfiles(tree, records->Profiles);
  SaveAllComposites(tree, records->Composites);
}

/// Copies the settings of one hive of `from`, if they are complete and the user's are not.
void TakeOver(KeyValueTree& tree, KeyValueTree& from, RootSelector root) {
  if (!HasMarkIn(from, kAnimationType, root) || HasMark(tree, kAnimationType)) return;
  // Checked again inside the transaction: a tree that could not be read before must not be treated
  // as an empty one.
  TreeBulk change = TreeBulk::Change(tree);
  if (!change.Begun() || HasMark(tree, kAnimationType)) return;
  if (root == RootSelector::CurrentUser) {
    CopyUserValues(tree, from);
  } else {
    CopyMachineValues(tree, from);
  }
  CopyRecords(tree, from, root);
  RegistryWrite(tree, sections::kGeneral, kAnimationType, Long{0});
  change.Commit();
}

}  // namespace

bool HasMark(KeyValueTree& tree, std::string_view mark) {
  return HasMarkIn(tree, mark, RootSelector::CurrentUser);
}

void MigrateMachineSettings(KeyValueTree& tree) {
  TakeOver(tree, tree, RootSelector::LocalMachine);
}

void ImportEarlierSettings(KeyValueTree& tree, KeyValueTree& earlier) {
  const bool hasUsers = HasMarkIn(earlier, kAnimationType, RootSelector::CurrentUser);
  TakeOver(tree, earlier, hasUsers ? RootSelector::CurrentUser : RootSelector::LocalMachine);
}

SettingsRecords SettingsToShow(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  SettingsRecords records = LoadSettings(tree);
  const bool isComplete = HasMark(tree, kAnimationType);
  if (!look.Commit() || !isComplete) LoadFactorySet(records, FactorySet::Starfolds4x);
  return records;
}

bool EnsureFactoryProfiles(KeyValueTree& tree) {
  if (HasMark(tree, kAnimationType)) return true;
  // Checked again inside the transaction: a tree that could not be read before must not be treated
  // as an empty one.
  TreeBulk change = TreeBulk::Change(tree);
  if (!change.Begun()) return false;
  if (!HasMark(tree, kAnimationType)) {
    const auto records = std::make_unique<SettingsRecords>();
    LoadFactorySet(*records, FactorySet::Starfolds4x);
    SaveAllProfiles(tree, records->Profiles);
    SaveAllComposites(tree, records->Composites);
  }
  return change.Commit();
}

}  // namespace starfolds
