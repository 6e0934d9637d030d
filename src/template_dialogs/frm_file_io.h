// `frmFileIO`: the program's own file dialog, for templates.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "template_dialogs/template_folders.h"
#include "widgets/picture_box.h"
#include "widgets/placed_dialog.h"
#include "platform/message_boxes.h"

class QGridLayout;

namespace starfolds {

/// Loads or saves the file of a path, and shows in the picture how far it has come. Gives a reason
/// for the user where it cannot.
using TemplateAction =
    std::function<std::optional<std::string>(const std::string& path, ProgressPicture* picture)>;

struct FileIoSurroundings {
  KeyValueTree& Tree;  // remembers the folder
  Help& HelpBook;
  MessageBoxes& Boxes;
  std::string ProgramFolder;
  TemplateAction Load;
  TemplateAction Save;
};

/// What a user is told whose template cannot be loaded, or saved.
std::string TemplateFaultText(bool open, const std::string& path, const std::string& reason);

class FrmFileIo : public PlacedDialog {
  Q_OBJECT

 public:
  explicit FrmFileIo(const FileIoSurroundings& surroundings, QWidget* parent = nullptr);

  /// Shows the dialog and waits until the user has chosen a file to open, or a name to save under.
  /// With `action` it also loads or saves, and stays open where that fails. `fileTypes` are pairs
  /// of a description and a pattern, "|" behind each of them; `extension` goes behind a name
  /// without a dot. Empty: nothing was chosen.
  std::string ChooseTemplate(bool open, bool action, const QString& title, const QString& fileTypes,
                             const QString& extension);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class FolderDelegate;

  void MakeControls();
  void LayOut();
  void AddNameColumn(QGridLayout& grid);
  void AddFolderColumn(QGridLayout& grid);
  void ConnectControls();

  void SetFileTypes(const QString& fileTypes);
  void EnterFirstFolder();
  bool EnterFolder(const QString& folder);
  bool EnterOrSay(const QString& folder);
  void ShowFolders(const QStringList& subfolders);
  void ShowFiles(const QStringList& files);
  void OpenSelectedFolder();
  void ReadAgain() { EnterFolder(folder_); }
  const QString& Root(int i) const { return roots_[static_cast<std::size_t>(i)].Path; }

  void Ok();
  bool EnterTypedFolder(const QString& typed);
  void TakeForOpening(const QString& typed);
  void TakeForSaving(const QString& typed);
  void Take(const QString& path);
  void StoreFolder();
  void FocusName();
  void Inform(const std::string& text);
  /// What was typed is no good.
  void Refuse(const std::string& text);

  FileIoSurroundings around_;
  bool open_ = true;     // bOpen
  bool action_ = false;  // bAction
  QString extension_;    // sFileExtension
  std::string selectedPath_;

  QString templates_;              // the folder of the program's own; empty: there is none
  std::vector<FolderRoot> roots_;  // the entries of drvTemp
  QString folder_;                 // that is shown
  QStringList way_;                // the first entries of dirTemp: from the root to that folder
  FolderDelegate* folderDelegate_;
  QComboBox* drvTemp_;
  QListWidget* dirTemp_;
  QListWidget* filTemp_;
  QLineEdit* txtFile_;
  QComboBox* cboTypes_;
  QComboBox* cboFilter_;  // hidden: the patterns of the entries of cboTypes
  QLabel* lblReplaces_;
  QLabel* lblStatus_;
  PictureBox* picStatus_;
  QPushButton* cmdOK_;
  QPushButton* cmdDismiss_;
};

}  // namespace starfolds
