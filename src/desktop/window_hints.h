// What a window tells the window system and which the toolkit has no call for. Each does nothing
// where the window system knows no such thing.
#pragma once

class QWindow;

namespace starfolds {

/// Property of a window object: if true, `DesktopServices` of this process does not find the window
/// by its caption.
inline constexpr char kUnlistedProperty[] = "starfolds_unlisted";

/// Marks a window that `DesktopServices` of other processes do not find by its caption either. The
/// window has been created.
void MarkUnlisted(QWindow& window);

/// Marks a window as part of the desktop's background: it is on all workspaces, and in no task bar
/// or window switcher. The window has been created and is not shown.
void MarkAsBackground(QWindow& window);

}  // namespace starfolds
