#include "settings/property_flows.h"

#include <memory>

#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/first_run.h"
#include "settings/former_settings.h"
#include "settings/product.h"
#include "settings/registry.h"
#include "settings/safety_copy.h"
#include "settings/stored_records.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

constexpr unsigned kProgressColour = 0xFFFF00;

/// The values in the dialog's controls. Numbers are parsed leniently, so every text is one.
UniverseSettings UniverseOnDialog(const PropertiesDialog& dialog) {
  UniverseSettings universe;
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    const std::string text = dialog.UniverseText(field);
    if (std::holds_alternative<std::string UniverseSettings::*>(field.Where)) {
      SetFieldText(universe, field, Trimmed(text));
    } else {
      SetFieldNumber(universe, field, LenientNumber(text));
    }
  }
  return universe;
}

void ShowUniverse(PropertiesDialog& dialog, const UniverseSettings& universe) {
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    dialog.SetUniverseText(field, FieldText(universe, field));
  }
}

TemplateProgress ProgressOn(ProgressPicture* picture) {
  return [picture](int step) { DrawProgress(picture, step, kTemplateSteps); };
}

void WriteAdvancedDefaults(KeyValueTree& tree) {
  TreeBulk change = TreeBulk::Change(tree);
  for (const Field<AdvancedSettings>& field : AdvancedFields()) {
    if (!field.Odd.InDialog) continue;
    RegistryWrite(tree, sections::kAdvanced, field.Name, DefaultText(field));
  }
  change.Commit();
}

void Warn(PropertySettings& settings, const UserText& text) {
  settings.Boxes.Show(text, BoxStyle::Exclamation, std::string(kProductName));
}

/// The factory set and the name of an entry of the reset menu.
struct ResetEntry {
  FactorySet Set;
  std::string_view Name;
};

ResetEntry EntryOf(int menuIndex) {
  constexpr int entry20 = 0;
  if (menuIndex == entry20) return {FactorySet::Starfolds20, "Starfolds 2.0"};
  return {FactorySet::Starfolds4x, "Starfolds 4.x"};
}

UserText ResetQuestion(PropertySettings& settings, std::string_view setName) {
  if (settings.Disk.CanWriteFolder(settings.ProgramFolder)) {
    return {STARFOLDS_TEXT(
                "Do you really want to reset the Properties to the %1 factory settings?\n\n"
                "Yes      - Save current settings to 'propsave.sfd' then Reset the Properties.\n"
                "No       - Reset Properties without saving current settings.\n"
                "Cancel - Don't Reset or Save Properties."),
            {std::string(setName)}};
  }
  return {STARFOLDS_TEXT(
              "Do you really want to reset the Properties to the %1 factory settings?\n\n"
              "Yes      - Save current settings to 'propsave.sfd' then Reset the Properties.\n"
              "No       - Reset Properties without saving current settings.\n"
              "Cancel - Don't Reset or Save Properties.\n\n"
              "'propsave.sfd' will be saved in:  %2"),
          {std::string(setName), settings.UserFolder}};
}

constexpr std::string_view kUpgradeText = STARFOLDS_TEXT(
    "It appears that you already have an earlier version of the product.  "
    "In order to experience the new effects in this version, you should "
    "Reset the Properties to the Factory Settings.  \n\n"
    "Your current settings will be saved to the template file:  propsave.sfd\n\n"
    "Restore your settings from the menu:  File-> Open Template.");

constexpr std::string_view kNewUserText = STARFOLDS_TEXT(
    "Thank you for installing %1.   You can use this product to simulate a Universe populated by "
    "several user-defined Starfolds.  "
    "Watch as the camera tours the Universe, visiting the Starfolds based on a trajectory that you "
    "provide.  \n\n"
    "The Factory settings have been optimized for a 400 MHz CPU.\n"
    "Disable mouse-move sensitivity from menu:  Edit-> Advanced Settings.\n"
    "This product is provided 'as is' without warranty of any kind.\n\n"
    "Works on Windows 2000 (and 95, 98, NT4).\n"
    "Settings are stored per the Current User, not the Local Machine.\n"
    "Effects can be displayed on the desktop background.\n"
    "Define Pulsars as a new type of star.\n"
    "Set Starfold randomization values.");

