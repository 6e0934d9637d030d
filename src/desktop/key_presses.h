// Which key events count as key presses of the user.
#pragma once

#include <QKeyEvent>

namespace starfolds {

/// Filters the key events of a window.
class KeyPresses {
 public:
  /// Whether the event is a key press that counts. Not counted: repeats of a held key, even if it
  /// was held before the window had the focus; modifiers and lock keys alone; keys that act on the
  /// machine whatever window has the focus (volume, playback, brightness).
  bool Counts(const QKeyEvent& press) const;

  /// Must be called for every key release.
  void Released(const QKeyEvent& release);

 private:
  quint32 releasedKey_ = 0;  // native scan code
  quint64 releaseTime_ = 0;  // in the window system's time
};

}  // namespace starfolds
