// What the program asks of the desktop around it, beside windows of its own.
#pragma once

#include <string>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

class DesktopServices {
 public:
  virtual ~DesktopServices() = default;

  /// Whether a top-level window with exactly this caption exists, in whatever process. Windows that
  /// are hidden from this search by their program do not count.
  virtual bool WindowExists(const std::string& caption) = 0;

  /// Finds that window and gives it the focus; nothing where there is none.
  virtual void BringToFront(const std::string& caption) = 0;

  /// Whether `handle` names a living window. 0 never does.
  virtual bool IsWindow(Long handle) = 0;

  /// Opens a web page in the user's browser. False: it could not be reached.
  virtual bool OpenWebPage(const std::string& url) = 0;

  /// Starts the program that tells about this machine. False: there is none.
  virtual bool ShowSystemInfo() = 0;

  /// Lets the platform's own dialog change the saver's password; nothing where it has none.
  virtual void ChangePassword(Long ownerWindow) = 0;
};

/// A desktop without windows but those that a test names; it notes what it was asked.
class MemoryDesktop : public DesktopServices {
 public:
  std::vector<std::string> Captions;
  std::vector<Long> Windows;
  std::vector<std::string> BroughtForward;
  std::vector<Long> PasswordCalls;
  std::vector<std::string> WebPages;
  bool HasBrowser = true;
  bool HasSystemInfo = true;
  int SystemInfos = 0;

  bool WindowExists(const std::string& caption) override;
  void BringToFront(const std::string& caption) override { BroughtForward.push_back(caption); }
  bool IsWindow(Long handle) override;
  bool OpenWebPage(const std::string& url) override;
  bool ShowSystemInfo() override;
  void ChangePassword(Long ownerWindow) override { PasswordCalls.push_back(ownerWindow); }
};

}  // namespace starfolds
