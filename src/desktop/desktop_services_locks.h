// Finds the windows of other processes where the window system hides them.
#pragma once

#include <memory>

#include "platform/desktop_services.h"

namespace starfolds {

/// The services of a desktop whose programs cannot see each other's windows. Processes of this
/// program find each other by files: each caption has a lock file, locked by the process whose
/// window has the caption, and a socket, through which that window is asked to come to the front.
///
/// A process for which `WindowExists` returns false owns the caption from then on until it ends: of
/// several simultaneous starts only one gets false. A window that is shown takes its caption too.
///
/// The application object must exist, and outlive the result.
std::unique_ptr<DesktopServices> MakeLockDesktop();

}  // namespace starfolds
