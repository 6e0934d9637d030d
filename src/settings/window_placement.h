// The position and size of a window, in the stored tree.
#pragma once

#include <string_view>

#include "numbers/words.h"
#include "platform/key_value_tree.h"

namespace starfolds {

/// In twips, 1440 to the logical inch.
struct WindowBounds {
  Long Left = 0;
  Long Top = 0;
  Long Width = 0;
  Long Height = 0;

  bool operator==(const WindowBounds&) const = default;
};

/// `WindowState`.
enum class WindowState : Integer { Normal = 0, Minimised = 1, Maximised = 2 };

/// A window with a stored placement. The stored bounds are passed on unchecked; the window limits
/// them to what is possible.
class PlacedWindow {
 public:
  virtual ~PlacedWindow() = default;
  virtual WindowState State() const = 0;
  virtual WindowBounds Bounds() const = 0;
  virtual bool Sizable() const = 0;
  virtual void ApplyState(WindowState state) = 0;
  virtual void Move(Long left, Long top) = 0;
  virtual void Move(const WindowBounds& bounds) = 0;
  virtual void CentreOnScreen() = 0;
};

/// Writes `WindowState` and, unless the window is minimised, `WindowSize`.
void SaveWindowPlacement(const PlacedWindow& window, KeyValueTree& tree, std::string_view section);

/// Restores the stored placement, or centres the window on the screen if there is none.
void RestoreWindowPlacement(PlacedWindow& window, KeyValueTree& tree, std::string_view section);

}  // namespace starfolds
