#include "widgets/placed_qt_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace starfolds {
namespace {

/// Qt's logical pixels are 1/96 inch.
constexpr Long kTwipsPerPixel = 15;

/// Minimum size of a window, and the minimum part of a larger one that must be on a screen, in
/// logical pixels.
constexpr int kSmallestSide = 64;

int Pixels(Long twips) { return twips / kTwipsPerPixel; }

}  // namespace

WindowState PlacedQtWindow::State() const {
  const Qt::WindowStates states = window_.windowStates();
  if (states.testFlag(Qt::WindowMinimized)) return WindowState::Minimised;
  const bool full = states & (Qt::WindowMaximized | Qt::WindowFullScreen);
  return full ? WindowState::Maximised : WindowState::Normal;
}

WindowBounds PlacedQtWindow::Bounds() const {
  const QPoint place = window_.framePosition();
  return {place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel, window_.width() * kTwipsPerPixel,
          window_.height() * kTwipsPerPixel};
}

void PlacedQtWindow::ApplyState(WindowState state) {
  window_.setWindowState(state == WindowState::Maximised ? Qt::WindowMaximized : Qt::WindowNoState);
}

void PlacedQtWindow::Move(Long left, Long top) {
  const QRect desktop = window_.screen()->virtualGeometry();
  window_.setFramePosition({std::min(Pixels(left), desktop.right() - kSmallestSide),
                            std::min(Pixels(top), desktop.bottom() - kSmallestSide)});
}

void PlacedQtWindow::Move(const WindowBounds& bounds) {
  const QSize desktop = window_.screen()->virtualSize();
  window_.resize(std::clamp(Pixels(bounds.Width), kSmallestSide, desktop.width()),
                 std::clamp(Pixels(bounds.Height), kSmallestSide, desktop.height()));
  Move(bounds.Left, bounds.Top);
}

void PlacedQtWindow::CentreOnScreen() {
  QRect place(QPoint(), window_.size());
  const QRect room = window_.screen()->availableGeometry();
  place.moveCenter(room.center());
  // If the window is larger than the screen, its caption stays reachable.
  window_.setFramePosition(
      {std::max(place.left(), room.left()), std::max(place.top(), room.top())});
}

void ShowWherePlaced(QWidget& window, KeyValueTree& tree, std::string_view section) {
  window.winId();  // creates the native window, which can be placed before it is shown
  QWindow& handle = *window.windowHandle();
  PlacedQtWindow placed(handle);
  RestoreWindowPlacement(placed, tree, section);
  // Showing moves the window to the position that the widget has recorded.
  const QPoint place = handle.framePosition();
  window.resize(handle.size());
  window.move(place);
  if (placed.State() == WindowState::Maximised) {
    window.showMaximized();
  } else {
    window.show();
  }
}

}  // namespace starfolds
