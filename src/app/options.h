// The command line of `starfolds`.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "command_line/fault.h"
#include "numbers/words.h"

namespace starfolds {

enum class Role {
  FromCommandLine,  // no role was asked for by an option: `Main` decides
  Help,
  Version,
  Saver,
  Window,
  Settings,
  Guest,  // of a saver host, in the host's window
};

/// Client size of the application's window, in logical pixels, each side 1 to 16384.
struct WindowSize {
  int Width = 1280;
  int Height = 720;
};

struct StartOptions {
  Role AskedFor = Role::FromCommandLine;
  std::optional<std::uint64_t> Seed;
  std::optional<int> Screen;       // that the saver covers, from 1; nullopt: all screens
  bool Companion = false;          // of a saver on several screens, and not the first of them
  std::optional<WindowSize> Size;  // of the application's window; nullopt: not given
  bool FullScreen = false;         // the application's window covers the screen
  std::string Template;            // path of the file that a window shows; empty: none
  std::optional<Long> HostWindow;  // of a guest; else the host names it in the environment
  /// Names and values of settings that hold for this process only, each one valid.
  std::vector<std::pair<std::string, std::string>> Changes;
  std::vector<std::string> Given;  // the arguments, if they are options
  std::string CommandLine;         // for `Main`: every argument, joined by blanks
};

/// Parses the arguments behind the program's name, of several roles the last one. What a system
/// says to its screen saver (a switch such as "/S", a template's name alone) is no option: it goes
/// to `CommandLine` as it stands. Returns what is wrong with the arguments.
Fault ParseStartOptions(std::span<const std::string_view> arguments, StartOptions& options);

/// The number of a window as hosts write it, decimal or "0x" and hexadecimal; nullopt if it is
/// none.
std::optional<Long> WindowNumber(std::string_view text);

/// What `--help` prints.
std::string UsageText();

}  // namespace starfolds
