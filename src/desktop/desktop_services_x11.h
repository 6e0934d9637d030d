// The windows of an X server.
#pragma once

#include <memory>

#include "platform/desktop_services.h"

namespace starfolds {

/// Null if the application does not run on an X server.
std::unique_ptr<DesktopServices> MakeX11Desktop();

}  // namespace starfolds
