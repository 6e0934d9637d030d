// Other programs of the desktop that the saver hands somebody over to.
#pragma once

#include "platform/desktop_services.h"

namespace starfolds {

/// What desktops do in the same way, whatever window system they are on.
class StartsOtherPrograms : public DesktopServices {
 public:
  bool OpenWebPage(const std::string& url) override;
  bool ShowSystemInfo() override;

  /// No desktop but the one that the system was written for has a password of its own for savers:
  /// hosts lock the screen themselves.
  void ChangePassword(Long) override {}
};

}  // namespace starfolds
