// The saver's own options. They are looked at before the system's switches, so that `Main` gets a
// command line as ever.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

/// Client size of the application's window, in logical pixels.
struct WindowSize {
  int Width = 1280;
  int Height = 720;
};

struct StartOptions {
  Role AskedFor = Role::FromCommandLine;
  std::optional<std::uint64_t> Seed;
  std::optional<int> Screen;       // that the saver covers, from 1; without one it covers all
  bool Companion = false;          // of a saver on several screens, and not the first of them
  std::optional<WindowSize> Size;  // of the application's window; nullopt: not given
  bool FullScreen = false;         // the application's window covers the screen
  std::string Template;            // path of one that a window shows; empty: none
  std::optional<Long> HostWindow;  // of a guest; else the host names it in the environment
  /// Names and values of settings that hold for this process alone, each one good.
  std::vector<std::pair<std::string, std::string>> Changes;
  std::vector<std::string> Given;  // the options as they stood there; none where there were none
  std::string CommandLine;         // for `Main`: every argument, joined by blanks
};

/// Reads the arguments behind the program's name. They are options only if the first one begins
/// with "--"; of several roles the last one counts. Returns what is wrong with them.
std::optional<std::string> ParseStartOptions(std::span<const std::string_view> arguments,
                                             StartOptions& options);

/// The number of a window as hosts write it, decimal or "0x" and hexadecimal. Nothing where it is
/// none.
std::optional<Long> WindowNumber(std::string_view text);

/// What `--help` prints.
std::string UsageText();

}  // namespace starfolds
