// Which frames of a run are written.
#pragma once

#include <cstdint>

namespace starfolds {

/// Frames are counted from 1, so the last frame of a run has the number of its frames.
using FrameNumber = std::int64_t;

struct FramePlan {
  FrameNumber Frames = 1000;  // the length of the run
  FrameNumber First = 1;      // the first one that is written
  FrameNumber Every = 1;      // the distance to the next one

  bool Writes(FrameNumber frame) const {
    return frame >= First && frame <= Frames && (frame - First) % Every == 0;
  }

  /// How many frames are written.
  FrameNumber Count() const { return First > Frames ? 0 : (Frames - First) / Every + 1; }
};

}  // namespace starfolds
