// One rendering, from the options to the finished files.
#pragma once

#include "render/fault.h"
#include "render/options.h"

namespace starfolds {

Fault Render(RenderOptions& options);

}  // namespace starfolds
