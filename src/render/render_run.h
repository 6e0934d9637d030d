// One rendering, from the options to the finished files.
#pragma once

#include "command_line/fault.h"
#include "render/options.h"

namespace starfolds {

/// `records` are what the run is to show; they are clamped.
Fault Render(const RenderOptions& options, SettingsRecords& records);

}  // namespace starfolds
