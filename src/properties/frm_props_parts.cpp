// The parts of `FrmProps` and how they are arranged: menus, views, preview, status line.
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "properties/frm_advanced.h"
#include "properties/frm_idle.h"
#include "properties/frm_props.h"
#include "properties/universe_guides.h"
#include "widgets/lines.h"
#include "widgets/list_wheel_guard.h"

namespace starfolds {
namespace {

constexpr int kWideWindow = 1250;  // least width for the preview beside the form
constexpr int kScrollBarRoom = 24;
constexpr int kStatusEdge = 8;
constexpr int kFormWidth = 500;  // initial width of the form beside the preview
constexpr QSize kLeastForm{320, 160};

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

void FrmProps::MakeMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  templates_.AddTo(*file);
  file->addSeparator();
  file->addAction(tr("E&xit"), this, &FrmProps::Exit)->setObjectName("mnuExit");

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  undo_.AddTo(*edit);
  edit->addSeparator();
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
  if (const QString idle = FindIdleProgram(); !idle.isEmpty()) {
    edit->addAction(
            tr("When &Idle..."), this,
            [this, idle] { FrmIdle(*editing_->Tree, around_.HelpBook, idle, this).RunModal(); })
        ->setObjectName("mnuIdle");
  }

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  const auto addHelp = [&](const QString& text, const char* name,
                           const std::function<void()>& act) {
    help->addAction(text, this, act)->setObjectName(name);
  };
  addHelp(tr("&Contents..."), "mnuContents", [this] { around_.HelpBook.ShowContents(); });
  addHelp(tr("&Search..."), "mnuSearch", [this] { around_.HelpBook.ShowSearch(); });
  addHelp(tr("&Diagnostics..."), "mnuDiagnostics", [this] { around_.ShowDiagnostics(*this); });
  help->addSeparator();
  if (!around_.SharePage.empty()) {
    addHelp(tr("Share as a &Link"), "mnuShareLink",
            [this] { templates_.ShareAsLink(around_.SharePage); });
  }
  addHelp(tr("Starfolds &Home Page"), "mnuHomePage", [this] { ShowHomePage(); });
  addHelp(tr("A&bout Starfolds..."), "mnuAbout", [this] { around_.ShowAbout(*this); });
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
  rows->addWidget(MakeBodySteps());
  rows->addWidget(splitter_, 1);
  rows->addWidget(MakeButtons());
  setCentralWidget(centre);
  MakeStatusLine();
  GuardListsFromWheel(*centre);
  // A file dropped on any widget is a template, not text for a box.
  for (QLineEdit* box : findChildren<QLineEdit*>()) box->setAcceptDrops(false);
  undo_.WatchBoxesOf(*this);
  ConnectParts();
  ConnectChanges();
}

/// What becomes a step of the undo, or a text of the status line.
void FrmProps::ConnectChanges() {
  connect(universe_, &UniverseView::SurpriseAskedFor, this, &FrmProps::SurpriseMe);
  connect(universe_, &UniverseView::AboutToChange, &undo_, &UndoMenu::AboutToChange);
  connect(universe_, &UniverseView::Said, this, &FrmProps::Say);
  connect(universe_, &UniverseView::Edited, this,
          [this] { undo_.NoteEdit(universe_->PageOfEdit()); });
  connect(starfold_, &StarfoldView::AboutToChange, this, [this](const QString& what) {
    const QString name = Shown(universe_->Bodies().EntryName(currentProfile_));
    undo_.AboutToChange(tr("%1 of %2").arg(what, name));
  });
  connect(starfold_, &StarfoldView::Said, this, &FrmProps::Say);
  connect(starfold_, &StarfoldView::Changed, this, [this] {
    if (!inStarfoldView_) return;
    undo_.NoteEdit(Shown(universe_->Bodies().EntryName(currentProfile_)));
  });
  connect(&undo_, &UndoMenu::Changed, this, &FrmProps::ShowWhatIsChanged);
  connect(&undo_, &UndoMenu::Said, this, &FrmProps::Say);
  for (const auto& [key, by] : {std::pair{Qt::Key_PageUp, -1}, std::pair{Qt::Key_PageDown, 1}}) {
    connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this,
            [this, by = by] { TurnPages(by); });
  }
}

/// The least width in which the form needs no horizontal scroll bar.
int FrmProps::LeastFormWidth() const {
  return universe_->minimumSizeHint().width() + kScrollBarRoom;
}

/// Beside the form, or below it if the window is too narrow for both.
void FrmProps::PlacePreview() {
  const int edges = width() - splitter_->width() + splitter_->handleWidth();
  const int needed = LeastFormWidth() + preview_->LeastWidth() + edges;
  const bool beside = width() >= std::max(kWideWindow, needed);
  const Qt::Orientation wanted = beside ? Qt::Horizontal : Qt::Vertical;
  if (isPlaced_ && splitter_->orientation() == wanted) return;
  isPlaced_ = true;
  splitter_->setOrientation(wanted);
  preview_->PutButtonsBeside(!beside);
  const int room = beside ? width() : height();
  const int form =
      beside ? std::max({kFormWidth, LeastFormWidth(),
                         std::min(universe_->sizeHint().width() + kScrollBarRoom, room * 9 / 20)})
             : room / 2;
  splitter_->setSizes({form, room - form});
}

void FrmProps::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlacePreview();
}

/// "◀ 2 of 50 ▶", above the starfold view.
QWidget* FrmProps::MakeBodySteps() {
  bodySteps_ = new QWidget;
  auto* line = new QHBoxLayout(bodySteps_);
  line->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, const QString& text, const QString& tip,
                       const QKeySequence& key, int by) {
    auto* step = new QToolButton;
    step->setObjectName(name);
    step->setText(text);
    step->setAccessibleName(tip);
    step->setToolTip(QString("%1  (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    step->setFocusPolicy(Qt::TabFocus);
    line->addWidget(step);
    connect(step, &QToolButton::clicked, this, [this, by] { StepBody(by); });
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, by] { StepBody(by); });
  };
  add("cmdPrevFold", "◀", tr("Previous type"), Qt::ALT | Qt::Key_PageUp, -1);
  add("cmdNextFold", "▶", tr("Next type"), Qt::ALT | Qt::Key_PageDown, 1);
  lblFoldPlace_ = new ElidedLabel;
  lblFoldPlace_->setObjectName("lblFoldPlace");
  line->addWidget(lblFoldPlace_, 1);
  bodySteps_->hide();
  return bodySteps_;
}

void FrmProps::MakeStatusLine() {
  lblStatus_ = new ElidedLabel;
  lblStatus_->setObjectName("lblStatus");
  lblChanged_ = new QLabel(tr("Changed, not accepted yet"));
  lblChanged_->setObjectName("lblChanged");
  lblChanged_->hide();
  statusBar()->setSizeGripEnabled(false);
  statusBar()->setContentsMargins(kStatusEdge, 0, kStatusEdge, 0);
  statusBar()->addWidget(lblStatus_, 1);
  statusBar()->addPermanentWidget(lblChanged_);
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
  if (overrides.size() > most) {
    named = tr("%1 and %n more", nullptr, static_cast<int>(overrides.size() - most)).arg(named);
  }
  note->setText(
      tr("Overridden in this run: %1.\nWhat you accept is stored, and holds in runs without "
         "these options.")
          .arg(named));
  note->setToolTip(all.join("\n"));
  return note;
}

}  // namespace starfolds