std::string ProductAndVersion() {
  return std::string(kProductName) + " " + std::string(kProductVersion);
}

void ShowRecords(PropertySettings& settings, PropertiesDialog& dialog,
                 const SettingsRecords& records) {
  settings.Profiles = records.Profiles;
  settings.Composites = records.Composites;
  // The universe's profile is a position in the list of bodies, so the lists are filled first.
  dialog.RebuildProfileList();
  dialog.RebuildCompositeLists();
  ShowUniverse(dialog, records.Universe);
}

/// Like `FactoryReset`, but without a change of the tree.
void ShowFactorySettings(PropertySettings& settings, PropertiesDialog& dialog, FactorySet set) {
  LoadFactoryComposites(settings.Composites, set);
  dialog.ClearProfileList();
  for (int row = 0; row < kProfileCount; ++row) {
    dialog.AddProfileEntry(FactoryProfileName(row, set), FactoryProfilePct(row, set));
    LoadFactoryProfile(settings.Profiles[row], set, row);
  }
  dialog.SelectProfileEntry(0);
  // Only a change of the position applies the theme.
  dialog.SelectUniverseTheme(0);
  dialog.SelectUniverseTheme(1);
  dialog.SelectUniverseExtras(0);
}

/// Returns a reason for the user if nothing was stored.
std::optional<UserText> StoreDialog(PropertySettings& settings, const PropertiesDialog& dialog) {
  TreeBulk change = TreeBulk::Change(settings.Tree);
  if (settings.ReplacesUnread) {
    const KeptCopy copy = KeepFormerSettings(settings.Tree, settings.Disk, settings.UserFolder);
    if (!copy.Fault.empty()) {
      return UserText(STARFOLDS_TEXT("The stored settings could not be kept in:\n%1"), {copy.Path},
                      copy.Fault);
    }
  }
  RegistryWrite(settings.Tree, sections::kGeneral, kAnimationType, Long{0});
  SaveUniverseToRegistry(settings.Tree, UniverseOnDialog(dialog));
  SaveAllProfiles(settings.Tree, settings.Profiles);
  SaveAllComposites(settings.Tree, settings.Composites);
  if (change.Commit()) return std::nullopt;
  return UserText(
      STARFOLDS_TEXT("The Property settings cannot be saved.\n\n"
                     "The settings that were stored before are kept."));
}

}  // namespace

void DrawProgress(ProgressPicture* picture, int step, int total) {
  if (picture) picture->FillFromLeft(picture->ScaleWidth() * step / total, kProgressColour);
}

WelcomePage MakeWelcomePage(bool isUpgrade) {
  const UserText caption(STARFOLDS_TEXT("Welcome to %1."), {ProductAndVersion()});
  if (isUpgrade) return {caption, kUpgradeText, true, STARFOLDS_TEXT("Close")};
  return {caption, UserText(std::string(kNewUserText), {ProductAndVersion()}), false,
          STARFOLDS_TEXT("OK")};
}

StoredProperties LoadDialogFromRegistry(PropertySettings& settings, PropertiesDialog& dialog) {
  KeyValueTree& tree = settings.Tree;
  TreeBulk look = TreeBulk::Look(tree);
  StoredProperties stored{.Complete = HasMark(tree, kAnimationType),
                          .WelcomeOffered = HasMark(tree, kResetSettings)};
  const auto records = std::make_unique<SettingsRecords>(LoadSettings(tree));
  stored.Readable = look.Commit();
  settings.ReplacesUnread = !stored.Readable;
  if (stored.Readable) {
    ShowRecords(settings, dialog, *records);
  } else {
    ShowFactorySettings(settings, dialog, FactorySet::Starfolds4x);
  }
  return stored;
}

