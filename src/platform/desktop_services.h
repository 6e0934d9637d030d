// The services of the desktop environment, apart from windows of the program's own.
#pragma once

#include <string>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

class DesktopServices {
 public:
  virtual ~DesktopServices() = default;

  /// Whether a top-level window with exactly this caption exists in any process. Windows that their
  /// program has excluded from this search do not count.
  virtual bool WindowExists(const std::string& caption) = 0;

  /// Finds that window and gives it the focus; does nothing if there is none.
  virtual void BringToFront(const std::string& caption) = 0;

  /// Whether `handle` is an existing window. Always false for 0.
  virtual bool IsWindow(Long handle) = 0;

  /// Opens a web page in the user's browser. False if the browser could not be started.
  virtual bool OpenWebPage(const std::string& url) = 0;

  /// Starts the program that shows information about this machine. False if there is none.
  virtual bool ShowSystemInfo() = 0;

  /// Opens the platform's dialog for changing the saver's password; does nothing if it has none.
  virtual void ChangePassword(Long ownerWindow) = 0;
};

/// A desktop whose windows a test lists; it records the calls.
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
