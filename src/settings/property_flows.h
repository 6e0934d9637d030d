// Loading, accepting and resetting the settings of the properties dialog, also in the first run and
// after an upgrade. Uses the dialog through an interface, without widgets.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/key_value_tree.h"
#include "platform/message_boxes.h"
#include "platform/user_text.h"
#include "settings/factory.h"
#include "settings/fields.h"
#include "settings/records.h"
#include "settings/template_file.h"

namespace starfolds {

/// The arguments of the functions below. The profiles and composites are those that the dialog
/// edits.
struct PropertySettings {
  KeyValueTree& Tree;
  ProfileArray& Profiles;
  CompositeArray& Composites;
  TemplateFile& Template;
  Files& Disk;
  MessageBoxes& Boxes;
  std::string ProgramFolder;
  std::string UserFolder;       // for the safety copy, if the program's folder cannot be written
  bool ReplacesUnread = false;  // the tree could not be read when the dialog was opened
};

/// A picture with the progress of a load or save.
class ProgressPicture {
 public:
  virtual ~ProgressPicture() = default;
  virtual int ScaleWidth() const = 0;
  /// Fills the picture's full height from the left edge, in 0x00BBGGRR.
  virtual void FillFromLeft(int width, unsigned colour) = 0;
  virtual void Clear() = 0;
};

/// Draws a bar of `step` / `total` of the picture's width; does nothing for nullptr.
void DrawProgress(ProgressPicture* picture, int step, int total);

/// The texts of `frmWelcome`.
struct WelcomePage {
  UserText Caption;
  UserText Text;
  bool OffersReset;  // cmdReset
  UserText Dismiss;  // cmdDismiss
};

/// `frmProps`, as the functions below use it.
class PropertiesDialog {
 public:
  virtual ~PropertiesDialog() = default;

  /// The text of the control of a universe setting: the typed text, "1" or "0" of a check box, or
  /// the position in a list.
  virtual std::string UniverseText(const Field<UniverseSettings>& field) const = 0;
  virtual void SetUniverseText(const Field<UniverseSettings>& field, const std::string& text) = 0;

  // `lstUniStarfold`.
  virtual void ClearProfileList() = 0;
  virtual void AddProfileEntry(std::string_view name, Integer percent) = 0;
  virtual void SelectProfileEntry(int position) = 0;
  /// Refills the list from the records in memory.
  virtual void RebuildProfileList() = 0;
  virtual void RebuildCompositeLists() = 0;

  /// Select a position of `cboUniTheme` and `cboUniExtras`, with all effects of the change.
  virtual void SelectUniverseTheme(int position) = 0;
  virtual void SelectUniverseExtras(int position) = 0;

  /// `mnuResetProps(menuIndex)`.
  virtual void MarkResetMenu(int menuIndex, bool marked) = 0;
  /// `picPreview`, which shows the progress of a safety copy.
  virtual ProgressPicture* Preview() = 0;

  /// Shows `frmWelcome` until it is dismissed. True if the user chose the reset; then it has called
  /// `SaveSafetyCopy`.
  virtual bool ShowWelcomeDialog(const WelcomePage& page) = 0;
};

/// The page for a user with settings of an earlier version, or for a new user.
WelcomePage MakeWelcomePage(bool isUpgrade);

/// What the stored tree held when the dialog read it.
struct StoredProperties {
  bool Readable = false;        // if false, the others are meaningless
  bool Complete = false;        // has the mark `kAnimationType`
  bool WelcomeOffered = false;  // has the mark `kResetSettings`
};

/// Reads the universe, the profiles and the composites from one state of the tree, and shows them
/// in the dialog. A tree that is damaged, locked or forbidden leaves the factory's settings there.
StoredProperties LoadDialogFromRegistry(PropertySettings& settings, PropertiesDialog& dialog);

/// Called when `frmProps` shows the result of `LoadDialogFromRegistry`: shows the messages that are
/// due, and resets the settings if the tree is incomplete.
void OpenProperties(PropertySettings& settings, PropertiesDialog& dialog,
                    const StoredProperties& stored);

/// Marks that the welcome was offered, shows it, and resets the settings if the user chose that.
void ShowWelcome(PropertySettings& settings, PropertiesDialog& dialog,
                 const StoredProperties& stored);

/// Puts the factory's settings into the dialog and the records. The tree gets the advanced values
/// only; the rest when the dialog is accepted.
void FactoryReset(PropertySettings& settings, PropertiesDialog& dialog, FactorySet set);

/// Stores the values of the dialog and the records, all or none. If that fails, shows a message box
/// and returns false.
bool SaveDialogToRegistry(PropertySettings& settings, PropertiesDialog& dialog);

/// Asks what to do with settings that could not be stored: "try again", "save as a template",
/// "close", or "cancel", which leaves the dialog as it is.
BoxAnswer AskAfterFailedSave(PropertySettings& settings);

/// Entry 0 ("Starfolds 2.0") or 2 ("Starfolds 4.x") of the Edit menu's reset: asks, saves a safety
/// copy if wanted, resets.
void ResetFromMenu(PropertySettings& settings, PropertiesDialog& dialog, int menuIndex);

/// Writes the dialog's values, the records and the stored advanced values to `TemplateFileName`.
/// Returns a reason for the user if that fails.
std::optional<std::string> SaveTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture);

/// Loads the file `TemplateFileName` into the dialog and the records. The advanced values go
/// straight to the tree, and a later "Cancel" does not restore them. Returns a reason for the user
/// if the file cannot be read; then nothing is changed.
std::optional<std::string> LoadTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture);

}  // namespace starfolds
