// How the properties dialog comes to its settings and leaves them: first run, upgrade, factory
// reset, loading and accepting. The dialog is behind an interface, so none of this knows a
// widget.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/key_value_tree.h"
#include "platform/message_boxes.h"
#include "settings/factory.h"
#include "settings/fields.h"
#include "settings/records.h"
#include "settings/template_file.h"

namespace starfolds {

/// What the flows work on. The profiles and composites are the ones that the dialog edits.
struct PropertySettings {
  KeyValueTree& Tree;
  ProfileArray& Profiles;
  CompositeArray& Composites;
  TemplateFile& Template;
  Files& Disk;
  MessageBoxes& Boxes;
  std::string ProgramFolder;
  std::string UserFolder;  // takes the safety copy where the program's folder cannot be written
  bool ReplacesUnread = false;  // the tree could not be read when the dialog was opened
};

/// A picture that shows how far a load or save has come.
class ProgressPicture {
 public:
  virtual ~ProgressPicture() = default;
  virtual int ScaleWidth() const = 0;
  /// Fills the picture's full height from the left edge, in 0x00BBGGRR.
  virtual void FillFromLeft(int width, unsigned colour) = 0;
  virtual void Clear() = 0;
};

/// A bar of `step` / `total` of the picture, if there is one.
void DrawProgress(ProgressPicture* picture, int step, int total);

/// What `frmWelcome` says.
struct WelcomePage {
  std::string Caption;
  std::string Text;
  bool OffersReset = false;  // cmdReset
  std::string Dismiss;       // cmdDismiss
};

/// What the flows ask of `frmProps`.
class PropertiesDialog {
 public:
  virtual ~PropertiesDialog() = default;

  /// The text of the control of a universe setting: what is typed, "1" or "0" of a check box, the
  /// position in a list.
  virtual std::string UniverseText(const Field<UniverseSettings>& field) const = 0;
  virtual void SetUniverseText(const Field<UniverseSettings>& field, const std::string& text) = 0;

  // `lstUniStarfold`.
  virtual void ClearProfileList() = 0;
  virtual void AddProfileEntry(std::string_view name, Integer percent) = 0;
  virtual void SelectProfileEntry(int position) = 0;
  /// Anew from the records in memory.
  virtual void RebuildProfileList() = 0;
  virtual void RebuildCompositeLists() = 0;

  /// Positions of `cboUniTheme` and `cboUniExtras`, with all that a change of position does.
  virtual void SelectUniverseTheme(int position) = 0;
  virtual void SelectUniverseExtras(int position) = 0;

  /// `mnuResetProps(menuIndex)`.
  virtual void MarkResetMenu(int menuIndex, bool marked) = 0;
  /// `picPreview`, which shows the progress of a safety copy.
  virtual ProgressPicture* Preview() = 0;

  /// Shows `frmWelcome` and waits until it is dismissed. True: its reset was asked for, and
  /// `SaveSafetyCopy` was called from it.
  virtual bool ShowWelcomeDialog(const WelcomePage& page) = 0;
};

/// For somebody who has settings of an earlier version, or for a new user.
WelcomePage MakeWelcomePage(bool isUpgrade);

/// What the stored tree held when the dialog read it.
struct StoredProperties {
  bool Readable = false;        // if not, nothing is known of the others
  bool Complete = false;        // has the mark `kAnimationType`
  bool WelcomeOffered = false;  // has the mark `kResetSettings`
};

/// Reads the universe, the profiles and the composites from one state of the tree, and shows them
/// in the dialog. A tree that is damaged, locked or forbidden leaves the factory's settings there.
StoredProperties LoadDialogFromRegistry(PropertySettings& settings, PropertiesDialog& dialog);

/// The end of `frmProps`'s load, when it shows what `LoadDialogFromRegistry` has found: says what
/// has to be said, and resets a tree that is not complete.
void OpenProperties(PropertySettings& settings, PropertiesDialog& dialog,
                    const StoredProperties& stored);

/// Marks that the welcome was offered, shows it and does what the user decides.
void ShowWelcome(PropertySettings& settings, PropertiesDialog& dialog,
                 const StoredProperties& stored);

/// Puts the factory's settings into the dialog and the records. The tree gets the advanced values
/// only; the rest when the dialog is accepted.
void FactoryReset(PropertySettings& settings, PropertiesDialog& dialog, FactorySet set);

/// Stores what the dialog and the records hold: all of it, or nothing. Where it cannot be stored
/// a message box says so, and the result is false.
bool SaveDialogToRegistry(PropertySettings& settings, PropertiesDialog& dialog);

/// Asks what to do with settings that could not be stored: "try again", "save as a template",
/// "close", or "cancel", which leaves the dialog as it is.
BoxAnswer AskAfterFailedSave(PropertySettings& settings);

/// Entry 0 ("Starfolds 2.0") or 2 ("Starfolds 4.x") of the Edit menu's reset: asks, saves a safety
/// copy if wanted, resets.
void ResetFromMenu(PropertySettings& settings, PropertiesDialog& dialog, int menuIndex);

/// Writes "propsave.sfd" from the dialog and the records. If that fails, a message box says so.
void SaveSafetyCopy(PropertySettings& settings, PropertiesDialog& dialog, ProgressPicture* picture);

/// Where the safety copy goes: the program's folder, or the user's if that cannot be written.
std::string SafetyCopyPath(PropertySettings& settings);

/// Writes the dialog's values, the records and the stored advanced values to `TemplateFileName`.
/// Gives a reason for the user where it cannot.
std::optional<std::string> SaveTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture);

/// Loads the file `TemplateFileName` into the dialog and the records. The advanced values go
/// straight to the tree, and a later "Cancel" does not bring them back. Gives a reason for the user
/// where the file cannot be read; then nothing is changed.
std::optional<std::string> LoadTemplate(PropertySettings& settings, PropertiesDialog& dialog,
                                        ProgressPicture* picture);

}  // namespace starfolds
