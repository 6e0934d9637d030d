// `frmProps`: the properties dialog, the main window of the configuration.
#pragma once

#include <QGroupBox>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "body_editors/body_editor.h"
#include "platform/files.h"
#include "properties/starfold_view.h"
#include "properties/universe_view.h"
#include "settings/property_flows.h"
#include "template_dialogs/template_menu.h"
#include "widgets/dialog_model.h"
#include "widgets/picture_box.h"
#include "widgets/preview_runs.h"
#include "widgets/watchful_pump.h"

namespace starfolds {

/// What the dialog needs of its surroundings. All of it outlives the dialog.
struct PropsSurroundings {
  ProcessState& Process;  // the state of the process: its pump and flags
  KeyValueTree& Tree;     // what is edited, without the settings that hold for this run alone
  MessageBoxes& Boxes;
  Files& Disk;
  Help& HelpBook;
  std::string ProgramFolder;
  std::string UserFolder;
  std::function<std::uint64_t()> Seed;  // of each preview
  QWindow* Owner = nullptr;             // waits behind the dialog
  std::string HomePage = {};            // address of the product's; empty where it has none
  /// Windows of other layers, which open over the dialog and return when they are closed.
  std::function<void(QWidget& over)> ShowDiagnostics = nullptr;
  std::function<void(QWidget& over)> ShowAbout = nullptr;
  std::vector<std::string> Overrides = {};  // settings that hold for this run alone, in words
};

/// Edits the universe in its controls and the bodies in memory; nothing reaches the stored tree
/// before "Accept Settings". It has a state of its own for the records and previews, so that a run
/// beside it, which waits in its pump meanwhile, finds everything as it left it.
class FrmProps : public QMainWindow, private PropertiesDialog, private PropsBoxes {
  Q_OBJECT

 public:
  explicit FrmProps(const PropsSurroundings& surroundings);
  ~FrmProps() override;

  /// Shows the dialog, asks what has to be asked at its opening, and returns when it is closed.
  void ShowModal();

  /// The two steps of it, for who runs the events otherwise: a test.
  void Open();
  bool IsOpen() const { return open_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // What the flows of the settings ask of the dialog.
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

  // What the editors of a body ask of it.
  UniverseSettings UniverseOnDialog() const override { return universe_->Settings(); }
  void SetStarfoldBox(int index, const std::string& text) override {
    starfold_->SetBox(index, text);
  }

  void Settle();
  void Reset(int menuIndex);
  TemplateHost MakeTemplateHost();
  void MakeMenus();
  Integer TopicHere() const;
  void ShowHomePage();
  void MakeCentre();
  QWidget* MakePreviewPane();
  QWidget* MakeOverridesNote();

  void OpenStarfoldView(bool open);
  void Accept();
  void Exit();
  void ApplyTheme(int position);
  template <class Editor>
  void RunEditor();

  using PreviewRun = std::function<void(Surface& surface)>;
  void TogglePreview(QPushButton* button, const PreviewRun& run);
  void PreviewUniverseOnDialog();
  void PreviewSelectedBody();
  void PreviewSelectedComposite();
  void ShowStill();
  void PreviewOne(QPushButton* button, int body, bool isComposite);

  PropsSurroundings around_;
  std::unique_ptr<ProcessState> editing_;  // what the dialog edits and previews
  std::unique_ptr<WatchfulPump> events_;
  PropsModel model_;
  TemplateFile template_;
  PropertySettings settings_;
  TemplateMenu templates_;

  QTimer stillTimer_;
  bool open_ = false;
  PreviewSwitch preview_{*editing_};

  bool inStarfoldView_ = false;  // InStarfoldView
  int currentProfile_ = -1;      // CurrentProfile

  UniverseView* universe_ = nullptr;
  StarfoldView* starfold_ = nullptr;
  QStackedWidget* views_ = nullptr;
  QGroupBox* fraAni_ = nullptr;
  PictureBox* picPreview_ = nullptr;
  QPushButton* cmdPreviewFold_ = nullptr;
  QPushButton* cmdPreviewUni_ = nullptr;
  QPushButton* cmdAccept_ = nullptr;
  QPushButton* cmdDismiss_ = nullptr;
  std::map<int, QAction*> resetMenu_;  // mnuResetProps
};

}  // namespace starfolds
