// A window of another program, to draw inside.
#pragma once

#include <QSize>
#include <memory>

#include "numbers/words.h"

class QWindow;

namespace starfolds {

/// What becomes of the window. Called from inside the pump.
class ForeignWindowEvents {
 public:
  virtual ~ForeignWindowEvents() = default;

  /// The child that was put into it has been given the new size.
  virtual void HostResized() = 0;

  /// The window is gone, or the child in it is: nothing can be shown any more.
  virtual void HostGone() = 0;
};

/// Where a guest stands among what else is inside its host's window. A saver stands below it, so
/// that a host can show a question for the password; a preview is what its place is for.
enum class GuestOrder { Bottom, Top };

class ForeignWindow {
 public:
  virtual ~ForeignWindow() = default;

  /// Makes `child` a window inside this one that covers it, and keeps its size. `order` is its
  /// place among the windows that are inside already. The child is destroyed before this object.
  /// False: the window is gone.
  virtual bool TakeIn(QWindow& child, GuestOrder order) = 0;

  /// In logical pixels, a part of one counted as a whole.
  virtual QSize Size() const = 0;
};

/// Listens to the window `handle` from now on. Nothing where there is no such window, or none that
/// can show anything, or where programs have no way into each other's windows. `events` outlives
/// the result.
std::unique_ptr<ForeignWindow> OpenForeignWindow(Long handle, ForeignWindowEvents& events);

/// Whether the application object has connected to a window system that lets programs into each
/// other's windows.
bool CanOpenForeignWindows();

/// To be called before the application object is made: makes it connect to such a window system,
/// even where another one is preferred. False: there is none.
bool ChooseForeignWindowSystem();

}  // namespace starfolds
