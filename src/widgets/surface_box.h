// A box of a dialog that is drawn on like the saver's own window.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/window_surface.h"

namespace starfolds {

/// A native window inside the dialog: unlike the pictures of other boxes, its pixels are drawn on
/// the screen in the same way as the saver's stars.
class SurfaceBox : public QWidget, private WindowEvents {
 public:
  /// Calls `plot` when the box becomes visible and after each change of its size, with a black
  /// surface of the box's size that is on the screen already.
  explicit SurfaceBox(std::function<void(Surface&)> plot, QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Exposed() override;

  std::function<void(Surface&)> plot_;
  WindowSurface surface_;
};

}  // namespace starfolds
