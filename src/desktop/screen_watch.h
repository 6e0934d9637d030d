// The screens of the desktop, and what becomes of them.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QScreen;

namespace starfolds {

/// The screen of this number, counted from 0 with the primary one first. Nothing where there are
/// not that many.
QScreen* FindScreen(int number);

/// Hears of screens that come, go, or change their place or size.
class ScreenWatch {
 public:
  /// `changed` is called from inside the pump. A change of the desktop is many small ones, told as
  /// one when they have come to rest.
  explicit ScreenWatch(std::function<void()> changed);

 private:
  void Watch(QScreen* screen);

  QTimer rest_;
  QObject context_;  // cuts the connections
};

}  // namespace starfolds
