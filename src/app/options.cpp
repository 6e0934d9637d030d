#include "app/options.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "command_line/options.h"
#include "platform/user_text.h"
#include "settings/factory.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

constexpr int kMostScreens = 1000;  // above any real number
constexpr std::string_view kSwitchLetters = "sScCpPaA";

TextFault ReadHostWindow(StartOptions& to, std::string_view text) {
  to.AskedFor = Role::Guest;
  to.HostWindow = WindowNumber(text);
  if (to.HostWindow) return std::nullopt;
  return UserText(STARFOLDS_TEXT("takes the number of a window, not %1"), {QuotedStart(text)});
}

TextFault ReadScreen(StartOptions& to, std::string_view text) {
  to.Screen = std::nullopt;
  if (text == "all") return std::nullopt;
  if (text == "primary") text = "1";
  return TakeNumber(to.Screen, 1, kMostScreens)(text);
}

/// A theme is a list of changes; those of later options override them.
TextFault ReadTheme(StartOptions& to, std::string_view text) {
  int theme = 0;
  if (TextFault fault = TakeNumber(theme, 1, kThemeCount)(text)) return fault;
  UniverseSettings universe;
  LoadFactoryTheme(universe, theme, false);
  for (const auto& field : UniverseFields()) {
    to.Changes.emplace_back(field.Name, FieldText(universe, field));
  }
  return std::nullopt;
}

/// The program's options, which store their values in `to`. Settings dialogs of saver hosts tell
/// options apart by the name, so `--set` alone is not sufficient.
OptionTable TableFor(StartOptions& to) {
  const auto asksFor = [&](Role role) { return TakeFixed(to.AskedFor, role); };
  const auto sets = [&](const char* setting, const char* fixed = "") {
    return TakeChange(to.Changes, setting, fixed);
  };
  const auto reads = [&](TextFault (*read)(StartOptions&, std::string_view)) {
    return [&to, read](std::string_view text) { return read(to, text); };
  };
  const auto readsSize = [&to](std::string_view text) {
    to.Size.emplace();
    return TakeSize(to.Size->Width, to.Size->Height)(text);
  };
  return {
      Heading(STARFOLDS_TEXT("What runs")),
      {"--saver", "", STARFOLDS_TEXT("run the screen saver; any input ends it"),
       asksFor(Role::Saver)},
      Offering("all primary",
               {"--screens", "WHICH",
                STARFOLDS_TEXT(
                    "with --saver: \"all\" screens, each with its own universe\n"
                    "(as without this option), the \"primary\" one, or one by its\nnumber from 1"),
                reads(ReadScreen)}),
      {"--window", "", STARFOLDS_TEXT("run the effect as an application"), asksFor(Role::Window)},
      Offering(kTemplateFile,
               {"FILE", "", STARFOLDS_TEXT("with --window: show this template, store nothing"),
                TakeText(to.Template)}),
      {"--size", "WxH", STARFOLDS_TEXT("with --window: size of the window in pixels (1280x720)"),
       readsSize},
      {"--full-screen", "", STARFOLDS_TEXT("with --window: cover the screen"),
       TakeFixed(to.FullScreen, true)},
      {"--settings", "", STARFOLDS_TEXT("open the settings dialog"), asksFor(Role::Settings)},
      Heading(STARFOLDS_TEXT(
          "For programs that host a screen saver, on X11, which handle input and end the saver")),
      {"--root", "", STARFOLDS_TEXT("run inside the window that XSCREENSAVER_WINDOW names"),
       asksFor(Role::Guest)},
      {"--window-id", "N", STARFOLDS_TEXT("run inside window N (decimal, or 0x and hexadecimal)"),
       reads(ReadHostWindow)},
      Heading(STARFOLDS_TEXT("With --saver, --window, --root or --window-id, for this run only")),
      {"--seed", "N", STARFOLDS_TEXT("show the universes of seed N"), TakeNumber(to.Seed)},
      Offering(Numbers(1, kThemeCount),
               {"--theme", "N",
                STARFOLDS_TEXT("universe theme 1 to 8; later options replace its values"),
                reads(ReadTheme)}),
      {"--stars", "N", STARFOLDS_TEXT("stars in all the starfolds, 10 to 30000"),
       sets("Universe_Stars")},
      {"--starfolds", "N", STARFOLDS_TEXT("starfolds in a universe, 1 to 999"),
       sets("Universe_Starfold")},
      {"--visits", "N", STARFOLDS_TEXT("visits before the next universe, 1 to 999"),
       sets("Universe_Recycle")},
      {"--trail", "N", STARFOLDS_TEXT("length of the trails in pixels, 1 to 99"),
       sets("Universe_STrail")},
      {"--ambient", "N", STARFOLDS_TEXT("stars between the starfolds, 0 to 3000"),
       sets("Universe_AmStar")},
      {"--gravity", "N", STARFOLDS_TEXT("gravity between the starfolds, 0 to 999999"),
       sets("Universe_GravForce")},
      {"--no-tour", "", STARFOLDS_TEXT("watch the whole universe from one place"),
       sets("Universe_Tour", "0")},
      {"--randomize", "", STARFOLDS_TEXT("vary the bodies at random"), sets("Adv_Randomize", "1")},
      {"--delay", "N", STARFOLDS_TEXT("minimum time of a frame in ms, 0 to 999"),
       sets("Adv_TimeDelay")},
      Offering(kSettingChange,
               {"--set", "NAME=N",
                STARFOLDS_TEXT("any setting by its stored name, such as Universe_Stars=9000,\n"
                               "Starfold_Radius=500 (all bodies), Starfold7/Starfold_Radius=500"),
                TakeChange(to.Changes)}),
      Heading(STARFOLDS_TEXT("Information")),
      {"-h,--help", "", STARFOLDS_TEXT("print this text"), asksFor(Role::Help), true},
      {"-V,--version", "", STARFOLDS_TEXT("print the version"), asksFor(Role::Version), true},
      // Used by a saver on several screens to start its companions.
      Heading(""),
      {"--companion", "", "", TakeFixed(to.Companion, true)},
  };
}

