// `frmProps`: the properties dialog, the main window of the configuration.
#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <functional>
#include <memory>
#include <vector>

#include "body_editors/body_editor.h"
#include "platform/files.h"
#include "properties/preview_pane.h"
#include "properties/starfold_view.h"
#include "properties/undo_menu.h"
#include "properties/universe_view.h"
#include "settings/property_flows.h"
#include "template_dialogs/template_menu.h"
#include "widgets/dialog_model.h"
#include "widgets/elided_label.h"
#include "widgets/still_service.h"
#include "widgets/watchful_pump.h"

namespace starfolds {

/// The arguments of the dialog. All references must outlive it.
struct PropsSurroundings {
  ProcessState& Process;  // the state of the process: its pump and flags
  KeyValueTree& Tree;     // the edited settings, below those that override them for this run
  MessageBoxes& Boxes;
  Files& Disk;
  Help& HelpBook;
  std::string ProgramFolder;
  std::string UserFolder;
  std::function<std::uint64_t()> Seed;  // of each preview
  QWindow* Owner = nullptr;             // blocked while the dialog is open
  std::string HomePage = {};            // address of the project's page; empty if it has none
  std::string SharePage = {};           // of the page that links show a universe in; or empty
  /// Show dialogs of other layers; they return when these are closed.
  std::function<void(QWidget& over)> ShowDiagnostics = nullptr;
  std::function<void(QWidget& over)> ShowAbout = nullptr;
  std::vector<std::string> Overrides = {};  // the settings that override the edited ones, as texts
};

/// Edits the universe in its controls and the bodies in memory; nothing reaches the stored tree
/// before "Accept Settings". It has a `ProcessState` of its own for records and previews, so that a
/// run of the same process, which waits in its pump meanwhile, is not affected.
class FrmProps : public QMainWindow, private PropertiesDialog, private PropsBoxes {
  Q_OBJECT

 public:
  explicit FrmProps(const PropsSurroundings& surroundings);
  ~FrmProps() override;

  /// Shows the dialog, with the messages that are due at its opening, and returns when it is
  /// closed.
  void ShowModal();

  /// The two steps of `Run`, for tests, which run the events themselves.
  void Open();
  bool IsOpen() const { return open_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // Entries of `mnuResetProps`; with a separator between them.
  static constexpr int kReset20 = 0;
  static constexpr int kReset4x = 2;

  // `PropertiesDialog`.
  std::string UniverseText(const Field<UniverseSettings>& field) const override;
  void SetUniverseText(const Field<UniverseSettings>& field, const std::string& text) override;
  void ClearProfileList() override;
  void AddProfileEntry(std::string_view name, Integer percent) override;
  void SelectProfileEntry(int position) override;
  void RebuildProfileList() override;
  void RebuildCompositeLists() override;
  void SelectUniverseTheme(int position) override;
  void SelectUniverseExtras(int position) override;
  void MarkResetMenu(int menuIndex, bool marked) override;
  ProgressPicture* Preview() override;
  bool ShowWelcomeDialog(const WelcomePage& page) override;

  // `PropsBoxes`.
  UniverseSettings UniverseOnDialog() const override { return universe_->Settings(); }
  void SetStarfoldBox(int index, const std::string& text) override {
    starfold_->SetBox(index, text);
  }

  void Settle();
  void SelectShownBody();
  EditedSettings CaptureSettings() const;
  void ShowSettings(const EditedSettings& settings);
  void ShowWhatIsChanged();
  UndoHost MakeUndoHost();
  void ConnectChanges();
  void Reset(int menuIndex);
  TemplateHost MakeTemplateHost();
  void MakeMenus();
  Integer TopicHere() const;
  void ShowHomePage();
  void MakeCentre();
  PreviewPane* MakePreviewPane();
  QWidget* MakeButtons();
  void ConnectParts();
  int LeastFormWidth() const;
  void PlacePreview();
  QWidget* MakeOverridesNote();
  QWidget* MakeBodySteps();
  void MakeStatusLine();
  void Say(const QString& text) { lblStatus_->setText(text); }

  void OpenStarfoldView(bool open);
  void ShowBodyPlace();
  void StepBody(int by);
  void TurnPages(int by);
  void PressDefault();
  void Accept();
  bool Store();
  bool MayClose();
  void CloseUnasked();
  void Exit();
  void ApplyTheme(int position);
  void SurpriseMe();
  template <class Editor>
  void RunEditor();

  void PreviewSelectedComposite();
  PreviewSource::Body IdleBody() const;

  PropsSurroundings around_;
  std::unique_ptr<ProcessState> editing_;  // the edited records and their previews
  std::unique_ptr<WatchfulPump> events_;
  StillService stills_;
  PropsModel model_;
  TemplateFile template_;
  PropertySettings settings_;
  TemplateMenu templates_;

  UndoMenu undo_;
  bool open_ = false;
  bool unasked_ = false;  // the window closes without a question about changes

  bool inStarfoldView_ = false;  // InStarfoldView
  int currentProfile_ = -1;      // CurrentProfile

  UniverseView* universe_ = nullptr;
  StarfoldView* starfold_ = nullptr;
  QStackedWidget* views_ = nullptr;
  QSplitter* splitter_ = nullptr;
  bool isPlaced_ = false;  // the preview has its place
  PreviewPane* preview_ = nullptr;
  QPushButton* cmdAccept_ = nullptr;
  QPushButton* cmdDismiss_ = nullptr;
  QWidget* bodySteps_ = nullptr;  // cmdPrevFold, lblFoldPlace, cmdNextFold
  ElidedLabel* lblFoldPlace_ = nullptr;
  ElidedLabel* lblStatus_ = nullptr;   // what happened last
  QLabel* lblChanged_ = nullptr;       // whether something is not accepted yet
  std::map<int, QAction*> resetMenu_;  // mnuResetProps
};

}  // namespace starfolds
