// A progress bar on the terminal.
#pragma once

#include <string>
#include <utility>

#include "render/frame_plan.h"

namespace starfolds {

class Progress {
 public:
  /// If `shown` is false all calls do nothing. `title` stands before the bar.
  Progress(FrameNumber frames, bool shown, std::string title)
      : frames_(frames), shown_(shown), title_(std::move(title)) {}

  void Show(FrameNumber frame);

  /// Ends the bar's line.
  void End() const;

 private:
  FrameNumber frames_;
  bool shown_;
  std::string title_;
  int percent_ = -1;  // as last drawn
};

}  // namespace starfolds
