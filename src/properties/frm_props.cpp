#include "properties/frm_props.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "body_editors/frm_levels.h"
#include "body_editors/frm_molecule.h"
#include "body_editors/frm_user_def_ifs.h"
#include "properties/frm_advanced.h"
#include "properties/frm_welcome.h"
#include "properties/universe_guides.h"
#include "settings/registry.h"
#include "settings/safety_copy.h"
#include "widgets/captions.h"
#include "widgets/lines.h"
#include "widgets/list_wheel_guard.h"
#include "widgets/placed_qt_window.h"
#include "widgets/setting_guide.h"
#include "widgets/web_page.h"

namespace starfolds {
namespace {

constexpr int kWideWindow = 1250;  // least width for the preview beside the form
constexpr int kFormWidth = 500;    // initial width of the form beside the preview
constexpr QSize kLeastForm{320, 160};
constexpr QSize kUsualSize{1360, 780};
constexpr double kMostOfScreen =
    0.94;  // for the first placement; the rest is for window frames and panels

// Entries of `mnuResetProps`; with a separator between them.
constexpr int kReset20 = 0;
constexpr int kReset4x = 2;

const char kAcceptSettings[] = "&Accept Settings";
const char kReturnToUniverse[] = "&Return to Universe Settings";
const char kStarfoldProperties[] = "Starfold Properties";

/// A view that scrolls if the window is smaller than it needs.
QScrollArea* Scrolled(QWidget* view, const char* name) {
  auto* area = new QScrollArea;
  area->setObjectName(name);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setMinimumSize(kLeastForm);
  area->setWidget(view);
  return area;
}

}  // namespace

FrmProps::FrmProps(const PropsSurroundings& surroundings)
    : around_(surroundings),
      editing_(std::make_unique<ProcessState>()),
      events_(std::make_unique<WatchfulPump>(surroundings.Process, *editing_)),
      model_{*editing_, surroundings.Boxes, surroundings.HelpBook},
      template_(surroundings.Disk),
      settings_{surroundings.Tree,          editing_->Profiles,
                editing_->Composites,       template_,
                surroundings.Disk,          surroundings.Boxes,
                surroundings.ProgramFolder, surroundings.UserFolder},
      templates_(MakeTemplateHost()) {
  const ProcessState& process = around_.Process;
  editing_->Tree = &around_.Tree;
  editing_->Events = events_.get();
  editing_->Desktop = process.Desktop;
  editing_->Mode = RunMode::ScreenSaver;
  // A preview of a universe has the frame delay of the process.
  editing_->Screen.FrameDelayMs = process.Screen.FrameDelayMs;

  setObjectName("frmProps");
  setWindowTitle(kPropertiesCaption);
  // Modal to the application's window, but not to the help.
  setWindowModality(Qt::WindowModal);
  MakeCentre();
  MakeMenus();
  auto* helpHere = new QShortcut(QKeySequence::HelpContents, this);
  helpHere->setObjectName("helpHere");
  connect(helpHere, &QShortcut::activated, this, [this] {
    if (!SettingGuide::ShowHelpOf(focusWidget())) around_.HelpBook.ShowTopic(TopicHere());
  });
}

FrmProps::~FrmProps() = default;

void FrmProps::ShowModal() {
  Open();
  while (open_ && !around_.Process.Requests.QuitApp()) {
    constexpr Long aWhile = 1000;
    around_.Process.Events->WaitForEvents(aWhile);
  }
  hide();
}

void FrmProps::Open() {
  open_ = true;
  resize(kUsualSize.boundedTo(screen()->availableSize() * kMostOfScreen));
  winId();  // creates the window, so that its owner can be set before it is shown
  windowHandle()->setTransientParent(around_.Owner);
  // Before any question: a safety copy contains the values of the dialog.
  const StoredProperties stored = LoadDialogFromRegistry(settings_, *this);
  ShowWherePlaced(*this, *editing_->Tree, sections::kMain);
  OpenProperties(settings_, *this, stored);
}

/// Ends a running preview first, because its call frame is above the dialog's.
void FrmProps::closeEvent(QCloseEvent* event) {
  if (preview_->DelaysClose()) return event->ignore();
  SaveWindowPlacement(PlacedQtWindow(*windowHandle()), *editing_->Tree, sections::kMain);
  around_.Process.Requests.AskNewRun();
  open_ = false;
  around_.HelpBook.Quit();
  event->accept();
}

/// Escape goes back one step. It does not cancel, so that an accidental press loses no settings.
void FrmProps::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(event);
  if (preview_->IsRunning()) return preview_->Stop();
  if (inStarfoldView_) OpenStarfoldView(false);
}

