// `starfolds`: the screen saver.
#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <QWidget>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/options.h"
#include "app/windows.h"
#include "desktop/companions.h"
#include "desktop/desktop_services_qt.h"
#include "desktop/foreign_window.h"
#include "desktop/qt_pump.h"
#include "desktop/signals.h"
#include "hosting/main.h"
#include "platform/console.h"
#include "settings/first_run.h"
#include "settings/overrides.h"
#include "storage/sqlite_tree.h"

namespace {

using namespace starfolds;

constexpr int kExitCannotDo = 1;
constexpr int kExitWrongUse = 2;

void Say(const std::string& message) { Complain("starfolds", message); }

int Fail(const std::string& message, int exitCode) {
  Say(message);
  return exitCode;
}

int PrintAndEnd(const std::string& text) {
  return Print(text) ? 0 : Fail("cannot write to the standard output", kExitCannotDo);
}

/// The toolkit ends the process with a core dump where it finds no desktop.
bool HasDesktop() {
#if defined(__unix__) && !defined(__APPLE__)
  const auto given = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
  return given("DISPLAY") || given("WAYLAND_DISPLAY") || given("QT_QPA_PLATFORM");
#else
  return true;
#endif
}

/// Only the program's name: the toolkit would take some of the system's switches for its own.
struct ToolkitArguments {
  explicit ToolkitArguments(char* program) : Values{program, nullptr} {}
  int Count = 1;
  std::array<char*, 2> Values;
};

bool ShowsDialogs(const StartOptions& options) {
  switch (options.AskedFor) {
    case Role::Window:
    case Role::Settings: return true;
    case Role::FromCommandLine: return AsksForProperties(options.CommandLine);
    default: return false;
  }
}

StartUp DescribeStart(const StartOptions& options) {
  const QFileInfo file(QCoreApplication::applicationFilePath());
  return {file.absolutePath().toStdString(), file.completeBaseName().toStdString(),
          options.CommandLine};
}

void ShowEffect(Saver& saver, RunMode mode, StartActions& windows) {
  saver.Mode = mode;
  ShowEffectWindow(saver, windows);
}

/// Lives and dies with the saver that started it, and looks for no other one.
void RunCompanion(Saver& saver, StartActions& windows) {
  const OwnerWatch owner([&] { saver.QuitApp = saver.StopRun = true; });
  ShowEffect(saver, RunMode::ScreenSaver, windows);
}

/// A host names its window on the command line, or else in the environment. Returns what is wrong.
std::optional<std::string> FindHostWindow(StartOptions& options) {
  constexpr char variable[] = "XSCREENSAVER_WINDOW";
  if (options.HostWindow) return std::nullopt;
  const std::string named = qgetenv(variable).toStdString();
  if (named.empty()) {
    return std::string("--root is for programs that host a screen saver, and ") + variable +
           " names no window of one; --saver runs the screen saver without a host";
  }
  options.HostWindow = WindowNumber(named);
  if (options.HostWindow) return std::nullopt;
  return std::string(variable) + " is '" + named +
         "', which is no window of an X server; on Wayland no host can show a screen saver inside "
         "its own window";
}

/// Finds the window of a host and the window system that it is on. Returns what is wrong.
std::optional<std::string> PrepareForHost(StartOptions& options) {
  if (options.AskedFor == Role::Guest) {
    if (auto wrong = FindHostWindow(options)) return wrong;
    if (ChooseForeignWindowSystem()) return std::nullopt;
    return "there is no X server to reach the window of the host (DISPLAY names none that answers)";
  }
  // Whether it comes to a preview is decided later, and so is what happens without an X server.
  if (options.AskedFor == Role::FromCommandLine && AsksForPreview(options.CommandLine)) {
    ChooseForeignWindowSystem();
  }
  return std::nullopt;
}

/// Each of them waits in a loop of its own, the last one opened inside the others'. What is closed
/// may take others with it.
void CloseDialogs() {
  QList<QPointer<QWidget>> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) windows.prepend(window);
  for (const QPointer<QWidget>& window : windows) {
    if (window && window->isVisible() && window->isModal()) window->close();
  }
}

/// Opens the window that was asked for, and returns when it is gone.
void Run(Saver& saver, const StartOptions& options, AppWindows& windows) {
  if (options.Companion) return RunCompanion(saver, windows);
  switch (options.AskedFor) {
    case Role::Saver: return DispatchCommandLine(saver, "/S", windows);
    case Role::Settings: return DispatchCommandLine(saver, "/C", windows);
    case Role::Window: return ShowEffect(saver, RunMode::Application, windows);
    case Role::Guest: return windows.ShowInHost(*options.HostWindow);
    default: return Main(saver, DescribeStart(options), windows);
  }
}

int RunOnDesktop(char* program, const StartOptions& options) {
  if (!HasDesktop()) {
    return Fail("there is no desktop to show anything on (neither DISPLAY nor WAYLAND_DISPLAY)",
                kExitCannotDo);
  }
  StopSignals stopSignals;
  // The look of the user's desktop more than doubles the memory and the time of the start on some
  // of them, and a window full of stars shows nothing of it.
  QGuiApplication::setDesktopSettingsAware(ShowsDialogs(options));
  ToolkitArguments arguments(program);
  QApplication application(arguments.Count, arguments.Values.data());
  QtPump pump;
  const std::unique_ptr<DesktopServices> desktop = MakeDesktopServices();

  SaverPlatform platform;
  const auto saver = std::make_unique<Saver>();
  saver->Events = &pump;
  saver->Desktop = desktop.get();
  saver->Platform = &platform;
  SqliteTree tree(OwnTreeFiles(), Say);
  MigrateMachineSettings(tree);
  BeginningTree edited(tree);
  OverriddenTree overridden(edited);
  overridden.Override(options.Changes);
  saver->Tree = &overridden;
  stopSignals.Watch([&] {
    saver->QuitApp = true;
    saver->StopRun = true;
    CloseDialogs();
  });

  AppWindows windows(*saver, options, edited);
  if (!options.Template.empty() && !windows.BeginWithTemplate(options.Template, edited.Values())) {
    return windows.ExitCode();
  }
  Run(*saver, options, windows);
  return windows.ExitCode();
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  StartOptions options;
  if (const auto wrong = ParseStartOptions(arguments, options)) {
    return Fail(*wrong + " (--help lists the options)", kExitWrongUse);
  }
  switch (options.AskedFor) {
    case Role::Help: return PrintAndEnd(UsageText());
    case Role::Version: return PrintAndEnd("starfolds " STARFOLDS_VERSION "\n");
    default: break;
  }
  if (const auto wrong = PrepareForHost(options)) return Fail(*wrong, kExitCannotDo);
  return RunOnDesktop(argv[0], options);
}