/// A tree that cannot be read is not an empty one: taken for that, it would be overwritten with the
/// factory's settings.
void OpenProperties(PropertySettings& settings, PropertiesDialog& dialog,
                    const StoredProperties& stored) {
  if (!stored.Readable) {
    return Warn(settings, {STARFOLDS_TEXT("The stored settings cannot be read.\n\n"
                                          "The Properties show the Factory Settings.  "
                                          "Accepting them replaces the stored settings,\n"
                                          "which are kept in:  %1"),
                           {settings.UserFolder}});
  }
  if (!stored.WelcomeOffered) return ShowWelcome(settings, dialog, stored);
  if (stored.Complete) return;
  FactoryReset(settings, dialog, FactorySet::Starfolds4x);
  SaveDialogToRegistry(settings, dialog);
}

void ShowWelcome(PropertySettings& settings, PropertiesDialog& dialog,
                 const StoredProperties& stored) {
  RegistryWrite(settings.Tree, sections::kGeneral, kResetSettings, Long{1});
  const bool resetRequested = dialog.ShowWelcomeDialog(MakeWelcomePage(stored.Complete));
  if (resetRequested || !stored.Complete) {
    FactoryReset(settings, dialog, FactorySet::Starfolds4x);
  }
}

void FactoryReset(PropertySettings& settings, PropertiesDialog& dialog, FactorySet set) {
  WriteAdvancedDefaults(settings.Tree);
  ShowFactorySettings(settings, dialog, set);
}

bool SaveDialogToRegistry(PropertySettings& settings, PropertiesDialog& dialog) {
  if (!RegistryWriteTest(settings.Tree, settings.Boxes)) return false;
  if (const auto fault = StoreDialog(settings, dialog)) {
    Warn(settings, *fault);
    return false;
  }
  settings.ReplacesUnread = false;
  return true;
}

BoxAnswer AskAfterFailedSave(PropertySettings& settings) {
  return settings.Boxes.Show(
      STARFOLDS_TEXT("What you have set is not stored yet.  It is still in the dialog.\n\n"
                     "You can try to store it again, for instance after making room on the disk;\n"
                     "save it as a template in another folder, and open that later;\n"
                     "or close the dialog without saving."),
      BoxStyle::SaveFailed, std::string(kProductName));
}

void ResetFromMenu(PropertySettings& settings, PropertiesDialog& dialog, int menuIndex) {
  const std::string former = settings.Template.TemplateFileName;
  const ResetEntry entry = EntryOf(menuIndex);
  dialog.MarkResetMenu(menuIndex, true);
  const BoxAnswer answer =
      settings.Boxes.Show(ResetQuestion(settings, entry.Name), BoxStyle::YesNoCancelQuestion,
                          std::string(kProductName));
  if (answer == BoxAnswer::Yes) SaveSafetyCopy(settings, dialog, dialog.Preview());
  if (answer != BoxAnswer::Cancel) FactoryReset(settings, dialog, entry.Set);
  if (answer == BoxAnswer::Yes && dialog.Preview()) dialog.Preview()->Clear();
  settings.Template.TemplateFileName = former;
  dialog.MarkResetMenu(menuIndex, false);
}

std::optional<std::string> SaveTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture) {
  return WriteTemplate(settings.Template, settings.Tree, UniverseOnDialog(dialog),
                       settings.Profiles, settings.Composites, ProgressOn(picture));
}

std::optional<std::string> LoadTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture) {
  TemplateFile& file = settings.Template;
  if (auto fault = file.Load()) return fault;
  const bool advancedStored = CopyAdvancedFromTemplate(file, settings.Tree);
  ShowUniverse(dialog, LoadUniverseFromTemplate(file));
  LoadBodiesFromTemplate(file, settings.Profiles, settings.Composites, ProgressOn(picture));
  dialog.RebuildProfileList();
  dialog.RebuildCompositeLists();
  file.ClearBuffer();
  if (!advancedStored) {
    Warn(settings, STARFOLDS_TEXT(
                       "The Advanced Settings of the template cannot be stored.\n\nThose that were "
                       "stored before are kept."));
  }
  return std::nullopt;
}

}  // namespace starfolds
