// Other programs of the desktop that the saver opens files and pages with.
#pragma once

#include "platform/desktop_services.h"

namespace starfolds {

/// The services that are the same on all desktops, whatever the window system.
class StartsOtherPrograms : public DesktopServices {
 public:
  bool OpenWebPage(const std::string& url) override;
  bool ShowSystemInfo() override;

  /// Does nothing: only Windows 9x has a password of its own for savers; on other desktops the
  /// hosts lock the screen.
  void ChangePassword(Long) override {}
};

}  // namespace starfolds
