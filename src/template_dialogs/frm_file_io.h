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

#include "platform/message_boxes.h"
#include "platform/user_text.h"
#include "template_dialogs/folder_contents.h"
#include "template_dialogs/template_preview.h"
#include "widgets/picture_box.h"
#include "widgets/placed_dialog.h"

class QGridLayout;

namespace starfolds {

/// Loads or saves the file `path`, and shows the progress in the picture. Returns the reason for
/// the user if it fails.
using TemplateAction =
    std::function<std::optional<std::string>(const std::string& path, ProgressPicture* picture)>;

struct FileIoSurroundings {
  KeyValueTree& Tree;  // stores the last folder
  Help& HelpBook;
  MessageBoxes& Boxes;
  std::string ProgramFolder;
  TemplateAction Load;
  TemplateAction Save;
  // Both or none: without them the contents of the chosen file are not shown.
  Files* Disk = nullptr;
  StillService* Stills = nullptr;
};

/// The message for a template that could not be loaded or saved.
UserText TemplateFaultText(bool open, const std::string& path, const std::string& reason);

class FrmFileIo : public PlacedDialog {
  Q_OBJECT

 public:
  explicit FrmFileIo(const FileIoSurroundings& surroundings, QWidget* parent = nullptr);

  /// Shows the dialog until the user has chosen a file to open, or a name to save under; returns
  /// its path, or empty text if the dialog was cancelled. If `action`, it also loads or saves the
  /// file, and stays open if that fails. `fileTypes` are pairs of a description and a pattern, each
  /// followed by
  /// "|"; `extension` is appended to a name without a dot.
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
  void Inform(const QString& text);
  /// Rejects the typed name with a message.
  void Refuse(const QString& text);

  FileIoSurroundings around_;
  bool open_ = true;     // bOpen
  bool action_ = false;  // bAction
  QString extension_;    // sFileExtension
  std::string selectedPath_;

  QString templates_;              // folder of the program's templates; empty: none
  std::vector<FolderRoot> roots_;  // entries of drvTemp
  QString folder_;                 // the current folder
  QStringList way_;  // the first entries of dirTemp: the folders from the root to `folder_`
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
  TemplatePreview* preview_ = nullptr;
  QPushButton* cmdOK_;
  QPushButton* cmdDismiss_;
};

}  // namespace starfolds
