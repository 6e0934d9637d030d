// A box of a dialog that is drawn on as the saver's own window is.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/window_surface.h"

namespace starfolds {

/// A window of its own inside the dialog: what is plotted takes the same way to the screen as the
/// stars of the saver, which the pictures of other boxes do not.
class SurfaceBox : public QWidget, private WindowEvents {
 public:
  /// Has `plot` called when the box has come to be seen, and after each change of its size, with a
  /// black surface of the size of the box that is on the screen already.
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
