// What a window tells the host of the effect.
#pragma once

#include <Qt>

namespace starfolds {

/// Called from inside the pump, between two frames. A host leaves out what it does not care for.
class WindowEvents {
 public:
  virtual ~WindowEvents() = default;

  /// A press that counts (see `KeyPresses`): `key` is a Qt::Key, `modifiers` what is held with it.
  virtual void KeyDown(int /*key*/, Qt::KeyboardModifiers /*modifiers*/) {}

  /// The wheel was turned, or two fingers moved over a touchpad. Not told of what only rolls on
  /// after the fingers have gone.
  virtual void Scroll() {}

  /// Any button. A double click is told as two presses with a `DoubleClick` behind the second.
  virtual void MouseDown() {}
  virtual void DoubleClick() {}

  /// The pointer is at this place of the window, in logical pixels.
  virtual void MouseMove(int /*x*/, int /*y*/) {}

  /// The desktop asks the window to go. It stays until the host lets it go.
  virtual void CloseRequested() {}

  /// The window came to be seen. It has the size that the desktop gave it.
  virtual void Exposed() {}

  /// The window has another size.
  virtual void Resized() {}

  /// The window is gone, or about to, without having been asked.
  virtual void Destroyed() {}
};

}  // namespace starfolds
