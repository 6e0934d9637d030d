// Finding the windows of other processes where the window system hides them.
#pragma once

#include <memory>

#include "platform/desktop_services.h"

namespace starfolds {

/// The services of a desktop whose programs cannot see each other's windows. Our own processes meet
/// by files instead: one for each caption, which is locked by the process whose window has it, and
/// a socket beside it through which that window is asked to come forward.
///
/// Whoever asks `WindowExists` and is told no has the caption from then on, until his process ends:
/// of several starts at once only one is told no. A window that is shown takes its caption too.
///
/// The application object exists already, and outlives the result.
std::unique_ptr<DesktopServices> MakeInstanceDesktop();

}  // namespace starfolds