std::string FrmProps::UniverseText(const Field<UniverseSettings>& field) const {
  return universe_->Text(field);
}

void FrmProps::SetUniverseText(const Field<UniverseSettings>& field, const std::string& text) {
  universe_->SetText(field, text);
}

void FrmProps::ClearProfileList() { universe_->Bodies().clear(); }

void FrmProps::AddProfileEntry(std::string_view name, Integer percent) {
  universe_->AddProfileEntry(name, percent);
}

/// Must be called after the last entry of a list that is refilled.
void FrmProps::SelectProfileEntry(int position) {
  universe_->Bodies().setCurrentRow(position);
  universe_->Composites().Rebuild();
  universe_->BodiesChanged();
}

void FrmProps::RebuildProfileList() { universe_->RebuildProfileList(); }

void FrmProps::RebuildCompositeLists() {
  universe_->Composites().Rebuild();
  universe_->BodiesChanged();
}

void FrmProps::SelectUniverseTheme(int position) { universe_->SelectTheme(position); }

void FrmProps::SelectUniverseExtras(int position) { universe_->SelectPage(position); }

void FrmProps::MarkResetMenu(int menuIndex, bool marked) {
  resetMenu_.at(menuIndex)->setChecked(marked);
}

ProgressPicture* FrmProps::Preview() { return &preview_->Picture(); }

bool FrmProps::ShowWelcomeDialog(const WelcomePage& page) {
  return RunWelcome(
      this, page, [this](ProgressPicture* picture) { SaveSafetyCopy(settings_, *this, picture); },
      around_.HelpBook);
}

/// Stores what is still being edited in the records and clamps the boxes.
void FrmProps::Settle() {
  if (inStarfoldView_) starfold_->StorePageToProfile(currentProfile_);
  universe_->ClampTextFields();
}

/// Reloads an open page, which would otherwise overwrite the profile when it is stored.
void FrmProps::Reset(int menuIndex) {
  Settle();
  ResetFromMenu(settings_, *this, menuIndex);
  if (inStarfoldView_) OpenStarfoldView(true);
}

/// Reloads an open page before it is closed, because closing stores it.
TemplateHost FrmProps::MakeTemplateHost() {
  const auto loaded = [this] {
    if (inStarfoldView_) {
      starfold_->LoadProfileToPage(currentProfile_);
      OpenStarfoldView(false);
    }
    universe_->SelectTheme(0);  // the settings are no longer those of the selected theme
  };
  return {*this,
          settings_,
          *this,
          around_.HelpBook,
          [this] { Settle(); },
          loaded,
          [this] { preview_->Changed(); }};
}

void FrmProps::MakeMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  templates_.AddTo(*file);
  file->addSeparator();
  file->addAction(tr("E&xit"), this, &FrmProps::Exit)->setObjectName("mnuExit");

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  QMenu* reset = edit->addMenu(tr("&Reset Properties"));
  const auto addReset = [&](int index, const QString& text) {
    QAction* entry = reset->addAction(text, this, [this, index] { Reset(index); });
    entry->setObjectName("mnuResetProps_" + QString::number(index));
    entry->setCheckable(true);
    resetMenu_[index] = entry;
  };
  addReset(kReset20, "Starfolds 2.0");
  reset->addSeparator();
  addReset(kReset4x, "Starfolds 4.x");
  edit->addAction(tr("&Advanced Settings..."), this,
                  [this] {
                    FrmAdvanced(*editing_->Tree, around_.HelpBook, this).RunModal();
                    preview_->CameraChanged();
                  })
      ->setObjectName("mnuAdvanced");

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  const auto addHelp = [&](const QString& text, const char* name,
                           const std::function<void()>& act) {
    help->addAction(text, this, act)->setObjectName(name);
  };
  addHelp(tr("&Contents..."), "mnuContents", [this] { around_.HelpBook.ShowContents(); });
  addHelp(tr("&Search..."), "mnuSearch", [this] { around_.HelpBook.ShowSearch(); });
  addHelp(tr("&Diagnostics..."), "mnuDiagnostics", [this] { around_.ShowDiagnostics(*this); });
  help->addSeparator();
  addHelp(tr("Starfolds &Home Page"), "mnuHomePage", [this] { ShowHomePage(); });
  addHelp(tr("A&bout Starfolds..."), "mnuAbout", [this] { around_.ShowAbout(*this); });
}

