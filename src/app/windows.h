// The windows that the program opens at its start.
#pragma once

#include <QWindow>
#include <string>

#include "app/options.h"
#include "hosting/main.h"
#include "hosting/run_loop.h"
#include "info/help_window.h"
#include "widgets/qt_message_boxes.h"

namespace starfolds {

/// Opens the windows. If one cannot be opened, it reports that on standard error, and the process
/// must end with `ExitCode`.
class AppWindows : public StartActions {
 public:
  /// `edited` is the tree that the dialogs read and store: that of the run without the values of
  /// the options. `process.Tree` is the tree of the run.
  AppWindows(ProcessState& process, const StartOptions& options, KeyValueTree& edited);

  bool FileExists(const std::string& path) override;
  void ShowFrmSaver() override;
  void ShowFrmAppExe() override;
  void ShowFrmProps() override;
  void LoadFrmPreview() override;
  void LoadTemplate(const std::string& path) override;

  /// Loads a template into `tree`, the initial values of the process. False if it cannot be read,
  /// which the user has been told.
  bool BeginWithTemplate(const std::string& path, KeyValueTree& tree);

  /// Runs the effect inside the window of a saver host.
  void ShowInHost(Long hostWindow);

  int ExitCode() const { return exitCode_; }

 private:
  /// Opens the properties dialog with the parent `owner`, or without one.
  void RunFrmProps(QWindow* owner);
  void Fail(const UserText& message, int exitCode);

  ProcessState& process_;
  StartOptions options_;
  KeyValueTree& ofRun_;
  KeyValueTree& edited_;
  SeedSource seed_;
  QtMessageBoxes boxes_;
  HelpWindow help_;
  int exitCode_ = 0;
};

}  // namespace starfolds
