// The preview in the window of a control panel.
#pragma once

#include "hosting/guest_window.h"

namespace starfolds {

/// Runs the whole effect with fewer stars inside `ProcessState::PreviewParent`.
class FrmPreview {
 public:
  FrmPreview(ProcessState& process, SeedSource seed);

  /// Shows the preview. Returns when the host's window is gone; the process must end then.
  void Load();

 private:
  void PreviewRun();

  GuestWindow window_;
};

}  // namespace starfolds
