// The effect inside the window of another program.
#pragma once

#include <memory>

#include "desktop/foreign_window.h"
#include "desktop/message_window.h"
#include "hosting/run_loop.h"

namespace starfolds {

/// Covers the host's window and follows its size. Takes no input, which goes to the host, and ends
/// with the host's window.
class GuestWindow : private WindowEvents, private ForeignWindowEvents {
 public:
  /// Does not show the window yet.
  GuestWindow(ProcessState& process, SeedSource seed, Long host);
  ~GuestWindow() override;

  /// Shows the window and runs the effect. Returns when the host is gone or the process must end.
  /// False if the host's window does not exist (any more) and nothing was run. A preview does not
  /// show the user's message.
  bool Run(bool smallPreview);

  WindowSurface& Drawing() { return surface_; }

 private:
  void HostResized() override;
  void HostGone() override;
  void Resized() override;
  void Destroyed() override;

  void BeginRun();
  void RunAtHostsSize();

  ProcessState& process_;
  SeedSource seed_;
  std::unique_ptr<ForeignWindow> host_;
  bool smallPreview_ = false;
  bool hostGone_ = false;
  bool beginAnew_ = false;
  WindowSurface surface_;  // inside `host_`, so destroyed before it
  MessageWindow picMessage_;
};

}  // namespace starfolds
