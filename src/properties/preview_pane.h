// `fraAni`: the pane of the properties dialog that shows its bodies and universe.
#pragma once

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>

#include "widgets/dialog_model.h"
#include "widgets/living_body.h"
#include "widgets/picture_box.h"
#include "widgets/preview_runs.h"

namespace starfolds {

/// What the pane asks of the dialog.
struct PreviewSource {
  /// The settings of the universe, as they would be stored.
  std::function<UniverseSettings()> Universe;

  /// The profile that is selected or open, or -1.
  std::function<int()> SelectedProfile;

  /// The body that is shown while nothing runs.
  struct Body {
    int Index = -1;  // of a profile, or of a composite if `IsComposite`; -1: none
    bool IsComposite = false;
  };
  std::function<Body()> Idle;
  /// The profile with that number, with the values of an open page.
  std::function<StarfoldProfile(int)> Profile;
  /// Stores an open page in its record, from which a run reads it.
  std::function<void()> StorePage;
  /// Called for each run.
  std::function<std::uint64_t()> Seed;
};

/// Shows the selected body while nothing else runs, and runs bodies and universes at the press of a
/// button. The picture is wider than high.
class PreviewPane : public QGroupBox {
  Q_OBJECT

 public:
  PreviewPane(const PropsModel& model, PreviewSource source, QWidget* parent = nullptr);

  /// Another body is to be shown, or its values have changed.
  void Changed() { living_->Changed(); }
  /// The camera's focal length may have changed in the stored tree.
  void CameraChanged();
  /// Puts the buttons below the picture or, in a pane that is wide and low, beside it.
  void PutButtonsBeside(bool beside);
  /// The least width of the pane while its buttons are below the picture.
  int LeastWidth() const;

  PictureBox& Picture() { return *picPreview_; }

  /// A run is in progress, in a call below this one.
  bool IsRunning() const { return preview_.IsOn(); }
  void Stop() { preview_.Stop(); }
  /// See `PreviewSwitch::DelaysClose`; `CloseRequested` follows.
  bool DelaysClose() { return preview_.DelaysClose(); }

  /// `cmdPreviewFold` and `cmdPreviewUni`.
  void ToggleBody();
  void ToggleUniverse();
  /// `cmdPreviewComp`, a button of another part of the dialog. A negative index is reported.
  void ToggleComposite(QPushButton* button, int index);

 signals:
  /// A run begins or has ended. The controls of the window are disabled while it lasts.
  void RunningChanged(bool running);
  /// The window was to be closed while a run was in progress, and can be now.
  void CloseRequested();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  using Run = std::function<void(Surface& surface)>;
  void Toggle(QPushButton* button, const Run& run);
  void RunWhileResized(const Run& run);
  std::vector<QWidget*> DisableOthers(const QPushButton* button);
  void PreviewOne(QPushButton* button, int body, bool isComposite);
  std::unique_ptr<ShownBody> BodyToShow();
  void LimitPicture();

  PropsModel model_;
  PreviewSource source_;
  PreviewSwitch preview_;
  QTimer resized_;                     // restarts a run when the picture's size has settled
  bool restarts_ = false;              // the run is to begin again, with another size
  std::optional<Single> focalLength_;  // as stored; read when it is needed first
  std::unique_ptr<LivingBody> living_;

  QBoxLayout* column_ = nullptr;
  QBoxLayout* buttons_ = nullptr;
  PictureBox* picPreview_ = nullptr;
  QPushButton* cmdPreviewFold_ = nullptr;
  QPushButton* cmdPreviewUni_ = nullptr;
};

}  // namespace starfolds
