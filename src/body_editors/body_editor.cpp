#include "body_editors/body_editor.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScrollArea>

#include "desktop/translation.h"
#include "widgets/lines.h"
#include "widgets/plain_text.h"

namespace starfolds {
namespace {

constexpr QSize kLeastPreview{280, 210};
constexpr QSize kLeastControls{360, 260};
constexpr QSize kMorePreview{140, 90};

/// Scrolls if the window is narrower than the controls; otherwise as large as they are.
class ControlsArea : public QScrollArea {
 public:
  explicit ControlsArea(QWidget* controls) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    setWidgetResizable(true);
    setWidget(controls);
  }
  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override { return sizeHint().boundedTo(kLeastControls); }
};

/// Makes a button the default, also if it is the default at present only because it has the focus:
/// without the first call it would no longer be when the focus leaves it.
void MakeDefault(QPushButton& button) {
  button.setDefault(false);
  button.setDefault(true);
}

}  // namespace

BodyEditor::BodyEditor(const Texts& texts, const BodyEditing& editing, QWidget* parent)
    : PlacedDialog(
          {*editing.Model.Process.Tree, texts.Section, editing.Model.HelpBook, texts.Topic},
          parent),
      model_(editing.Model),
      props_(editing.Props),
      seed_(editing.Seed),
      editBody_(editing.EditBody),
      texts_(texts),
      preview_(model_.Process) {
  setObjectName(texts.Name);
  setWindowTitle(WindowTitle(texts.Caption.arg(Shown(Record().UniFoldName)).toStdString()));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  rows_ = new QVBoxLayout(this);
  rows_->setMenuBar(MakeMenuBar());
  head_ = new QVBoxLayout;
  rows_->addLayout(head_);
  columns_ = new QHBoxLayout;
  auto* controls = new QWidget;
  controls_ = new QVBoxLayout(controls);
  controls_->setContentsMargins(0, 0, 0, 0);
  columns_->addWidget(new ControlsArea(controls));
  rows_->addLayout(columns_, 1);
  picPreview_ = new PictureBox;
  living_ = std::make_unique<LivingBody>(*picPreview_, [this] { return BodyToShow(); });
}

StarfoldProfile& BodyEditor::Record() const { return model_.Profiles()[editBody_]; }

void BodyEditor::AddPreviewAndButtons(QPushButton* cmdClear) {
  columns_->addWidget(MakePreviewPane(), 1);
  rows_->addLayout(MakeButtons(cmdClear));
  bodyBoxes_.front().Box->setFocus();
}

/// If the window has a fixed size, it keeps its current size.
QMenuBar* BodyEditor::MakeMenuBar() {
  auto* bar = new QMenuBar;
  QAction* mnuResize = bar->addMenu(tr("&Window"))->addAction(tr("Window can be Resized"));
  mnuResize->setObjectName("mnuResize");
  mnuResize->setCheckable(true);
  mnuResize->setChecked(true);
  connect(mnuResize, &QAction::toggled, this, [this](bool can) {
    setMinimumSize(can ? QSize(0, 0) : size());
    setMaximumSize(can ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : size());
  });
  return bar;
}

QWidget* BodyEditor::MakePreviewPane() {
  auto* fraPreview = new QGroupBox(texts_.PreviewCaption.arg(Escaped(Record().UniFoldName)));
  fraPreview->setObjectName("fraPreview");
  picPreview_->setObjectName("picPreview");
  picPreview_->setAccessibleName(tr("Preview"));
  picPreview_->setMinimumSize(kLeastPreview);
  picPreview_->installEventFilter(this);
  cmdPreview_ = MakeButton(texts_.Preview, "cmdPreview");
  auto* column = new QVBoxLayout(fraPreview);
  column->addWidget(picPreview_, 1);
  auto* line = new QHBoxLayout;
  line->addWidget(cmdPreview_);
  line->addStretch();
  for (QCheckBox* box : living_->MakeSwitches()) line->addWidget(box);
  column->addLayout(line);
  connect(cmdPreview_, &QPushButton::clicked, this, &BodyEditor::TogglePreview);
  return fraPreview;
}

