#include "widgets/living_body.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "numbers/conversions.h"

namespace starfolds {
namespace {

constexpr int kChangeMs = 100;  // from a change to the restart, during which more may follow
constexpr int kFrameMs = 40;    // least time from frame to frame
constexpr int kWarmUpMs = 5;    // processor time at a stretch before the first frame is shown
constexpr int kMostWarmUpMs = 120;
constexpr int kRestFactor = 8;  // a frame that took n ms is followed by the next one after 8 n

/// Whether the widgets of the user's desktop are not animated.
bool WantsNoMotion(const QWidget& widget) {
  return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) == 0;
}

}  // namespace

LivingBody::LivingBody(PictureBox& box, Source shown) : box_(box), source_(std::move(shown)) {
  box_.installEventFilter(this);
  restart_.setSingleShot(true);
  restart_.setInterval(kChangeMs);
  next_.setSingleShot(true);
  connect(&restart_, &QTimer::timeout, this, &LivingBody::Restart);
  connect(&next_, &QTimer::timeout, this, &LivingBody::DrawNext);
}

/// Does not put a restart off that is due: a series of changes, such as a held arrow key, shows.
void LivingBody::Changed() {
  if (!suspended_ && !restart_.isActive()) restart_.start();
}

void LivingBody::SetFitted(bool fitted) {
  fitted_ = fitted;
  Changed();
}

void LivingBody::SetMoving(bool moving) {
  moving_ = moving;
  if (MayMove()) next_.start(0);
}

std::array<QCheckBox*, 2> LivingBody::MakeSwitches() {
  auto* fit = new QCheckBox(tr("Fit"));
  fit->setObjectName("chkFit");
  fit->setToolTip(
      tr("The body fills the picture. Otherwise it is at its distance from the camera, "
         "as in a run."));
  auto* move = new QCheckBox(tr("Move"));
  move->setObjectName("chkMove");
  move->setToolTip(tr("The body moves while no preview runs."));
  move->setChecked(!WantsNoMotion(box_));
  SetMoving(move->isChecked());
  connect(fit, &QCheckBox::toggled, this, &LivingBody::SetFitted);
  connect(move, &QCheckBox::toggled, this, &LivingBody::SetMoving);
  return {fit, move};
}

void LivingBody::Suspend() {
  suspended_ = true;
  restart_.stop();
  next_.stop();
  body_.reset();
}

void LivingBody::Resume() {
  suspended_ = false;
  Changed();
}

bool LivingBody::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize: Changed(); break;
    case QEvent::Show:
      if (!body_) {
        Changed();
        break;
      }
      [[fallthrough]];
    case QEvent::WindowActivate:
      if (body_ && !next_.isActive()) next_.start(kFrameMs);
      break;
    default: break;
  }
  return QObject::eventFilter(object, event);
}

void LivingBody::Restart() {
  if (!box_.isVisible()) return;
  next_.stop();
  body_.reset();
  frames_ = 0;
  const std::unique_ptr<ShownBody> shown = source_();
  if (!shown) return box_.ShowPicture({});
  stage_.Take(*shown);
  std::optional<BodyCamera> camera;
  if (fitted_) {
    camera = stage_.FittedCamera(RoundedToLimits<Integer>(box_.width()),
                                 RoundedToLimits<Integer>(box_.height()));
  }
  canvas_ = &box_.BeginRun();
  body_ = stage_.Begin(*canvas_, camera);
  warmUpLeft_ = stage_.WarmUpFrames();
  warmUpMs_ = 0;
  DrawNext();
}

bool LivingBody::MayMove() const {
  return body_ && moving_ && !suspended_ && box_.isVisible() && box_.window()->isActiveWindow() &&
         !box_.window()->isMinimized() && !box_.visibleRegion().isEmpty();
}

/// Draws the first frames without showing them, in portions, so that they delay no input.
bool LivingBody::WarmUp() {
  QElapsedTimer clock;
  clock.start();
  while (warmUpLeft_ > 0 && clock.elapsed() < kWarmUpMs) {
    body_->Step();
    --warmUpLeft_;
  }
  warmUpMs_ += clock.elapsed();
  return warmUpLeft_ <= 0 || warmUpMs_ > kMostWarmUpMs;
}

void LivingBody::DrawNext() {
  if (!body_) return;
  if (frames_ == 0 && !WarmUp()) return next_.start(0);
  if (frames_ > 0 && !MayMove()) return;
  QElapsedTimer clock;
  clock.start();
  body_->Step();
  canvas_->Present();
  ++frames_;
  const auto rest = static_cast<int>(clock.elapsed()) * kRestFactor;
  if (MayMove()) next_.start(std::max(kFrameMs, rest));
}

}  // namespace starfolds
