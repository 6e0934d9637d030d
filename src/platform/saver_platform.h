// What Windows 9x had for its screen savers and no other system has: a password that the saver
// itself asks for, task-switch keys to be blocked, and windows that stack themselves.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

/// What `GetPlatformId` says on Windows 95, 98 and ME.
inline constexpr Long kWindows9x = 1;
/// And on every later system, this one included: whoever locks the screen asks for the password.
inline constexpr Long kLaterPlatform = 2;

/// Where `StackWindow` puts a window.
inline constexpr Long kStackAtBottom = 1;
inline constexpr Long kStackTopMost = -1;

/// As it stands it is a later platform, of which nothing is asked.
class SaverPlatform {
 public:
  virtual ~SaverPlatform() = default;

  virtual Long GetPlatformId() { return kLaterPlatform; }

  /// Shows the system's dialog and returns its verdict: 1 for the right password. Nothing where the
  /// dialog is missing.
  virtual std::optional<Long> VerifyScreenSavePwd() { return std::nullopt; }

  /// Raises or lowers the system's screen-saver-running flag, which blocks the task-switch keys.
  virtual void SetScreenSaverRunning(bool /*running*/) {}

  /// Moves the saver's window behind `after`, without giving it the focus.
  virtual void StackWindow(Long /*after*/) {}
};

/// A platform that a test tells what it is. It notes what it was asked.
class ScriptedPlatform : public SaverPlatform {
 public:
  Long Id = kLaterPlatform;
  std::optional<Long> Verdict = 1;
  std::vector<std::string> Log;

  Long GetPlatformId() override { return Id; }
  std::optional<Long> VerifyScreenSavePwd() override {
    Log.emplace_back("verify");
    return Verdict;
  }
  void SetScreenSaverRunning(bool running) override {
    Log.emplace_back(running ? "running" : "not running");
  }
  void StackWindow(Long after) override { Log.push_back("behind " + std::to_string(after)); }
};

}  // namespace starfolds
