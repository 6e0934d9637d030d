// The windows that a start may open.
#pragma once

#include <QWindow>
#include <string>

#include "app/options.h"
#include "hosting/main.h"
#include "hosting/run_loop.h"
#include "info/help_window.h"
#include "widgets/qt_message_boxes.h"

namespace starfolds {

/// Opens the windows that exist. For the ones that do not it says so on stderr, and the process is
/// to end with `ExitCode`.
class AppWindows : public StartActions {
 public:
  /// `edited` is what the dialogs read and store: the tree of the run without the settings of the
  /// options. `saver.Tree` is the tree of the run.
  AppWindows(ProcessState& process, const StartOptions& options, KeyValueTree& edited);

  bool FileExists(const std::string& path) override;
  void ShowFrmSaver() override;
  void ShowFrmAppExe() override;
  void ShowFrmProps() override { RunFrmProps(nullptr); }
  void LoadFrmPreview() override;
  void LoadTemplate(const std::string& path) override;

  /// Brings a template into `tree`, the values that the process begins with. False: it cannot be
  /// read, and the user knows why.
  bool BeginWithTemplate(const std::string& path, KeyValueTree& tree);

  /// The full effect inside the window of a saver host.
  void ShowInHost(Long hostWindow);

  int ExitCode() const { return exitCode_; }

 private:
  /// The properties dialog over `owner`, or alone.
  void RunFrmProps(QWindow* owner);
  void Fail(const std::string& message, int exitCode);

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
