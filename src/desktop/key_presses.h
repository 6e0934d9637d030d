// Which key events are a person's key presses.
#pragma once

#include <QKeyEvent>

namespace starfolds {

/// Sorts out the key events of a window that say nothing about what the user wants of it.
class KeyPresses {
 public:
  /// Whether the event is the press of a key that counts. Repeats of a held key do not, even if it
  /// was held before the window had the focus; neither do modifiers and lock keys alone, nor keys
  /// that work on the machine whatever window has the focus (volume, playback, brightness).
  bool Counts(const QKeyEvent& press) const;

  /// To be told of every release.
  void Released(const QKeyEvent& release);

 private:
  quint32 releasedKey_ = 0;  // native scan code
  quint64 releaseTime_ = 0;  // by the window system's clock
};

}  // namespace starfolds
