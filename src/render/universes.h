// Rendering of a range of universes, each by itself.
#pragma once

#include "command_line/fault.h"
#include "render/options.h"

namespace starfolds {

/// Renders each universe of `options.Universes` as a run of its own, with the number in the names
/// of its files: DIR/universe-000007/, NAME-000007.mp4. A universe whose files an earlier call with
/// the same settings has completed is not rendered again; a hidden file beside each, `.NAME.done`,
/// says so. Calls with other universes write other files. Returns the first fault.
Fault RenderUniverses(const RenderOptions& options, SettingsRecords& records);

}  // namespace starfolds
