// A window of the toolkit, as its stored placement sees it.
#pragma once

#include <QWidget>
#include <QWindow>

#include "settings/window_placement.h"

namespace starfolds {

/// Left and top are those of the frame, width and height those of what is inside. The window need
/// not be shown yet.
class PlacedQtWindow : public PlacedWindow {
 public:
  explicit PlacedQtWindow(QWindow& window) : window_(window) {}

  /// A window that fills the screen counts as maximised.
  WindowState State() const override;
  WindowBounds Bounds() const override;
  bool Sizable() const override { return true; }
  void ApplyState(WindowState state) override;
  /// What was stored may come from another desktop: the window gets a size that can be worked with,
  /// in a place where it can be reached.
  void Move(Long left, Long top) override;
  void Move(const WindowBounds& bounds) override;
  void CentreOnScreen() override;

 private:
  QWindow& window_;
};

/// Shows a window where it stood when its placement was saved in `section`.
void ShowWherePlaced(QWidget& window, KeyValueTree& tree, std::string_view section);

}  // namespace starfolds
