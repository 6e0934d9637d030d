// How the process was started decides what it is.
#pragma once

#include <string>

#include "process/process_state.h"

namespace starfolds {

/// What a start looks at.
struct StartUp {
  std::string ProgramFolder;  // of the running file
  std::string ProgramName;    // its name without the extension
  std::string CommandLine;    // all that stood behind the program's name, not split
};

/// What a start may do, beside asking the desktop. Each of the windows lives until its routine
/// returns.
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

/// Takes the role from the file's name and the command line, and opens at most one window: the
/// saver, the application window, the properties dialog or the preview.
void Main(ProcessState& process, const StartUp& start, StartActions& actions);

/// Whether a command line asks for the properties dialog.
bool AsksForProperties(const std::string& commandLine);

/// Whether a command line asks for the preview in a host's window.
bool AsksForPreview(const std::string& commandLine);

/// The part of `Main` that looks at the command line alone.
void DispatchCommandLine(ProcessState& process, const std::string& commandLine,
                         StartActions& actions);

/// Runs the effect in the window that belongs to `ProcessState::Mode`.
void ShowEffectWindow(ProcessState& process, StartActions& actions);

}  // namespace starfolds
