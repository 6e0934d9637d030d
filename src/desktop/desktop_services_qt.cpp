#include "desktop/desktop_services_qt.h"

#include "desktop/instance.h"

#ifdef STARFOLDS_X11
#include "desktop/x11_desktop.h"
#endif

namespace starfolds {

std::unique_ptr<DesktopServices> MakeDesktopServices() {
#ifdef STARFOLDS_X11
  if (auto desktop = MakeX11Desktop()) return desktop;
#endif
  return MakeInstanceDesktop();
}

}  // namespace starfolds
