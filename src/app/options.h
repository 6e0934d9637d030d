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
#include "command_line/program_guide.h"
#include "numbers/words.h"
#include "platform/user_text.h"

namespace starfolds {

enum class Role {
  FromCommandLine,  // no option asked for a role: `Main` decides
  Help,
  Version,
  Saver,
  Window,
  Settings,
  Guest,  // inside the window of a saver host
};

/// Client size of the application's window, in logical pixels, each side 1 to 16384.
struct WindowSize {
  int Width = 1280;
  int Height = 720;
};

struct StartOptions {
  Role AskedFor = Role::FromCommandLine;
  std::optional<std::uint64_t> Seed;
  std::optional<int> Screen;       // the screen to cover, from 1; nullopt: all screens
  bool Companion = false;          // started by a saver on several screens, for one of the others
  std::optional<WindowSize> Size;  // of the application's window; nullopt: not given
  bool FullScreen = false;         // the application's window covers the screen
  std::string Template;            // path of the file that a window shows; empty: none
  std::optional<Long> HostWindow;  // of a guest; nullopt: the host names it in the environment
  /// Names and values of settings for this process only, each one valid.
  std::vector<std::pair<std::string, std::string>> Changes;
  std::vector<std::string> Given;  // the arguments, if they are options
  std::string CommandLine;         // for `Main`: all arguments, joined by blanks
};

/// Parses the arguments after the program's name; of several roles the last one counts. What a
/// system passes to its screen saver (a switch such as "/S", or only a template's name) is not an
/// option and goes to `CommandLine` unchanged. Returns what is wrong with the arguments.
TextFault ParseStartOptions(std::span<const std::string_view> arguments, StartOptions& options);

/// Parses a window's number as hosts write it, decimal or "0x" and hexadecimal; nullopt if `text`
/// is not a number from 1 to the largest Long.
std::optional<Long> WindowNumber(std::string_view text);

/// The window in a system's request for the settings dialog, such as "/c:1234"; 0 if it names none.
Long WindowOfSettings(std::string_view commandLine);

/// What `--help`, the manual page and shells say about the program.
ProgramGuide SaverGuide();

}  // namespace starfolds
