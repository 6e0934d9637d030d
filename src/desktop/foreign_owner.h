// A window of another program that a dialog of this program belongs to.
#pragma once

#include <QWindow>
#include <memory>

#include "numbers/words.h"

namespace starfolds {

/// While it exists, the window takes no input, as below a modal dialog of its own program.
class ForeignOwner {
 public:
  explicit ForeignOwner(Long handle);
  /// The window takes input again, and has the focus.
  ~ForeignOwner();
  ForeignOwner(const ForeignOwner&) = delete;
  ForeignOwner& operator=(const ForeignOwner&) = delete;

  /// Null if there is no such window, or the window system gives no access to it.
  QWindow* Window() const { return window_.get(); }

 private:
  std::unique_ptr<QWindow> window_;
};

}  // namespace starfolds
