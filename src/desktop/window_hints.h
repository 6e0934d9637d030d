// Window properties that Qt has no call for. The functions do nothing on window systems that have
// no such property.
#pragma once

class QWindow;

namespace starfolds {

/// Property of a window object: if true, `DesktopServices` of this process does not find the window
/// by its caption.
inline constexpr char kUnlistedProperty[] = "starfolds_unlisted";

/// Marks a window that `DesktopServices` of other processes must not find by its caption either.
/// The native window must exist.
void MarkUnlisted(QWindow& window);

/// Marks a window as part of the desktop's background: it is on all workspaces, and not in task
/// bars or window switchers. The native window must exist and not be shown yet.
void MarkAsBackground(QWindow& window);

/// Keeps `window` above `owner`, which may be a window of another program; null: no owner. The
/// native window must exist and not be shown yet.
void SetOwner(QWindow& window, QWindow* owner);

}  // namespace starfolds
