#include "desktop/desktop_services_qt.h"

#include "desktop/desktop_services_locks.h"

#ifdef STARFOLDS_X11
#include "desktop/desktop_services_x11.h"
#endif

namespace starfolds {

std::unique_ptr<DesktopServices> MakeDesktopServices() {
#ifdef STARFOLDS_X11
  if (auto desktop = MakeX11Desktop()) return desktop;
#endif
  return MakeLockDesktop();
}

}  // namespace starfolds
