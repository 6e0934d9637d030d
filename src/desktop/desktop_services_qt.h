// The desktop that this process runs on.
#pragma once

#include <memory>

#include "platform/desktop_services.h"

namespace starfolds {

/// The services of the window system that the application object has connected to. Where it lets
/// no program see the windows of others, no window is ever found.
std::unique_ptr<DesktopServices> MakeDesktopServices();

}  // namespace starfolds
