// `starfolds`: the screen saver.
#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/options.h"
#include "app/system_start.h"
#include "app/toolkit_start.h"
#include "app/windows.h"
#include "command_line/options.h"
#include "desktop/companions.h"
#include "desktop/desktop_services_qt.h"
#include "desktop/foreign_window.h"
#include "desktop/qt_pump.h"
#include "desktop/signals.h"
#include "desktop/translation.h"
#include "hosting/main.h"
#include "platform/console.h"
#include "settings/first_run.h"
#include "settings/overrides.h"
#include "settings/template_file.h"
#include "storage/disk_files.h"
#include "storage/earlier_tree.h"
#include "storage/sqlite_tree.h"

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;
constexpr int kExitWrongUse = 2;

/// Before the application object has been made.
int Fail(const UserText& message, int exitCode) {
  Complain("starfolds", InOneLine(message, TranslationBeforeStart()));
  return exitCode;
}

int PrintAndEnd(const std::string& text) {
  return Print(text) ? 0
                     : Fail(STARFOLDS_TEXT("cannot write to the standard output"), kExitCannotDo);
}

int FailWithHint(const UserText& wrong) {
  const ShownText shown = TranslationBeforeStart();
  Complain("starfolds",
           InOneLine(wrong, shown) + " " + shown(STARFOLDS_TEXT("(--help lists the options)")));
  return kExitWrongUse;
}

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

void ShowEffect(ProcessState& process, RunMode mode, StartActions& windows) {
  process.Mode = mode;
  ShowEffectWindow(process, windows);
}

/// Ends with the saver that started it, and does not search for running savers.
void RunCompanion(ProcessState& process, StartActions& windows) {
  const OwnerWatch owner([&] { process.Requests.AskQuit(); });
  ShowEffect(process, RunMode::ScreenSaver, windows);
}

constexpr const char* kHostVariable = "XSCREENSAVER_WINDOW";

std::string NamedByHost() { return qgetenv(kHostVariable).toStdString(); }

/// The host's window, from the command line or else from the environment.
std::optional<Long> WindowOfHost(const StartOptions& options) {
  return options.HostWindow ? options.HostWindow : WindowNumber(NamedByHost());
}

UserText WrongHostWindow() {
  const std::string named = NamedByHost();
  if (named.empty()) {
    return {
        STARFOLDS_TEXT("--root is for programs that host a screen saver, and %1 names no window "
                       "of one; --saver runs the screen saver without a host"),
        {kHostVariable}};
  }
  return {STARFOLDS_TEXT("%1 is '%2', which is no window of an X server; on Wayland no host can "
                         "show a screen saver inside its own window"),
          {kHostVariable, named}};
}

/// Finds a host's window, and selects the window system that it is on.
TextFault PrepareForHost(const StartOptions& options) {
  if (options.AskedFor == Role::Guest) {
    if (!WindowOfHost(options)) return WrongHostWindow();
    if (ChooseForeignWindowSystem()) return std::nullopt;
    return STARFOLDS_TEXT(
        "there is no X server to reach the window of the host (DISPLAY names none that answers)");
  }
  // Whether a preview is shown is decided later, and so is the case without an X server.
  if (options.AskedFor == Role::FromCommandLine && AsksForPreview(options.CommandLine)) {
    ChooseForeignWindowSystem();
  }
  return std::nullopt;
}

/// Reads the template if a message box would not be visible: it would wait for ever for its answer.
TextFault CheckTemplate(const StartOptions& options) {
  if (options.Template.empty() || MessageBoxesAreSeen()) return std::nullopt;
  DiskFiles disk;
  const Fault fault = TemplateFile(disk).Load(options.Template);
  if (!fault) return std::nullopt;
  return UserText(STARFOLDS_TEXT("cannot read %1"), {QuotedStart(options.Template)}, *fault);
}

