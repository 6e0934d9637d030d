// A window of another program, to draw inside.
#pragma once

#include <QSize>
#include <memory>

#include "numbers/words.h"

class QWindow;

namespace starfolds {

/// Reports what happens to the window. Called from inside the pump.
class ForeignWindowEvents {
 public:
  virtual ~ForeignWindowEvents() = default;

  /// The window has another size, and its child has been resized to it.
  virtual void HostResized() = 0;

  /// The window or the child in it was destroyed; nothing can be shown any more.
  virtual void HostGone() = 0;
};

/// The position of a guest in the stacking order inside its host's window. A saver is at the
/// bottom, so that a host can show a password prompt above it; a preview is at the top.
enum class GuestOrder { Bottom, Top };

class ForeignWindow {
 public:
  virtual ~ForeignWindow() = default;

  /// Makes `child` a child of this window that covers it and follows its size. `order` is its place
  /// among the existing children. `child` must be destroyed before this object. False if the window
  /// is gone.
  virtual bool TakeIn(QWindow& child, GuestOrder order) = 0;

  /// In logical pixels, rounded up.
  virtual QSize Size() const = 0;
};

/// Subscribes to the events of the window `handle`. Null if there is no such window, if it cannot
/// show anything, or if the window system has no access to windows of other programs. `events` must
/// outlive the result.
std::unique_ptr<ForeignWindow> OpenForeignWindow(Long handle, ForeignWindowEvents& events);

/// Whether the application object is connected to a window system that gives access to windows of
/// other programs.
bool CanOpenForeignWindows();

/// Makes the application object, which must not exist yet, connect to such a window system even if
/// another one is preferred. False if there is none.
bool ChooseForeignWindowSystem();

}  // namespace starfolds
