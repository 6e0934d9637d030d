// One rendering, from the options to the finished files.
#pragma once

#include "command_line/fault.h"
#include "render/options.h"

namespace starfolds {

/// Renders one run of `records`, which are clamped. `title` stands before the progress bar. Returns
/// what went wrong, if anything.
Fault RenderOneRun(const RenderOptions& options, SettingsRecords& records,
                   const std::string& title);

/// Renders what the options ask for: one run, or one for each universe.
Fault Render(const RenderOptions& options, SettingsRecords& records);

}  // namespace starfolds
