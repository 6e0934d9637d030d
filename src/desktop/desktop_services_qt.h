// The desktop environment of this process.
#pragma once

#include <memory>

#include "platform/desktop_services.h"

namespace starfolds {

/// The services of the window system that the application object is connected to.
std::unique_ptr<DesktopServices> MakeDesktopServices();

}  // namespace starfolds
