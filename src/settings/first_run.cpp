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

void CopyPlainValues(KeyValueTree& tree) {
  CopyMachineValueToUser(tree, sections::kMain, "WindowState", "0");
  CopyMachineValueToUser(tree, sections::kMain, "WindowSize", {});
  for (const Setting<A>& setting : kEarlierAdvanced) {
    const Field<A>& field = FieldOf(setting);
    CopyMachineValueToUser(tree, sections::kAdvanced, field.Name, DefaultText(field));
  }
  static constexpr Moved<U> listLast[] = {{&U::Universe_GS_Idx, &U::Universe_GravFrame}};
  for (const Field<UniverseSettings>* field : OrderOf<U>(UniverseFields(), listLast)) {
    CopyMachineValueToUser(tree, sections::kUniverse, field->Name, DefaultText(*field));
  }
}

void CopyRecords(KeyValueTree& tree) {
  const auto records = std::make_unique<SettingsRecords>();
  LoadAllProfiles(tree, records->Profiles, RootSelector::LocalMachine);
  LoadAllComposites(tree, records->Composites, RootSelector::LocalMachine);
  SaveAllProfiles(tree, records->Profiles);
  SaveAllComposites(tree, records->Composites);
}

}  // namespace

bool HasMark(KeyValueTree& tree, std::string_view mark) {
  return HasMarkIn(tree, mark, RootSelector::CurrentUser);
}

void MigrateMachineSettings(KeyValueTree& tree) {
  if (!HasMarkIn(tree, kAnimationType, RootSelector::LocalMachine)) return;
  TreeBulk change = TreeBulk::Change(tree);
  if (!change.Begun() || HasMark(tree, kAnimationType)) return;
  CopyPlainValues(tree);
  CopyRecords(tree);
  RegistryWrite(tree, sections::kGeneral, kAnimationType, Long{0});
  change.Commit();
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