/// Reports combinations of options that would otherwise have no effect.
TextFault CheckTogether(const StartOptions& options) {
  const Role role = options.AskedFor;
  const bool runs = role == Role::Saver || role == Role::Window || role == Role::Guest;
  if (!options.Template.empty() && role != Role::Window) {
    return UserText(STARFOLDS_TEXT("%1: a template goes with --window, or alone"),
                    {QuotedStart(options.Template)});
  }
  if (options.Seed && !runs) {
    return STARFOLDS_TEXT("--seed goes with --saver, --window, --root or --window-id");
  }
  if (!options.Changes.empty() && !runs) {
    return STARFOLDS_TEXT("settings go with --saver, --window, --root or --window-id");
  }
  if (options.Screen && role != Role::Saver) {
    return STARFOLDS_TEXT("--screens goes with --saver");
  }
  if ((options.Size || options.FullScreen) && role != Role::Window) {
    return STARFOLDS_TEXT("--size and --full-screen go with --window");
  }
  if (options.Size && options.FullScreen) {
    return STARFOLDS_TEXT("--size and --full-screen exclude each other");
  }
  if (options.HostWindow && role != Role::Guest) {
    return STARFOLDS_TEXT("--window-id goes alone or with --root");
  }
  return std::nullopt;
}

/// "/S", "/P:123", "/Cxyz" and so on, but not a path such as "/srv/rings.sfd".
bool IsSystemSwitch(std::string_view argument) {
  return argument.size() >= 2 && argument[0] == '/' &&
         kSwitchLetters.find(argument[1]) != std::string_view::npos &&
         argument.find('/', 1) == std::string_view::npos;
}

/// "-c" and the like were never switches of the system: such a command line runs the saver, like
/// any other unknown one. The name of a lone template may begin with a hyphen.
bool LooksLikeOption(std::string_view argument) {
  if (argument.starts_with("--")) return true;
  if (argument.size() < 2 || argument[0] != '-' || argument.ends_with(".sfd")) return false;
  return argument.size() > 2 || kSwitchLetters.find(argument[1]) == std::string_view::npos;
}

