// One rendering, from the options to the finished files.
#pragma once

#include "command_line/fault.h"
#include "render/options.h"

namespace starfolds {

/// Renders `records`, which are clamped. Returns what went wrong, if anything.
Fault Render(const RenderOptions& options, SettingsRecords& records);

}  // namespace starfolds
