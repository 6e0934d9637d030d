// The saver on several screens: one process per screen, each with its own universe.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/options.h"
#include "desktop/companions.h"
#include "desktop/screen_watch.h"
#include "desktop/window_surface.h"

namespace starfolds {

/// The screen that the saver of this process covers, and how; nullopt if the screen does not exist.
std::optional<ScreenPlace> PlaceOfSaver(const StartOptions& options);

/// The arguments of a companion on `screen` (counted from 0), started by a process with `options`.
std::vector<std::string> CompanionArguments(const StartOptions& options, int screen);

/// Covers all screens but the primary one with companions, and restarts them when the screens
/// change. Does nothing if the saver covers one screen only.
class OtherScreens {
 public:
  /// `left` is called when a companion has ended because of input on its screen.
  OtherScreens(const StartOptions& options, std::function<void()> left);

 private:
  void Cover();

  StartOptions options_;
  Companions companions_;
  std::optional<ScreenWatch> screens_;
};

}  // namespace starfolds