bool HasOptions(std::span<const std::string_view> arguments) {
  return !arguments.empty() && !IsSystemSwitch(arguments.front()) &&
         std::ranges::any_of(arguments, LooksLikeOption);
}

std::string Joined(std::span<const std::string_view> arguments) {
  std::string line;
  for (const std::string_view argument : arguments) line.append(" ").append(argument);
  return line.empty() ? line : line.substr(1);
}

GuideSection SwitchesSection() {
  return {
      .Title = STARFOLDS_TEXT("Switches"),
      .Intro = STARFOLDS_TEXT("as Windows gives them to a screen saver (capitals do not matter)"),
      .Rows = {{"/S", STARFOLDS_TEXT("run the screen saver, unless it is running")},
               {"/C", STARFOLDS_TEXT("open the settings dialog; so does no switch at all")},
               {"/P HANDLE", STARFOLDS_TEXT("show a preview inside the window HANDLE")},
               {"/A HANDLE", STARFOLDS_TEXT("change the password, where the system has one")},
               {"FILE.sfd",
                STARFOLDS_TEXT("load a template, store its universe, and run the screen saver")}},
      .InHelp = true};
}

GuideSection EnvironmentSection() {
  return {.Title = "Environment",
          .Intro = "",
          .Rows = {{"XSCREENSAVER_WINDOW", "The window of a host, decimal or 0x and hexadecimal."},
                   {"XDG_CONFIG_HOME", "The folder of the stored settings; ~/.config without it."},
                   {"DISPLAY, WAYLAND_DISPLAY", "The desktop to show the windows on."}}};
}

GuideSection FilesSection() {
  return {.Title = "Files",
          .Intro = "",
          .Rows = {{"~/.config/Tessellane/settings.db",
                    "The stored settings. A damaged file is kept under another name."},
                   {"*.sfd", "Templates: text files with a complete set of settings."}}};
}

GuideSection ExitSection() {
  return {.Title = "Exit status",
          .Intro = "",
          .Rows = {{"0", "The program ended as it was asked to."},
                   {"1", "It could not show anything, for example without a display."},
                   {"2", "The arguments are wrong, or a template could not be read or stored."}}};
}

}  // namespace

std::optional<Long> WindowNumber(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  const auto number = hexadecimal ? WholeNumber<std::uint64_t>(text.substr(2), 16)
                                  : WholeNumber<std::uint64_t>(text);
  if (!number || *number == 0 || *number > std::numeric_limits<Long>::max()) return std::nullopt;
  return static_cast<Long>(*number);
}

Long WindowOfSettings(std::string_view commandLine) {
  if (!IsSystemSwitch(commandLine)) return 0;
  commandLine.remove_prefix(std::min(commandLine.find_first_of("0123456789"), commandLine.size()));
  return WindowNumber(commandLine).value_or(0);
}

TextFault ParseStartOptions(std::span<const std::string_view> arguments, StartOptions& options) {
  if (!HasOptions(arguments)) {
    options.CommandLine = Joined(arguments);
    return std::nullopt;
  }
  options.Given.assign(arguments.begin(), arguments.end());
  if (TextFault fault = ReadOptions(TableFor(options), arguments)) return fault;
  const bool informs = options.AskedFor == Role::Help || options.AskedFor == Role::Version;
  return informs ? std::nullopt : CheckTogether(options);
}

ProgramGuide SaverGuide() {
  StartOptions unused;
  return {
      .Name = "starfolds",
      .Purpose = "screen saver that simulates universes of stars",
      .Usage = {STARFOLDS_TEXT("[OPTION]... [FILE]"), STARFOLDS_TEXT("[SWITCH]")},
      .Description = STARFOLDS_TEXT("A screen saver that simulates a universe of starfolds."),
      .Options = WithoutFunctions(TableFor(unused)),
      .Remark = STARFOLDS_TEXT("A number beyond its range is clamped to it."),
      .Sections = {SwitchesSection(), EnvironmentSection(), FilesSection(), ExitSection()},
  };
}

}  // namespace starfolds
