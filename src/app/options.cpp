#include "app/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <memory>

#include "settings/factory.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr std::array<std::pair<std::string_view, Role>, 6> kRoles{{
    {"--help", Role::Help},
    {"--version", Role::Version},
    {"--saver", Role::Saver},
    {"--window", Role::Window},
    {"--settings", Role::Settings},
    {"--root", Role::Guest},
}};

/// Options that stand for one setting each. The dialogs of saver hosts tell options apart by their
/// first word, so `--set` alone would not do for them.
struct SettingOption {
  std::string_view Name;
  std::string_view Setting;
  std::string_view Value;  // empty: behind the option
};
constexpr std::array<SettingOption, 9> kSettingOptions{{
    {"--stars", "Universe_Stars", {}},
    {"--starfolds", "Universe_Starfold", {}},
    {"--visits", "Universe_Recycle", {}},
    {"--trail", "Universe_STrail", {}},
    {"--ambient", "Universe_AmStar", {}},
    {"--gravity", "Universe_GravForce", {}},
    {"--delay", "Adv_TimeDelay", {}},
    {"--no-tour", "Universe_Tour", "0"},
    {"--randomize", "Adv_Randomize", "1"},
}};

/// More than any desktop has.
constexpr int kMostScreens = 1000;

/// Longest side of a window: the engine's coordinates are 16-bit, and half of their range is left
/// for flares that begin outside of the window.
constexpr std::uint64_t kMaxSide = 16384;

/// By which a saver on several screens starts its own kind; nothing for people.
constexpr std::string_view kCompanionOption = "--companion";

std::optional<Role> FindRole(std::string_view argument) {
  for (const auto& [name, role] : kRoles) {
    if (name == argument) return role;
  }
  return std::nullopt;
}

const SettingOption* FindSettingOption(std::string_view argument) {
  for (const SettingOption& option : kSettingOptions) {
    if (option.Name == argument) return &option;
  }
  return nullptr;
}

std::optional<std::uint64_t> WholeNumber(std::string_view text, int base = 10) {
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base);
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

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

bool RunsEffect(Role role) {
  return role == Role::Saver || role == Role::Window || role == Role::Guest;
}

using Fault = std::optional<std::string>;

Fault TakeSeed(StartOptions& options, std::string_view text) {
  options.Seed = WholeNumber(text);
  if (options.Seed) return std::nullopt;
  return "takes a whole number, not " + Quoted(text);
}

Fault TakeHostWindow(StartOptions& options, std::string_view text) {
  options.AskedFor = Role::Guest;
  options.HostWindow = WindowNumber(text);
  if (options.HostWindow) return std::nullopt;
  return "takes the number of a window, not " + Quoted(text);
}

/// "all" is no screen of its own. Returns what is wrong with the text.
Fault TakeScreen(StartOptions& options, std::string_view text) {
  options.Screen = std::nullopt;
  if (text == "all") return std::nullopt;
  const auto number = text == "primary" ? 1 : WholeNumber(text).value_or(0);
  if (number < 1 || number > kMostScreens) {
    return "takes 'all', 'primary' or a number from 1, not " + Quoted(text);
  }
  options.Screen = static_cast<int>(number);
  return std::nullopt;
}

Fault TakeSize(StartOptions& options, std::string_view text) {
  const std::size_t cross = std::min(text.find('x'), text.size());
  const auto width = WholeNumber(text.substr(0, cross)).value_or(0);
  const auto height = WholeNumber(text.substr(std::min(cross + 1, text.size()))).value_or(0);
  if (width < 1 || width > kMaxSide || height < 1 || height > kMaxSide) {
    return "takes WIDTHxHEIGHT, each from 1 to " + std::to_string(kMaxSide) + ", not " +
           Quoted(text);
  }
  options.Size = {static_cast<int>(width), static_cast<int>(height)};
  return std::nullopt;
}

/// Sets the setting in records that nobody uses, to find out whether it can be set.
Fault TakeChange(StartOptions& options, std::string_view name, std::string_view value) {
  options.Changes.emplace_back(name, value);
  return SetByName(*std::make_unique<SettingsRecords>(), name, value);
}

Fault TakeSetting(StartOptions& options, std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return "takes Name=value, not " + Quoted(text);
  return TakeChange(options, text.substr(0, equals), text.substr(equals + 1));
}

/// A theme is a set of changes; those of options behind it go over them.
Fault TakeTheme(StartOptions& options, std::string_view text) {
  const auto theme = WholeNumber(text);
  if (!theme || *theme < 1 || *theme > kThemeCount) {
    return "takes a whole number from 1 to " + std::to_string(kThemeCount) + ", not " +
           Quoted(text);
  }
  UniverseSettings universe;
  LoadFactoryTheme(universe, static_cast<int>(*theme), false);
  for (const auto& field : UniverseFields()) {
    options.Changes.emplace_back(field.Name, FieldText(universe, field));
  }
  return std::nullopt;
}

