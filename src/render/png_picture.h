// Pictures as PNG files.
#pragma once

#include <string>

#include "command_line/fault.h"
#include "render/output_file.h"
#include "render/picture.h"

namespace starfolds {

/// Writes `picture` with each pixel as a block of `scale` x `scale`.
Fault WritePng(const std::string& path, const Picture& picture, int scale);

/// The same for a file that is open, which is completed.
Fault WritePng(OutputFile& file, const Picture& picture, int scale);

}  // namespace starfolds
