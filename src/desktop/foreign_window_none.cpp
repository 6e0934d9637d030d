// Where programs have no way into each other's windows.
#include "desktop/foreign_window.h"

namespace starfolds {

std::unique_ptr<ForeignWindow> OpenForeignWindow(Long, ForeignWindowEvents&) { return nullptr; }

bool CanOpenForeignWindows() { return false; }

bool ChooseForeignWindowSystem() { return false; }

}  // namespace starfolds
