// Whether anybody could see a window.
#pragma once

#include <memory>

class QWindow;

namespace starfolds {

/// Watches a window. The toolkit takes one for visible that others cover, or whose screen sleeps.
class SightWatch {
 public:
  virtual ~SightWatch() = default;

  /// Whether nothing of the window can be seen. Asked once a frame. A manager that composes its
  /// windows keeps the picture of each and never calls one covered.
  virtual bool IsHidden() = 0;
};

/// Nothing where the window system does not tell. The window exists there already.
std::unique_ptr<SightWatch> MakeSightWatch(QWindow& window);

}  // namespace starfolds
