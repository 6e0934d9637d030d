// The icon of the program's windows.
#pragma once

#include <QIcon>

namespace starfolds {

/// Drawn from the same file that is installed for menus. Needs no plug-in for SVG files.
QIcon ProgramIcon();

}  // namespace starfolds