QLayout* BodyEditor::MakeButtons(QPushButton* cmdClear) {
  cmdOK_ = MakeButton(tr("OK"), "cmdOK");
  cmdDismiss_ = MakeButton(tr("Cancel"), "cmdDismiss");
  cmdOK_->setDefault(true);
  auto* buttons = new QHBoxLayout;
  if (cmdClear) buttons->addWidget(cmdClear);
  buttons->addStretch();
  buttons->addWidget(cmdOK_);
  buttons->addWidget(cmdDismiss_);
  buttons->addWidget(MakeHelpButton());
  connect(cmdOK_, &QPushButton::clicked, this, &BodyEditor::Accept);
  connect(cmdDismiss_, &QPushButton::clicked, this, &BodyEditor::reject);
  return buttons;
}

void BodyEditor::AddBodyBox(QGridLayout& page, const char* array, int index, const BodyBox& row) {
  auto* box = new NumberBox;
  box->SetNames(array, index);
  box->SetRange(RangeIn(texts_.Ranges, row.What));
  box->setAccessibleName(SpokenLabel(row.Label));
  Guide(*box, FieldOf(row.What));
  AddLine(page, row.Label, box, {box});
  connect(box, &NumberBox::Changed, this, &BodyEditor::Touched);
  bodyBoxes_.push_back({box, &FieldOf(row.What)});
  propsBoxes_.push_back(row.PropsBox);
}

void BodyEditor::ShowBodyBoxes(const StarfoldProfile& body) {
  for (const auto& box : bodyBoxes_) box.Show(body);
}

void BodyEditor::StoreBodyBoxes(StarfoldProfile& body) const {
  for (const auto& box : bodyBoxes_) box.Store(body);
}

void BodyEditor::reject() {
  if (!preview_.DelaysClose()) PlacedDialog::reject();
}

QSize BodyEditor::sizeHint() const { return PlacedDialog::sizeHint() + kMorePreview; }

/// Escape ends a preview; without one it cancels.
void BodyEditor::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && preview_.IsOn()) return preview_.Stop();
  PlacedDialog::keyPressEvent(event);
}

/// A run takes the size of its surface once, so a resized picture needs another run.
bool BodyEditor::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    resized_ = true;
    if (preview_.IsOn()) model_.Process.Requests.AskNewRun();
  }
  return PlacedDialog::eventFilter(object, event);
}

/// Reports invalid values; the valid ones are stored in the record in any case.
bool BodyEditor::GatherIntoRecord() {
  const std::string wrong = Gather(Record());
  if (!wrong.empty()) model_.Inform(Translated(wrong));
  return wrong.empty();
}

/// Ends the preview first, because the records are restored when a run ends.
void BodyEditor::Accept() {
  acceptsAfterRun_ = preview_.IsOn();
  if (acceptsAfterRun_) return preview_.Stop();
  if (!GatherIntoRecord()) return;
  for (std::size_t i = 0; i < bodyBoxes_.size(); ++i) {
    if (propsBoxes_[i] != kNoPropsBox) props_.SetStarfoldBox(propsBoxes_[i], bodyBoxes_[i].Text());
  }
  accept();
}

/// The run is called by the handler of the click that starts it; the click that stops it arrives
/// through the run's pump.
void BodyEditor::TogglePreview() {
  if (preview_.IsOn()) return preview_.Stop();
  StoreBodyBoxes(Record());
  if (!GatherIntoRecord()) return;
  cmdPreview_->setText(tr("Stop"));
  MakeDefault(*cmdPreview_);
  cmdDismiss_->setEnabled(false);
  living_->Suspend();
  const PreviewEnd end = preview_.Start([this] { RunPreview(); });
  living_->Resume();
  cmdPreview_->setText(texts_.Preview);
  MakeDefault(*cmdOK_);
  cmdDismiss_->setEnabled(true);
  if (end == PreviewEnd::Close) return reject();
  if (acceptsAfterRun_) Accept();
}

void BodyEditor::RunPreview() {
  ProcessState& process = model_.Process;
  const UniverseSettings universe = props_.UniverseOnDialog();
  do {
    resized_ = false;
    process.Universe = universe;  // some of it affects the run of a single body as well
    PreviewEditedBody(process, picPreview_->BeginRun(), PreviewIn(universe, editBody_, false),
                      seed_());
  } while (resized_ && !process.Requests.StopRun());
}

/// The body with the editor's values, unless they define none.
std::unique_ptr<ShownBody> BodyEditor::BodyToShow() const {
  auto shown = std::make_unique<ShownBody>();
  StarfoldProfile& body = shown->Profiles[0];
  body = Record();
  StoreBodyBoxes(body);
  if (!Gather(body).empty()) return nullptr;
  shown->TakeUniverse(props_.UniverseOnDialog());
  return shown;
}

}  // namespace starfolds