/// An option with a value behind it.
struct ValueOption {
  std::string_view Name;
  Fault (*Take)(StartOptions&, std::string_view);
};
constexpr std::array<ValueOption, 6> kValueOptions{{
    {"--seed", TakeSeed},
    {"--screens", TakeScreen},
    {"--size", TakeSize},
    {"--window-id", TakeHostWindow},
    {"--set", TakeSetting},
    {"--theme", TakeTheme},
}};

const ValueOption* FindValueOption(std::string_view argument) {
  for (const ValueOption& option : kValueOptions) {
    if (option.Name == argument) return &option;
  }
  return nullptr;
}

/// Reads the option at the front of `rest`, and its value, and takes both off.
Fault ReadOption(std::span<const std::string_view>& rest, StartOptions& options) {
  const std::string_view name = rest.front();
  rest = rest.subspan(1);
  if (const auto role = FindRole(name)) {
    options.AskedFor = *role;
    return std::nullopt;
  }
  if (name == kCompanionOption) {
    options.Companion = true;
    return std::nullopt;
  }
  if (name == "--full-screen") {
    options.FullScreen = true;
    return std::nullopt;
  }
  if (!name.starts_with("--") && options.Template.empty()) {
    options.Template = name;
    return std::nullopt;
  }
  const SettingOption* const setting = FindSettingOption(name);
  if (setting != nullptr && !setting->Value.empty()) {
    return TakeChange(options, setting->Setting, setting->Value);
  }
  const ValueOption* const option = FindValueOption(name);
  if (setting == nullptr && option == nullptr) {
    return "unknown option '" + std::string(name) + "'";
  }
  if (rest.empty()) return std::string(name) + " needs a value";
  const std::string_view value = rest.front();
  rest = rest.subspan(1);
  const Fault fault = setting != nullptr ? TakeChange(options, setting->Setting, value)
                                         : option->Take(options, value);
  return fault ? std::string(name) + ": " + *fault : fault;
}

/// Where nothing runs, these would be dropped, and quietly.
Fault CheckTogether(const StartOptions& options) {
  const bool ofUse = RunsEffect(options.AskedFor);
  if (options.Seed && !ofUse) return "--seed goes with --saver, --window, --root or --window-id";
  if (!options.Changes.empty() && !ofUse) {
    return "settings go with --saver, --window, --root or --window-id";
  }
  if (!options.Template.empty() && options.AskedFor != Role::Window) {
    return "'" + options.Template + "': a template goes with --window, or alone";
  }
  if (options.Screen && options.AskedFor != Role::Saver) return "--screens goes with --saver";
  if ((options.Size || options.FullScreen) && options.AskedFor != Role::Window) {
    return "--size and --full-screen go with --window";
  }
  if (options.Size && options.FullScreen) return "--size and --full-screen exclude each other";
  if (options.HostWindow && options.AskedFor != Role::Guest) {
    return "--window-id goes alone or with --root";
  }
  return std::nullopt;
}

Fault ReadOptions(std::span<const std::string_view> rest, StartOptions& options) {
  while (!rest.empty()) {
    if (Fault fault = ReadOption(rest, options)) return fault;
  }
  return CheckTogether(options);
}

}  // namespace

std::optional<Long> WindowNumber(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  const auto number = hexadecimal ? WholeNumber(text.substr(2), 16) : WholeNumber(text);
  if (!number || *number == 0 || *number > std::numeric_limits<Long>::max()) return std::nullopt;
  return static_cast<Long>(*number);
}

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
  --window FILE   show the template FILE so, and store nothing of it
  --size WxH      with --window: size of the window in pixels (1280x720)
  --full-screen   with --window: cover the screen
  --settings      open the settings dialog
  --screens WHICH with --saver: all screens, each with a universe of its own (as without this
                  option), the primary one, or one by its number from 1
  --help          print this text
  --version       print the version

For programs that host a screen saver, on X11. Input and the end are their business:

  --root          run the effect inside the window that XSCREENSAVER_WINDOW names
  --window-id N   run it inside window N (decimal, or 0x and hexadecimal) instead

With --saver, --window, --root or --window-id:

  --seed N        show the universes of seed N
  --theme N       universe theme 1 to 8; options behind it go over it
  --stars N       stars in all the starfolds, 10 to 30000
  --starfolds N   starfolds in a universe, 1 to 999
  --visits N      starfolds to visit before the next universe, 1 to 999
  --trail N       length of the stars' trails in pixels, 1 to 99
  --ambient N     stars between the starfolds, 0 to 3000
  --gravity N     gravity between the starfolds, 0 to 999999
  --no-tour       watch the whole universe from one place
  --randomize     vary the bodies at random
  --delay N       least time of a frame in milliseconds, 0 to 999
  --set NAME=N    any setting by its stored name, such as Universe_Stars=9000,
                  Starfold_Radius=500 (all bodies), Starfold7/Starfold_Radius=500

These hold for this run and are not stored. A number beyond its range is held to it.

Switches, as Windows gives them to a screen saver (capitals do not matter):

  /S              run the screen saver, unless it is running
  /C              open the settings dialog; so does no switch at all
  /P HANDLE       show a preview inside the window HANDLE
  /A HANDLE       change the password, where the system has one
  FILE.sfd        load a template, store its universe, and run the screen saver
)";
}

}  // namespace starfolds
