// A body that turns in a picture box while nothing else runs there.
#pragma once

#include <QCheckBox>
#include <QObject>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "widgets/body_stage.h"
#include "widgets/picture_box.h"

namespace starfolds {

/// Draws one body frame by frame from a timer, under the rules of its run, at most 25 frames a
/// second and with at most an eighth of a processor. It moves while the box is visible and its
/// window active; otherwise the last frame stays. A change is shown within 300 ms, also if the body
/// does not move.
class LivingBody : public QObject {
  Q_OBJECT

 public:
  /// `shown` returns the body to show, with the values of the dialog, or nullptr to show black. It
  /// is called from a timer. `box` must outlive this object.
  using Source = std::function<std::unique_ptr<ShownBody>()>;
  LivingBody(PictureBox& box, Source shown);

  /// The body or its values may have changed, or another one is to be shown.
  void Changed();

  /// Whether the body fills the box, instead of standing at its distance from the camera.
  void SetFitted(bool fitted);
  /// Whether it moves.
  void SetMoving(bool moving);

  /// The switches below a picture: `chkFit` ("Fit") and `chkMove` ("Move"), which is off if the
  /// user's desktop asks for no motion.
  std::array<QCheckBox*, 2> MakeSwitches();

  /// A run draws on the box until `Resume`.
  void Suspend();
  void Resume();

  /// The number of frames drawn since the body was last changed.
  int Frames() const { return frames_; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Restart();
  bool WarmUp();
  void DrawNext();
  bool MayMove() const;

  PictureBox& box_;
  Source source_;
  BodyStage stage_;
  std::unique_ptr<SingleBody> body_;  // draws on the canvas of the box
  Surface* canvas_ = nullptr;
  QTimer restart_;
  QTimer next_;
  int warmUpLeft_ = 0;   // frames to draw before the first one that is shown
  qint64 warmUpMs_ = 0;  // processor time spent on them
  int frames_ = 0;
  bool fitted_ = false;
  bool moving_ = true;
  bool suspended_ = false;
};

}  // namespace starfolds
