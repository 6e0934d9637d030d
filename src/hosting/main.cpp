#include "hosting/main.h"

#include <string_view>

#include "hosting/saver_password.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "widgets/captions.h"

namespace starfolds {
namespace {

constexpr std::size_t kSwitchLength = 2;
constexpr std::string_view kTemplateExtension = ".SFD";

/// Converts ASCII letters only, independently of the locale.
std::string UpperCased(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

std::string Switch(std::string_view line) { return UpperCased(line.substr(0, kSwitchLength)); }

/// The window handle after a switch; 0, which is no window, if it is not a number or does not fit.
Long HandleBehindSwitch(std::string_view line) {
  return RoundedOr<Long>(0, LenientNumber(line.substr(kSwitchLength)));
}

bool NamesTemplate(std::string_view line) { return UpperCased(line).ends_with(kTemplateExtension); }

/// An executable with the extension ".exe", without a saver of the same name beside it, is a plain
/// application whatever its command line says.
bool IsPlainApplication(const StartUp& start, StartActions& actions) {
  std::string path = start.ProgramFolder;
  if (!path.ends_with('/') && !path.ends_with('\\')) path += '/';
  path += start.ProgramName;
  return actions.FileExists(path + ".exe") && !actions.FileExists(path + ".scr");
}

void OpenProperties(ProcessState& process, StartActions& actions) {
  if (process.Desktop->WindowExists(kPropertiesCaption)) {
    process.Desktop->BringToFront(kPropertiesCaption);
  } else {
    actions.ShowFrmProps();
  }
}

}  // namespace

void ShowEffectWindow(ProcessState& process, StartActions& actions) {
  process.Requests.BeginRun();
  if (process.Mode == RunMode::ScreenSaver) {
    SetSaverRunning(process, true);
    actions.ShowFrmSaver();
  } else {
    actions.ShowFrmAppExe();
  }
}

bool AsksForProperties(const std::string& commandLine) {
  return Trimmed(commandLine).empty() || Switch(commandLine) == "/C";
}

bool AsksForPreview(const std::string& commandLine) { return Switch(commandLine) == "/P"; }

void DispatchCommandLine(ProcessState& process, const std::string& commandLine,
                         StartActions& actions) {
  process.Mode = RunMode::ScreenSaver;
  const std::string given = Switch(commandLine);
  if (AsksForProperties(commandLine)) {
    OpenProperties(process, actions);
  } else if (given == "/S") {
    if (!process.Desktop->WindowExists(kSaverCaption)) ShowEffectWindow(process, actions);
  } else if (AsksForPreview(commandLine)) {
    process.Mode = RunMode::Preview;
    process.PreviewParent = HandleBehindSwitch(commandLine);
    actions.LoadFrmPreview();
  } else if (given == "/A") {
    process.Desktop->ChangePassword(HandleBehindSwitch(commandLine));
  } else {
    if (NamesTemplate(commandLine)) actions.LoadTemplate(commandLine);
    ShowEffectWindow(process, actions);
  }
}

void Main(ProcessState& process, const StartUp& start, StartActions& actions) {
  process.Requests = {};
  if (IsPlainApplication(start, actions)) {
    process.Mode = RunMode::Application;
    ShowEffectWindow(process, actions);
  } else {
    DispatchCommandLine(process, start.CommandLine, actions);
  }
}

}  // namespace starfolds
