// The plain-text report that a user pastes into a bug report.
#pragma once

#include <string>

#include "info/diagnostics.h"

namespace starfolds {

/// Facts that the caller supplies.
struct ProgramFacts {
  std::string Version;    // of this build
  std::string TreePlace;  // the path of the user's stored settings
};

/// "Debian GNU/Linux 12 (bookworm)", "Windows 11 ...".
std::string SystemName();

/// The system's major version, ".", and its minor version.
std::string SystemVersion();

/// Versions, window system, screens, stored settings and the cost of a frame, one per line. Paths
/// below the user's home folder do not show the user's name.
std::string DiagnosticsReport(const ProgramFacts& facts, const std::string& registryAccess,
                              const FrameCost& cost);

}  // namespace starfolds
