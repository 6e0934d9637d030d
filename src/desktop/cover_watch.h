// Whether a window is covered by others.
#pragma once

#include <memory>

class QWindow;

namespace starfolds {

/// Watches a window. The toolkit takes one that others cover for visible.
class CoverWatch {
 public:
  virtual ~CoverWatch() = default;

  /// Whether nothing of the window can be seen. Never true under a manager that composes its
  /// windows: it keeps the picture of each.
  virtual bool IsCovered() const = 0;
};

/// Nothing where the window system does not tell. The window exists there already.
std::unique_ptr<CoverWatch> MakeCoverWatch(QWindow& window);

}  // namespace starfolds