/// Each dialog runs an event loop nested in that of the dialog opened before it. Closing one may
/// close others.
void CloseDialogs() {
  QList<QPointer<QWidget>> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) windows.prepend(window);
  for (const QPointer<QWidget>& window : windows) {
    if (window && window->isVisible() && window->isModal()) window->close();
  }
}

/// Opens the window that was asked for, and returns when it has closed.
void Run(ProcessState& process, const StartOptions& options, AppWindows& windows) {
  if (options.Companion) return RunCompanion(process, windows);
  switch (options.AskedFor) {
    case Role::Saver: return DispatchCommandLine(process, "/S", windows);
    case Role::Settings: return DispatchCommandLine(process, "/C", windows);
    case Role::Window: return ShowEffect(process, RunMode::Application, windows);
    case Role::Guest: return windows.ShowInHost(*WindowOfHost(options));
    default: return Main(process, DescribeStart(options), windows);
  }
}

/// Runs until the windows have closed. The application object exists.
int RunWindows(StopSignals& stopSignals, const StartOptions& options) {
  QtPump pump;
  const std::unique_ptr<DesktopServices> desktop = MakeDesktopServices();

  SaverPlatform platform;
  const auto process = std::make_unique<ProcessState>();
  process->Events = &pump;
  process->Desktop = desktop.get();
  process->Platform = &platform;
  const auto complain = [](const UserText& line) {
    Complain("starfolds", InOneLine(line, TranslatedText));
  };
  SqliteTree tree(OwnTreeFiles(), complain, {},
                  [&] { return stopSignals.Asked() || process->Requests.QuitApp(); });
  if (const auto earlier = EarlierTree()) ImportEarlierSettings(tree, *earlier);
  MigrateMachineSettings(tree);
  BeginningTree edited(tree);
  OverriddenTree overridden(edited);
  overridden.Override(options.Changes);
  process->Tree = &overridden;
  stopSignals.Watch([&] {
    process->Requests.AskQuit();
    CloseDialogs();
  });

  AppWindows windows(*process, options, edited);
  if (!options.Template.empty() && !windows.BeginWithTemplate(options.Template, edited.Values())) {
    return windows.ExitCode();
  }
  Run(*process, options, windows);
  return windows.ExitCode();
}

int RunOnDesktop(char* program, const StartOptions& options) {
  if (!NamesDesktop()) {
    return Fail(
        STARFOLDS_TEXT(
            "there is no desktop to show anything on (neither DISPLAY nor WAYLAND_DISPLAY)"),
        kExitCannotDo);
  }
  StopSignals stopSignals;
  // On some desktops the desktop's style more than doubles the memory and time of a start, and a
  // window full of stars does not show it.
  QGuiApplication::setDesktopSettingsAware(ShowsDialogs(options));
  const Toolkit toolkit(program);
  const int exitCode = RunWindows(stopSignals, options);
  toolkit.EndWhereQtMayHang(exitCode);
  return exitCode;
}

}  // namespace
}  // namespace starfolds

int main(int argc, char** argv) {
  using namespace starfolds;
  PrepareProcess();
  const std::vector<std::string> texts = ProgramArguments(argc, argv);
  const std::vector<std::string_view> arguments(texts.begin(), texts.end());
  StartOptions options;
  if (const TextFault wrong = ParseStartOptions(arguments, options)) return FailWithHint(*wrong);
  if (options.AskedFor == Role::FromCommandLine) {
    options.CommandLine = RawCommandLine().value_or(options.CommandLine);
  }
  switch (options.AskedFor) {
    case Role::Help: return PrintAndEnd(HelpOf(SaverGuide(), TranslationBeforeStart()));
    case Role::Version: return PrintAndEnd("starfolds " STARFOLDS_VERSION "\n");
    default: break;
  }
  if (const TextFault wrong = CheckTemplate(options)) return Fail(*wrong, kExitWrongUse);
  if (const TextFault wrong = PrepareForHost(options)) return Fail(*wrong, kExitCannotDo);
  return RunOnDesktop(argv[0], options);
}