/// The topic of the control with the focus, or else of the current page.
Integer FrmProps::TopicHere() const {
  const auto isIn = [this](const char* name) {
    const auto* const part = findChild<QWidget*>(name);
    return part == focusWidget() || part->isAncestorOf(focusWidget());
  };
  if (inStarfoldView_ && isIn("cboFoldTheme")) return help::kStarfoldView;
  if (inStarfoldView_) return static_cast<Integer>(help::kStarfoldPage + starfold_->ShownPage());
  if (isIn("fraPropCopy")) return help::kPropertyCopy;
  if (isIn("fraStarfoldTypes")) return help::kUniverseView;
  return static_cast<Integer>(help::kUniversePage + universe_->ShownPage());
}

/// If the program was built without an address, the help says where the project is.
void FrmProps::ShowHomePage() {
  if (around_.HomePage.empty()) return around_.HelpBook.ShowTopic(help::kProject);
  OpenWebPage(*around_.Process.Desktop, around_.Boxes, around_.HomePage);
}

void FrmProps::MakeCentre() {
  auto* centre = new QWidget;
  auto* rows = new QVBoxLayout(centre);
  universe_ = new UniverseView(model_);
  GuideUniverse(*universe_, around_.HelpBook);
  starfold_ = new StarfoldView(model_, around_.Seed);
  views_ = new QStackedWidget;
  views_->addWidget(Scrolled(universe_, "scrUniverse"));
  views_->addWidget(Scrolled(starfold_, "scrStarfold"));
  splitter_ = new QSplitter;
  splitter_->setObjectName("splPreview");
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(views_);
  preview_ = MakePreviewPane();
  splitter_->addWidget(preview_);
  splitter_->setStretchFactor(1, 1);
  rows->addWidget(splitter_, 1);
  rows->addWidget(MakeButtons());
  setCentralWidget(centre);
  GuardListsFromWheel(*centre);
  // A file dropped on any widget is a template, not text for a box.
  for (QLineEdit* box : findChildren<QLineEdit*>()) box->setAcceptDrops(false);
  ConnectParts();
}

QWidget* FrmProps::MakeButtons() {
  auto* line = new QWidget;
  auto* buttons = new QHBoxLayout(line);
  buttons->setContentsMargins(0, 0, 0, 0);
  cmdAccept_ = MakeButton(tr(kAcceptSettings), "cmdAccept");
  cmdDismiss_ = MakeButton(tr("Cancel"), "cmdDismiss");
  buttons->addWidget(MakeOverridesNote(), 9);
  buttons->addStretch(1);
  buttons->addWidget(cmdAccept_);
  buttons->addWidget(cmdDismiss_);
  connect(cmdAccept_, &QPushButton::clicked, this, &FrmProps::Accept);
  connect(cmdDismiss_, &QPushButton::clicked, this, &FrmProps::close);
  return line;
}

void FrmProps::ConnectParts() {
  connect(universe_, &UniverseView::ThemeChosen, this, &FrmProps::ApplyTheme);
  connect(universe_, &UniverseView::PropsAskedFor, this, [this](int index) {
    currentProfile_ = index;
    OpenStarfoldView(true);
  });
  connect(universe_, &UniverseView::CompositePreviewAskedFor, this,
          &FrmProps::PreviewSelectedComposite);
  connect(starfold_, &StarfoldView::LevelsAskedFor, this, [this] { RunEditor<FrmLevels>(); });
  connect(starfold_, &StarfoldView::BodyEditorAskedFor, this, [this] {
    const bool isIfs = starfold_->Page().Style() == FoldStyle::UserIfs;
    isIfs ? RunEditor<FrmUserDefIfs>() : RunEditor<FrmMolecule>();
  });

  // What changes the body that the preview shows, or its values.
  const auto changed = [this] { preview_->Changed(); };
  connect(starfold_, &StarfoldView::Changed, this, changed);
  connect(universe_, &UniverseView::ProfilesChanged, this, changed);
  connect(views_, &QStackedWidget::currentChanged, this, changed);
  for (const char* list : {"lstUniStarfold", "lstCompStarfold"}) {
    connect(universe_->findChild<QListWidget*>(list), &QListWidget::itemSelectionChanged, this,
            changed);
  }
  connect(universe_->findChild<QPushButton*>("cmdCompCommit"), &QPushButton::clicked, this,
          changed);
  connect(universe_->findChild<QComboBox*>("cboUniExtras"), &QComboBox::currentIndexChanged, this,
          changed);
  for (NumberBox* box : universe_->findChildren<NumberBox*>()) {
    connect(box, &NumberBox::Changed, this, changed);
  }
}

/// Beside the form, or below it in a narrow window.
void FrmProps::PlacePreview() {
  const bool beside = width() >= kWideWindow;
  const Qt::Orientation wanted = beside ? Qt::Horizontal : Qt::Vertical;
  if (isPlaced_ && splitter_->orientation() == wanted) return;
  isPlaced_ = true;
  splitter_->setOrientation(wanted);
  preview_->PutButtonsBeside(!beside);
  const int room = beside ? width() : height();
  const int form = beside ? std::max(kFormWidth, universe_->minimumSizeHint().width()) : room / 2;
  splitter_->setSizes({form, room - form});
}

