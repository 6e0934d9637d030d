// The events that a window reports to the host of a run.
#pragma once

#include <Qt>

namespace starfolds {

/// Called from inside the pump, between two frames. A host overrides what it needs.
class WindowEvents {
 public:
  virtual ~WindowEvents() = default;

  /// A key press that counts (see `KeyPresses`). `key` is a Qt::Key, `modifiers` the held
  /// modifiers.
  virtual void KeyDown(int /*key*/, Qt::KeyboardModifiers /*modifiers*/) {}

  /// The wheel was turned, or two fingers moved on a touchpad. Momentum events after the fingers
  /// have left the touchpad are not reported.
  virtual void Scroll() {}

  /// Any button. A double click is reported as two presses with a `DoubleClick` after the second.
  virtual void MouseDown() {}
  virtual void DoubleClick() {}

  /// The pointer's new position in the window, in logical pixels.
  virtual void MouseMove(int /*x*/, int /*y*/) {}

  /// The user or the desktop asks the window to close. It stays open until the host closes it.
  virtual void CloseRequested() {}

  /// The window has become visible, with the size that the desktop gave it.
  virtual void Exposed() {}

  /// The window has another size.
  virtual void Resized() {}

  /// The window was destroyed, or is about to be, without a request to close.
  virtual void Destroyed() {}
};

}  // namespace starfolds
