#include "desktop/desktop_services_qt.h"

#ifdef STARFOLDS_X11
#include "desktop/x11_desktop.h"
#endif

namespace starfolds {
namespace {

class ClosedDesktop : public DesktopServices {
 public:
  bool WindowExists(const std::string&) override { return false; }
  void BringToFront(const std::string&) override {}
  bool IsWindow(Long) override { return false; }
  void ChangePassword(Long) override {}
};

}  // namespace

std::unique_ptr<DesktopServices> MakeDesktopServices() {
#ifdef STARFOLDS_X11
  if (auto desktop = MakeX11Desktop()) return desktop;
#endif
  return std::make_unique<ClosedDesktop>();
}

}  // namespace starfolds
