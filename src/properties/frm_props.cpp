#include "properties/frm_props.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QShortcut>

#include "body_editors/frm_levels.h"
#include "body_editors/frm_molecule.h"
#include "body_editors/frm_user_def_ifs.h"
#include "desktop/translation.h"
#include "desktop/window_hints.h"
#include "properties/frm_welcome.h"
#include "settings/registry.h"
#include "settings/safety_copy.h"
#include "settings/surprise_universe.h"
#include "widgets/captions.h"
#include "widgets/lines.h"
#include "widgets/page_tabs.h"
#include "widgets/placed_qt_window.h"
#include "widgets/setting_guide.h"
#include "widgets/web_page.h"

namespace starfolds {
namespace {

constexpr QSize kUsualSize{1360, 780};
constexpr double kMostOfScreen =
    0.94;  // for the first placement; the rest is for window frames and panels

const char kAcceptSettings[] = STARFOLDS_TEXT("&Accept Settings");
const char kReturnToUniverse[] = STARFOLDS_TEXT("&Return to Universe Settings");
const char kStarfoldProperties[] = STARFOLDS_TEXT("Starfold Properties");

}  // namespace

FrmProps::FrmProps(const PropsSurroundings& surroundings)
    : around_(surroundings),
      editing_(std::make_unique<ProcessState>()),
      events_(std::make_unique<WatchfulPump>(surroundings.Process, *editing_)),
      model_{*editing_, surroundings.Boxes, surroundings.HelpBook, &stills_},
      template_(surroundings.Disk),
      settings_{surroundings.Tree,          editing_->Profiles,
                editing_->Composites,       template_,
                surroundings.Disk,          surroundings.Boxes,
                surroundings.ProgramFolder, surroundings.UserFolder},
      templates_(MakeTemplateHost()),
      undo_(MakeUndoHost()) {
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
  SetOwner(*windowHandle(), around_.Owner);
  // Before any question: a safety copy contains the values of the dialog.
  const StoredProperties stored = LoadDialogFromRegistry(settings_, *this);
  if (universe_->Bodies().Selected() < 0) universe_->Bodies().setCurrentRow(0);
  ShowWherePlaced(*this, *editing_->Tree, sections::kMain);
  undo_.Begin();
  undo_.Do(tr("Reset of the Properties"), [&] { OpenProperties(settings_, *this, stored); });
  if (!stored.Complete) undo_.Begin();  // there is nothing to return to
  universe_->Bodies().setFocus();
}

/// Ends a running preview first, because its call frame is above the dialog's.
void FrmProps::closeEvent(QCloseEvent* event) {
  if (preview_->DelaysClose() || !MayClose()) return event->ignore();
  SaveWindowPlacement(PlacedQtWindow(*windowHandle()), *editing_->Tree, sections::kMain);
  around_.Process.Requests.AskNewRun();
  open_ = false;
  around_.HelpBook.Quit();
  event->accept();
}

/// Escape goes back one step. It does not cancel, so that an accidental press loses no settings.
void FrmProps::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return PressDefault();
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

void FrmProps::ClearProfileList() { universe_->ClearProfileList(); }

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

/// If no universe shows the selected body, selects the most frequent one.
void FrmProps::SelectShownBody() {
  const int selected = universe_->Bodies().Selected();
  const int heaviest = universe_->Bodies().Heaviest();
  const bool isShown = selected >= 0 && model_.Profiles()[selected].UniFoldPct > 0;
  if (!isShown && heaviest >= 0) universe_->Bodies().setCurrentRow(heaviest);
}

/// Stores what is still being edited in the records and clamps the boxes.
void FrmProps::Settle() {
  if (inStarfoldView_) {
    starfold_->SettleTheme();
    starfold_->StorePageToProfile(currentProfile_);
  }
  universe_->Settle();
}

/// Reloads an open page, which would otherwise overwrite the profile when it is stored.
void FrmProps::Reset(int menuIndex) {
  Settle();
  undo_.Do(tr("Reset of the Properties"), [&] {
    ResetFromMenu(settings_, *this, menuIndex);
    if (inStarfoldView_) OpenStarfoldView(true);
  });
}

/// Reloads an open page before it is closed, because closing stores it.
TemplateHost FrmProps::MakeTemplateHost() {
  const auto loaded = [this] {
    if (inStarfoldView_) {
      starfold_->LoadProfileToPage(currentProfile_);
      OpenStarfoldView(false);
    }
    universe_->SelectTheme(0);  // the settings are no longer those of the selected theme
    SelectShownBody();
  };
  return {*this,
          settings_,
          *this,
          around_.HelpBook,
          [this] { Settle(); },
          loaded,
          [this] { preview_->Changed(); },
          [this](const QString& what) {
            Settle();
            undo_.AboutToChange(what);
          },
          [this](const QString& text) { Say(text); },
          &stills_};
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
  if (isIn("fraStarfoldTypes") || isIn("fraUniverseProps")) return help::kUniverseView;
  return static_cast<Integer>(help::kUniversePage + universe_->ShownPage());
}

/// If the program was built without an address, the help says where the project is.
void FrmProps::ShowHomePage() {
  if (around_.HomePage.empty()) return around_.HelpBook.ShowTopic(help::kProject);
  OpenWebPage(*around_.Process.Desktop, around_.Boxes, around_.HomePage);
}

QWidget* FrmProps::MakeButtons() {
  auto* line = new QWidget;
  auto* buttons = new QHBoxLayout(line);
  buttons->setContentsMargins(0, 0, 0, 0);
  cmdAccept_ = MakeButton(Translated(kAcceptSettings), "cmdAccept");
  cmdDismiss_ = MakeButton(tr("Cancel"), "cmdDismiss");
  buttons->addWidget(MakeOverridesNote(), 9);
  buttons->addStretch(1);
  buttons->addWidget(cmdAccept_);
  buttons->addWidget(cmdDismiss_);
  connect(cmdAccept_, &QPushButton::clicked, this, &FrmProps::Accept);
  connect(cmdDismiss_, &QPushButton::clicked, this, &FrmProps::CloseUnasked);
  cmdAccept_->setDefault(true);  // its look; `PressDefault` does it
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

UndoHost FrmProps::MakeUndoHost() {
  return {[this] { return CaptureSettings(); },
          [this](const EditedSettings& settings) { ShowSettings(settings); },
          [this] { universe_->Settle(); }, [this] { return preview_->IsRunning(); }};
}

/// The open page counts as it would be stored.
EditedSettings FrmProps::CaptureSettings() const {
  EditedSettings settings{.Profiles = editing_->Profiles, .Composites = editing_->Composites};
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    settings.Universe.push_back(universe_->Text(field));
  }
  if (inStarfoldView_) {
    StarfoldProfile& open = settings.Profiles[currentProfile_];
    const std::string name = open.UniFoldName;
    const Integer weight = open.UniFoldPct;
    open = starfold_->Page();
    open.UniFoldName = name;
    open.UniFoldPct = weight;
  }
  return settings;
}

/// Selects the body that changes, if it is only one.
void FrmProps::ShowSettings(const EditedSettings& settings) {
  std::vector<int> changed;
  for (int i = 0; i < kProfileCount; ++i) {
    if (!(settings.Profiles[i] == model_.Profiles()[i])) changed.push_back(i);
  }
  const int composite = universe_->Composites().Selected();
  model_.Profiles() = settings.Profiles;
  model_.Composites() = settings.Composites;
  universe_->SelectTheme(0);
  universe_->RebuildProfileList();
  universe_->Composites().Rebuild();
  universe_->BodiesChanged();
  universe_->SetTexts(settings.Universe);
  if (!inStarfoldView_ && changed.size() == 1) universe_->Bodies().setCurrentRow(changed.front());
  if (composite >= 0) universe_->Composites().List().setCurrentRow(composite);
  if (inStarfoldView_) {
    starfold_->ReloadPage(currentProfile_);
    ShowBodyPlace();
  }
  preview_->Changed();
}

void FrmProps::ShowWhatIsChanged() {
  const EditedSettings& present = undo_.History().Present();
  const EditedSettings& stored = undo_.History().Stored();
  lblChanged_->setVisible(undo_.History().IsChanged());
  for (int i = 0; i < kProfileCount; ++i) {
    universe_->Bodies().MarkChanged(i, !(present.Profiles[i] == stored.Profiles[i]));
  }
  for (int i = 0; i < kCompositeCount; ++i) {
    universe_->Composites().List().MarkChanged(i, !(present.Composites[i] == stored.Composites[i]));
  }
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
  pane->setTitle(Translated(kStarfoldProperties));
  connect(pane, &PreviewPane::RunningChanged, this, [this](bool running) {
    templates_.SetEnabled(!running);
    stills_.SetPaused(running);
  });
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
  if (open && currentProfile_ < 0) return model_.Inform(tr("Please select a Starfold Profile."));
  universe_->Settle();
  undo_.EndEdit();
  inStarfoldView_ = open;
  cmdDismiss_->setVisible(!open);
  bodySteps_->setVisible(open);
  if (open) {
    undo_.Silently([this] { starfold_->LoadProfileToPage(currentProfile_); });
    ShowBodyPlace();
  } else {
    starfold_->StorePageToProfile(currentProfile_);
    preview_->setTitle(Translated(kStarfoldProperties));
    universe_->BodiesChanged();
  }
  cmdAccept_->setText(open ? Translated(kReturnToUniverse) : Translated(kAcceptSettings));
  views_->setCurrentIndex(open ? 1 : 0);
}

/// The name of the open body, and its place in the list.
void FrmProps::ShowBodyPlace() {
  const QString name = Shown(universe_->Bodies().EntryName(currentProfile_));
  preview_->setTitle(tr("Starfold:  %1").arg(Escaped(name.toStdString())));
  lblFoldPlace_->setText(tr("%1 of %2:  %3").arg(currentProfile_ + 1).arg(kProfileCount).arg(name));
}

/// Opens the body `by` places after the open one; the first follows the last.
void FrmProps::StepBody(int by) {
  if (!inStarfoldView_ || preview_->IsRunning()) return;
  starfold_->StorePageToProfile(currentProfile_);
  currentProfile_ = (currentProfile_ + by + kProfileCount) % kProfileCount;
  universe_->Bodies().setCurrentRow(currentProfile_);
  OpenStarfoldView(true);
}

void FrmProps::TurnPages(int by) {
  if (!preview_->IsRunning())
    TurnPage(inStarfoldView_ ? starfold_->Pages() : universe_->Pages(), by);
}

/// Return in a box, unless it presses a button of its own.
void FrmProps::PressDefault() {
  QAbstractButton* button = ReturnButton(focusWidget());
  if (!button) button = qobject_cast<QPushButton*>(focusWidget());
  if (!button) button = cmdAccept_;
  button->click();
}

void FrmProps::Accept() {
  if (inStarfoldView_) return OpenStarfoldView(false);
  Settle();  // Return does not take the focus from the box
  if (Store()) CloseUnasked();
}

/// Stores the settings. False if the dialog is to stay open.
bool FrmProps::Store() {
  while (!SaveDialogToRegistry(settings_, *this)) {
    switch (AskAfterFailedSave(settings_)) {
      case BoxAnswer::TryAgain: continue;
      case BoxAnswer::SaveAsTemplate: templates_.SaveAs(); return false;
      case BoxAnswer::CloseWithoutSaving: return true;
      default: return false;
    }
  }
  return true;
}

/// Asks what to do with changes that are not accepted. "Cancel" is an answer to that already, and a
/// process that was told to end does not wait for one.
bool FrmProps::MayClose() {
  if (unasked_ || around_.Process.Requests.QuitApp()) return true;
  Settle();
  if (!undo_.IsChanged()) return true;
  switch (around_.Boxes.Show(
      tr("The settings were changed.\n\nDo you want to accept the changes?").toStdString(),
      BoxStyle::UnacceptedChanges, std::string(kProductName))) {
    case BoxAnswer::AcceptChanges: return Store();
    case BoxAnswer::Cancel: return false;
    default: return true;
  }
}

void FrmProps::CloseUnasked() {
  unasked_ = true;
  close();
  unasked_ = false;
}

void FrmProps::Exit() {
  if (!MayClose()) return;
  around_.Process.Requests.AskQuit();
  CloseUnasked();
}

void FrmProps::ApplyTheme(int position) {
  if (position < 1) return;
  const bool is20 = resetMenu_.at(kReset20)->isChecked();
  undo_.AboutToChange(tr("Theme %1").arg(universe_->ThemeName(position)));
  universe_->ApplyThemeRowToPage(FactoryThemeRow(position, is20));
  Say(tr("Theme: %1").arg(universe_->ThemeName(position)));
}

void FrmProps::SurpriseMe() {
  Settle();
  undo_.AboutToChange(tr("Surprise Me"));
  Rnd random(around_.Seed());
  const SurprisedUniverse drawn =
      SurpriseUniverse(random, universe_->Settings(), model_.Composites());
  for (int i = 0; i < kProfileCount; ++i) {
    model_.Profiles()[i].UniFoldPct = drawn.ProfileWeights[i];
  }
  for (int i = 0; i < kCompositeCount; ++i) {
    model_.Composites()[i].CompFoldPct = drawn.CompositeWeights[i];
  }
  universe_->SelectTheme(0);
  RebuildProfileList();
  RebuildCompositeLists();
  SelectShownBody();
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    universe_->SetText(field, FieldText(drawn.Universe, field));
  }
  Say(tr("A universe drawn at random"));
}

/// The editor changes the record; the page then reloads what it has no box for.
template <class Editor>
void FrmProps::RunEditor() {
  starfold_->StorePageToProfile(currentProfile_);
  undo_.EndEdit();
  Editor({model_, *this, around_.Seed, currentProfile_}, this).RunModal();
  starfold_->TakeProfile(currentProfile_);
}

void FrmProps::PreviewSelectedComposite() {
  preview_->ToggleComposite(universe_->findChild<QPushButton*>("cmdPreviewComp"),
                            universe_->Composites().Selected());
}

}  // namespace starfolds
