// Services for screen savers that only Windows 9x has: a password that the saver itself asks for, a
// block of the task-switch keys, and the stacking order of windows.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numbers/words.h"

namespace starfolds {

/// The platform number of Windows 95, 98 and ME.
inline constexpr Long kWindows9x = 1;
/// The platform number of every later system: there the program that locks the screen asks for the
/// password.
inline constexpr Long kLaterPlatform = 2;

/// Positions for `StackWindow`.
inline constexpr Long kStackAtBottom = 1;
inline constexpr Long kStackTopMost = -1;

/// By default a later platform, where every call does nothing.
class SaverPlatform {
 public:
  virtual ~SaverPlatform() = default;

  virtual Long GetPlatformId() { return kLaterPlatform; }

  /// Shows the system's dialog and returns its result: 1 for the right password; nullopt if the
  /// dialog is missing.
  virtual std::optional<Long> VerifyScreenSavePwd() { return std::nullopt; }

  /// Sets or clears the system's screen-saver-running flag, which blocks the task-switch keys.
  virtual void SetScreenSaverRunning(bool /*running*/) {}

  /// Moves the saver's window behind `after` without giving it the focus.
  virtual void StackWindow(Long /*after*/) {}
};

/// A platform that a test configures. Records the calls.
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
