// Whether a window is visible to the user.
#pragma once

#include <memory>

class QWindow;

namespace starfolds {

/// Watches a window. Qt reports windows as visible that are covered, or whose screen is off.
class SightWatch {
 public:
  virtual ~SightWatch() = default;

  /// Whether nothing of the window is visible. Called once a frame. Under a compositing window
  /// manager a covered window is never reported as hidden.
  virtual bool IsHidden() = 0;
};

/// Null if the window system does not report visibility. The native window must exist.
std::unique_ptr<SightWatch> MakeSightWatch(QWindow& window);

}  // namespace starfolds
