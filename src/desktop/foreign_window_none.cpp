// For window systems without access to the windows of other programs.
#include "desktop/foreign_window.h"

namespace starfolds {

std::unique_ptr<ForeignWindow> OpenForeignWindow(Long, ForeignWindowEvents&) { return nullptr; }

bool CanOpenForeignWindows() { return false; }

bool ChooseForeignWindowSystem() { return false; }

}  // namespace starfolds
