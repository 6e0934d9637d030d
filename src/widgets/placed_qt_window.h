// A Qt window as an object of the stored placement.
#pragma once

#include <QWidget>
#include <QWindow>

#include "settings/window_placement.h"

namespace starfolds {

/// Left and top are those of the frame, width and height those of the client area. The window may
/// still be hidden.
class PlacedQtWindow : public PlacedWindow {
 public:
  explicit PlacedQtWindow(QWindow& window) : window_(window) {}

  /// A window that fills the screen counts as maximised.
  WindowState State() const override;
  WindowBounds Bounds() const override;
  bool Sizable() const override { return true; }
  void ApplyState(WindowState state) override;
  /// The stored position may come from another desktop: the window gets a size that fits a screen,
  /// and a position on which it is completely on it.
  void Move(Long left, Long top) override;
  void Move(const WindowBounds& bounds) override;
  void CentreOnScreen() override;

 private:
  QWindow& window_;
};

/// Shows a window at the position that was stored in `section`.
void ShowWherePlaced(QWidget& window, KeyValueTree& tree, std::string_view section);

}  // namespace starfolds
