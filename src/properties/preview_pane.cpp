#include "properties/preview_pane.h"

#include <QEvent>
#include <QMenuBar>
#include <QResizeEvent>
#include <algorithm>
#include <utility>

#include "settings/stored_records.h"

namespace starfolds {
namespace {

constexpr QSize kLeastPreview{280, 180};
constexpr int kResizePauseMs = 150;

// Width to height of the picture.
constexpr double kLeastRatio = 4.0 / 3;
constexpr double kMostRatio = 2.4;

}  // namespace

PreviewPane::PreviewPane(const PropsModel& model, PreviewSource source, QWidget* parent)
    : QGroupBox(parent), model_(model), source_(std::move(source)), preview_(model.Process) {
  setObjectName("fraAni");
  column_ = new QBoxLayout(QBoxLayout::TopToBottom, this);
  picPreview_ = new PictureBox;
  picPreview_->setObjectName("picPreview");
  picPreview_->setAccessibleName(tr("Preview"));
  picPreview_->setMinimumSize(kLeastPreview);
  picPreview_->installEventFilter(this);
  column_->addWidget(picPreview_, 1);
  living_ = std::make_unique<LivingBody>(*picPreview_, [this] { return BodyToShow(); });

  buttons_ = new QBoxLayout(QBoxLayout::LeftToRight);
  cmdPreviewFold_ = MakeButton(tr("Preview Starfold"), "cmdPreviewFold");
  cmdPreviewUni_ = MakeButton(tr("Preview Universe"), "cmdPreviewUni");
  buttons_->addWidget(cmdPreviewFold_);
  buttons_->addWidget(cmdPreviewUni_);
  buttons_->addStretch();
  for (QCheckBox* box : living_->MakeSwitches()) buttons_->addWidget(box);
  column_->addLayout(buttons_);
  column_->addStretch(0);

  resized_.setSingleShot(true);
  resized_.setInterval(kResizePauseMs);
  connect(&resized_, &QTimer::timeout, this, [this] {
    restarts_ = preview_.IsOn();
    if (restarts_) model_.Process.Requests.AskNewRun();
  });
  connect(cmdPreviewFold_, &QPushButton::clicked, this, &PreviewPane::ToggleBody);
  connect(cmdPreviewUni_, &QPushButton::clicked, this, &PreviewPane::ToggleUniverse);
}

void PreviewPane::CameraChanged() {
  focalLength_.reset();
  Changed();
}

void PreviewPane::PutButtonsBeside(bool beside) {
  column_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  buttons_->setDirection(beside ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  LimitPicture();
}

int PreviewPane::LeastWidth() const {
  int buttons = 0;
  for (int i = 0; i < buttons_->count(); ++i) {
    buttons += buttons_->itemAt(i)->minimumSize().width() + buttons_->spacing();
  }
  const QMargins edges = contentsMargins() + column_->contentsMargins();
  return std::max(kLeastPreview.width(), buttons) + edges.left() + edges.right();
}

void PreviewPane::resizeEvent(QResizeEvent* event) {
  QGroupBox::resizeEvent(event);
  LimitPicture();
}

/// A picture that is much higher or wider than a body would be mostly black, or cut it off.
void PreviewPane::LimitPicture() {
  const bool isBelow = column_->direction() == QBoxLayout::TopToBottom;
  const QSize room = contentsRect().size();
  const int highest = isBelow ? static_cast<int>(room.width() / kLeastRatio) : QWIDGETSIZE_MAX;
  const int widest = isBelow ? QWIDGETSIZE_MAX : static_cast<int>(room.height() * kMostRatio);
  picPreview_->setMaximumSize(QSize(widest, highest).expandedTo(kLeastPreview));
}

bool PreviewPane::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize && preview_.IsOn()) resized_.start();
  return QGroupBox::eventFilter(object, event);
}

void PreviewPane::ToggleUniverse() {
  Toggle(cmdPreviewUni_, [this](Surface& surface) {
    PreviewUniverse(model_.Process, surface, source_.Universe(), source_.Seed());
  });
}

void PreviewPane::ToggleBody() {
  if (preview_.IsOn()) return preview_.Stop();
  const int body = source_.SelectedProfile();
  if (body < 0) return model_.Inform(tr("Please select a Starfold Type."));
  PreviewOne(cmdPreviewFold_, body, false);
}

void PreviewPane::ToggleComposite(QPushButton* button, int index) {
  if (preview_.IsOn()) return preview_.Stop();
  if (index < 0) return model_.Inform(tr("Please select a Composite Starfold Type."));
  PreviewOne(button, index, true);
}

void PreviewPane::PreviewOne(QPushButton* button, int body, bool isComposite) {
  Toggle(button, [&](Surface& surface) {
    const UniverseSettings universe = source_.Universe();
    model_.Process.Universe = universe;  // a single body uses some of its settings
    PreviewBody(model_.Process, surface, PreviewIn(universe, body, isComposite), source_.Seed());
  });
}

/// The preview runs inside the click handler that started it; the click that stops it arrives
/// through the run's pump. All other controls are disabled meanwhile.
void PreviewPane::Toggle(QPushButton* button, const Run& run) {
  if (preview_.IsOn()) return preview_.Stop();
  source_.StorePage();
  const std::vector<QWidget*> disabled = DisableOthers(button);
  emit RunningChanged(true);
  const QString caption = button->text();
  button->setText(tr("Stop"));
  button->setFocus();
  living_->Suspend();
  const PreviewEnd end = preview_.Start([&] { RunWhileResized(run); });
  living_->Resume();
  button->setText(caption);
  for (QWidget* widget : disabled) widget->setEnabled(true);
  emit RunningChanged(false);
  if (end == PreviewEnd::Close) emit CloseRequested();
}

/// A run takes the size of its surface once, so a resized picture needs another run.
void PreviewPane::RunWhileResized(const Run& run) {
  do {
    restarts_ = false;
    model_.Process.Requests.TakeNewRun();
    run(picPreview_->BeginRun());
  } while (restarts_ && !model_.Process.Requests.StopRun());
}

/// The bar between form and pane stays usable.
std::vector<QWidget*> PreviewPane::DisableOthers(const QPushButton* button) {
  std::vector<QWidget*> disabled;
  for (QWidget* widget : window()->findChildren<QWidget*>()) {
    const bool isParent = widget->isAncestorOf(button) || widget->isWindow();
    if (widget == button || isParent || !widget->isEnabled()) continue;
    if (widget->focusPolicy() == Qt::NoFocus && !qobject_cast<QMenuBar*>(widget)) continue;
    disabled.push_back(widget);
  }
  for (QWidget* widget : disabled) widget->setEnabled(false);
  return disabled;
}

std::unique_ptr<ShownBody> PreviewPane::BodyToShow() {
  const PreviewSource::Body selected = source_.Idle();
  if (selected.Index < 0) return nullptr;
  auto shown = std::make_unique<ShownBody>();
  if (selected.IsComposite) {
    shown->Profiles = model_.Profiles();
    shown->Composite = model_.Composites()[selected.Index];
  } else {
    shown->Profiles[0] = source_.Profile(selected.Index);
  }
  shown->TakeUniverse(source_.Universe());
  if (!focalLength_) focalLength_ = LoadAdvancedFromRegistry(*model_.Process.Tree).FocalLength;
  shown->FocalLength = *focalLength_;
  return shown;
}

}  // namespace starfolds
