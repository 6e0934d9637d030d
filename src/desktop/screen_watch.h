// The screens of the desktop, and their changes.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QScreen;

namespace starfolds {

/// The screen with this number, counted from 0 with the primary screen first. Null if there are not
/// that many.
QScreen* FindScreen(int number);

/// Notices screens that are added, removed, moved or resized.
class ScreenWatch {
 public:
  /// `changed` is called from inside the pump. A change of the desktop arrives as many events,
  /// which are reported once when no more follow.
  explicit ScreenWatch(std::function<void()> changed);

 private:
  void Watch(QScreen* screen);

  QTimer rest_;
  QObject context_;  // its destruction disconnects the signals
};

}  // namespace starfolds
