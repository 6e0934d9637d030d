// Chooses what the process does from how it was started.
#pragma once

#include <string>

#include "process/process_state.h"

namespace starfolds {

/// How the process was started.
struct StartUp {
  std::string ProgramFolder;  // of the executable file
  std::string ProgramName;    // the executable's name without the extension
  std::string CommandLine;    // all arguments, joined, not split
};

/// What a start can open. Each function shows a window and returns when it has closed.
class StartActions {
 public:
  virtual ~StartActions() = default;
  virtual bool FileExists(const std::string& path) = 0;
  virtual void ShowFrmSaver() = 0;
  virtual void ShowFrmAppExe() = 0;
  virtual void ShowFrmProps() = 0;
  /// In the window `PreviewParent`.
  virtual void LoadFrmPreview() = 0;
  virtual void LoadTemplate(const std::string& path) = 0;
};

/// Takes the role from the executable's name and the command line, and opens at most one window:
/// the saver, the application window, the properties dialog or the preview.
void Main(ProcessState& process, const StartUp& start, StartActions& actions);

/// Whether a command line asks for the properties dialog.
bool AsksForProperties(const std::string& commandLine);

/// Whether a command line asks for the preview in a host's window.
bool AsksForPreview(const std::string& commandLine);

/// The part of `Main` that depends on the command line alone.
void DispatchCommandLine(ProcessState& process, const std::string& commandLine,
                         StartActions& actions);

/// Runs the effect in the window for `ProcessState::Mode`.
void ShowEffectWindow(ProcessState& process, StartActions& actions);

}  // namespace starfolds
