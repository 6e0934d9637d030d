// A window of another program that a dialog of this program belongs to.
#pragma once

#include <QTimer>
#include <QWindow>
#include <functional>
#include <memory>

#include "numbers/words.h"

namespace starfolds {

/// While it exists, the window takes no input, as below a modal dialog of its own program.
class ForeignOwner {
 public:
  /// `gone` is called from inside the pump when the window has been destroyed, and with it, by the
  /// system, the dialog's window.
  ForeignOwner(Long handle, const std::function<void()>& gone);
  /// The window takes input again, and has the focus.
  ~ForeignOwner();
  ForeignOwner(const ForeignOwner&) = delete;
  ForeignOwner& operator=(const ForeignOwner&) = delete;

  /// Null if there is no such window, or the window system gives no access to it.
  QWindow* Window() const { return window_.get(); }

 private:
  std::unique_ptr<QWindow> window_;
  QTimer check_;
};

}  // namespace starfolds
