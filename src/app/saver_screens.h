// The saver on several screens: one process for each, so that each has a universe of its own.
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

/// Whether this process covers a screen by itself, and which one. Nothing: there is no such screen.
std::optional<ScreenPlace> PlaceOfSaver(const StartOptions& options);

/// What the companion on a screen is started with, by a process with these options. Screens count
/// from 0.
std::vector<std::string> CompanionArguments(const StartOptions& options, int screen);

/// Covers all screens but the primary one with companions, and does so anew when the screens
/// change. Does nothing where the saver covers one screen only.
class OtherScreens {
 public:
  /// `left` is called when a companion has ended, because the user came back on its screen.
  OtherScreens(const StartOptions& options, std::function<void()> left);

 private:
  void Cover();

  StartOptions options_;
  Companions companions_;
  std::optional<ScreenWatch> screens_;
};

}  // namespace starfolds