void FrmProps::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlacePreview();
}

/// A run with overridden settings has other values than the dialog.
QWidget* FrmProps::MakeOverridesNote() {
  constexpr std::size_t most = 3;  // named in the label; all are in the tool tip
  const std::vector<std::string>& overrides = around_.Overrides;
  auto* note = new QLabel;
  note->setObjectName("lblOverrides");
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  note->setVisible(!overrides.empty());
  QStringList all;
  for (const std::string& each : overrides) all.append(Shown(each));
  QString named = all.mid(0, most).join(", ");
  if (overrides.size() > most) named += tr(" and %1 more").arg(overrides.size() - most);
  note->setText(
      tr("Overridden in this run: %1.\nWhat you accept is stored, and holds in runs without "
         "these options.")
          .arg(named));
  note->setToolTip(all.join("\n"));
  return note;
}

PreviewPane* FrmProps::MakePreviewPane() {
  auto* pane = new PreviewPane(
      model_,
      {.Universe = [this] { return universe_->Settings(); },
       .SelectedProfile =
           [this] { return inStarfoldView_ ? currentProfile_ : universe_->Bodies().Selected(); },
       .Idle = [this] { return IdleBody(); },
       .Profile =
           [this](int body) {
             return inStarfoldView_ ? starfold_->Page() : model_.Profiles()[body];
           },
       .StorePage =
           [this] {
             if (inStarfoldView_) starfold_->StorePageToProfile(currentProfile_);
           },
       .Seed = around_.Seed});
  pane->setTitle(tr(kStarfoldProperties));
  connect(pane, &PreviewPane::RunningChanged, this,
          [this](bool running) { templates_.SetEnabled(!running); });
  connect(pane, &PreviewPane::CloseRequested, this, &FrmProps::close);
  return pane;
}

/// The selected composite while its page is shown, or else the selected or open type.
PreviewSource::Body FrmProps::IdleBody() const {
  if (inStarfoldView_) return {currentProfile_, false};
  const bool onComposites = universe_->ShownPage() == static_cast<int>(UniversePage::Composites);
  const int composite = onComposites ? universe_->Composites().Selected() : -1;
  if (composite >= 0) return {composite, true};
  return {universe_->Bodies().Selected(), false};
}

void FrmProps::OpenStarfoldView(bool open) {
  if (open && currentProfile_ < 0) return model_.Inform("Please select a Starfold Profile.");
  inStarfoldView_ = open;
  cmdDismiss_->setVisible(!open);
  if (open) {
    starfold_->LoadProfileToPage(currentProfile_);
    preview_->setTitle("Starfold:  " + Escaped(universe_->Bodies().EntryName(currentProfile_)));
  } else {
    starfold_->StorePageToProfile(currentProfile_);
    preview_->setTitle(tr(kStarfoldProperties));
    universe_->BodiesChanged();
  }
  cmdAccept_->setText(open ? tr(kReturnToUniverse) : tr(kAcceptSettings));
  views_->setCurrentIndex(open ? 1 : 0);
}

void FrmProps::Accept() {
  if (inStarfoldView_) return OpenStarfoldView(false);
  universe_->ClampTextFields();  // Return does not take the focus from the box
  while (!SaveDialogToRegistry(settings_, *this)) {
    switch (AskAfterFailedSave(settings_)) {
      case BoxAnswer::TryAgain: continue;
      case BoxAnswer::SaveAsTemplate: return templates_.SaveAs();
      case BoxAnswer::CloseWithoutSaving: close(); return;
      default: return;
    }
  }
  close();
}

void FrmProps::Exit() {
  around_.Process.Requests.AskQuit();
  close();
}

void FrmProps::ApplyTheme(int position) {
  if (position < 1) return;
  const bool is20 = resetMenu_.at(kReset20)->isChecked();
  universe_->ApplyThemeRowToPage(FactoryThemeRow(position, is20));
}

/// The editor changes the record; the page then reloads what it has no box for.
template <class Editor>
void FrmProps::RunEditor() {
  starfold_->StorePageToProfile(currentProfile_);
  Editor({model_, *this, around_.Seed, currentProfile_}, this).RunModal();
  starfold_->TakeProfile(currentProfile_);
}

void FrmProps::PreviewSelectedComposite() {
  preview_->ToggleComposite(universe_->findChild<QPushButton*>("cmdPreviewComp"),
                            universe_->Composites().Selected());
}

}  // namespace starfolds
