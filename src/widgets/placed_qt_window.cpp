#include "widgets/placed_qt_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace starfolds {
namespace {

/// Qt's logical pixels are 1/96 inch.
constexpr Long kTwipsPerPixel = 15;

/// Minimum size of a window in logical pixels.
constexpr int kSmallestSide = 64;

/// Of the caption and the border that a window manager adds, if they are not known yet.
constexpr QSize kUsualFrame{12, 40};

int Pixels(Long twips) { return twips / kTwipsPerPixel; }

/// The usable part of the screen at `place`, or of the window's screen if there is none.
QRect RoomAt(const QWindow& window, QPoint place) {
  const QScreen* screen = window.screen()->virtualSiblingAt(place);
  return (screen ? screen : window.screen())->availableGeometry();
}

QSize FrameOf(const QWindow& window) {
  const QMargins margins = window.frameMargins();
  const QSize frame(margins.left() + margins.right(), margins.top() + margins.bottom());
  return frame.isNull() ? kUsualFrame : frame;
}

int Within(int place, int size, int from, int to) {
  return std::max(from, std::min(place, to - size + 1));
}

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
  const QPoint place(Pixels(left), Pixels(top));
  const QRect room = RoomAt(window_, place);
  const QSize size = window_.size() + FrameOf(window_);
  window_.setFramePosition({Within(place.x(), size.width(), room.left(), room.right()),
                            Within(place.y(), size.height(), room.top(), room.bottom())});
}

void PlacedQtWindow::Move(const WindowBounds& bounds) {
  const QRect room = RoomAt(window_, {Pixels(bounds.Left), Pixels(bounds.Top)});
  const QSize most = (room.size() - FrameOf(window_)).expandedTo({kSmallestSide, kSmallestSide});
  window_.resize(std::clamp(Pixels(bounds.Width), kSmallestSide, most.width()),
                 std::clamp(Pixels(bounds.Height), kSmallestSide, most.height()));
  Move(bounds.Left, bounds.Top);
}

void PlacedQtWindow::CentreOnScreen() {
  const QRect room = window_.screen()->availableGeometry();
  QRect place(QPoint(), window_.size() + FrameOf(window_));
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
