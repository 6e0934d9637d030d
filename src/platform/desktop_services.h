// What the program asks of the desktop around it, beside windows of its own.
#pragma once

#include <string>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

class DesktopServices {
 public:
  virtual ~DesktopServices() = default;

  /// Whether a top-level window with exactly this caption exists, in whatever process.
  virtual bool WindowExists(const std::string& caption) = 0;

  /// Finds that window and gives it the focus; nothing where there is none.
  virtual void BringToFront(const std::string& caption) = 0;

  /// Whether `handle` names a living window. 0 never does.
  virtual bool IsWindow(Long handle) = 0;

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

  bool WindowExists(const std::string& caption) override;
  void BringToFront(const std::string& caption) override { BroughtForward.push_back(caption); }
  bool IsWindow(Long handle) override;
  void ChangePassword(Long ownerWindow) override { PasswordCalls.push_back(ownerWindow); }
};

}  // namespace starfolds
