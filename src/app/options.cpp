#include "app/options.h"

#include <array>
#include <charconv>
#include <utility>

namespace starfolds {
namespace {

constexpr std::array<std::pair<std::string_view, Role>, 5> kRoles{{
    {"--help", Role::Help},
    {"--version", Role::Version},
    {"--saver", Role::Saver},
    {"--window", Role::Window},
    {"--settings", Role::Settings},
}};

/// More than any desktop has.
constexpr int kMostScreens = 1000;

/// By which a saver on several screens starts its own kind; nothing for people.
constexpr std::string_view kCompanionOption = "--companion";

std::optional<Role> FindRole(std::string_view argument) {
  for (const auto& [name, role] : kRoles) {
    if (name == argument) return role;
  }
  return std::nullopt;
}

std::optional<std::uint64_t> WholeNumber(std::string_view text) {
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::string Joined(std::span<const std::string_view> arguments) {
  std::string line;
  for (const std::string_view argument : arguments) {
    if (argument.data() != arguments.front().data()) line += ' ';
    line += argument;
  }
  return line;
}

/// "all" is no screen of its own. Returns what is wrong with the text.
std::optional<std::string> TakeScreen(StartOptions& options, std::string_view text) {
  options.Screen = std::nullopt;
  if (text == "all") return std::nullopt;
  const auto number = text == "primary" ? 1 : WholeNumber(text).value_or(0);
  if (number < 1 || number > kMostScreens) {
    return "--screens needs 'all', 'primary' or a number from 1, not '" + std::string(text) + "'";
  }
  options.Screen = static_cast<int>(number);
  return std::nullopt;
}

/// A seed alone would be dropped by the system's own switches, and quietly.
bool SeedIsOfUse(const StartOptions& options) {
  return !options.Seed || options.AskedFor == Role::Saver || options.AskedFor == Role::Window;
}

std::optional<std::string> ReadOptions(std::span<const std::string_view> arguments,
                                       StartOptions& options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (const auto role = FindRole(arguments[i])) {
      options.AskedFor = *role;
    } else if (arguments[i] == "--seed") {
      if (++i == arguments.size()) return "--seed needs a number";
      options.Seed = WholeNumber(arguments[i]);
      if (!options.Seed)
        return "--seed needs a whole number, not '" + std::string(arguments[i]) + "'";
    } else if (arguments[i] == "--screens") {
      if (++i == arguments.size()) return "--screens needs a value";
      if (const auto wrong = TakeScreen(options, arguments[i])) return wrong;
    } else if (arguments[i] == kCompanionOption) {
      options.Companion = true;
    } else {
      return "unknown option '" + std::string(arguments[i]) + "'";
    }
  }
  if (options.Screen && options.AskedFor != Role::Saver) return "--screens goes with --saver";
  if (!SeedIsOfUse(options)) return "--seed goes with --saver or --window";
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ParseStartOptions(std::span<const std::string_view> arguments,
                                             StartOptions& options) {
  if (!arguments.empty() && arguments.front().starts_with("--")) {
    options.Given.assign(arguments.begin(), arguments.end());
    return ReadOptions(arguments, options);
  }
  options.CommandLine = Joined(arguments);
  return std::nullopt;
}

std::string UsageText() {
  return R"(Usage: starfolds [OPTION]... or starfolds [SWITCH]

A screen saver that simulates a universe of starfolds.

  --saver         run the screen saver; a key, a button or moving the pointer ends it
  --window        run the effect as an application: Esc ends it, F5 begins anew
  --settings      open the settings dialog
  --screens WHICH with --saver: all screens, each with a universe of its own (as without this
                  option), the primary one, or one by its number from 1
  --seed N        with --saver or --window: show the universes of seed N
  --help          print this text
  --version       print the version

Switches, as Windows gives them to a screen saver (capitals do not matter):

  /S              run the screen saver, unless it is running
  /C              open the settings dialog; so does no switch at all
  /P HANDLE       show a preview inside the window HANDLE
  /A HANDLE       change the password, where the system has one
  FILE.sfd        load a template and run the screen saver
)";
}

}  // namespace starfolds
