// The plain-text report that a user pastes into a bug report.
#pragma once

#include <string>

#include "info/diagnostics.h"

namespace starfolds {

/// What the program alone knows of itself.
struct ProgramFacts {
  std::string Version;    // of this build
  std::string TreePlace;  // the path of the user's stored settings
};

/// "Debian GNU/Linux 12 (bookworm)", "Windows 11 ...".
std::string SystemName();

/// The system's major version, ".", and its minor version.
std::string SystemVersion();

/// Versions, window system, screens, stored settings and what a frame costs, a line each. The
/// user's name does not appear in it as part of his folders' paths.
std::string DiagnosticsReport(const ProgramFacts& facts, const std::string& registryAccess,
                              const FrameCost& cost);

}  // namespace starfolds
