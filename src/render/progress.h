// A progress bar on the terminal.
#pragma once

#include "render/frame_plan.h"

namespace starfolds {

class Progress {
 public:
  /// If `shown` is false all calls do nothing.
  Progress(FrameNumber frames, bool shown) : frames_(frames), shown_(shown) {}

  void Show(FrameNumber frame);

  /// Ends the bar's line.
  void End() const;

 private:
  FrameNumber frames_;
  bool shown_;
  int percent_ = -1;  // as last drawn
};

}  // namespace starfolds
