// Outputs for frames. One sink is created per output that the command line asks for.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "command_line/fault.h"
#include "render/frame_plan.h"
#include "render/picture.h"

namespace starfolds {

struct RenderOptions;

class FrameSink {
 public:
  virtual ~FrameSink() = default;

  /// Takes a frame. Called only for the frames that are to be written, in order.
  virtual Fault Take(FrameNumber frame, const MemorySurface& surface) = 0;

  /// Completes the output after the last frame.
  virtual Fault Finish() = 0;
};

using FrameSinks = std::vector<std::unique_ptr<FrameSink>>;

FrameSinks MakeSinks(const RenderOptions& options);

}  // namespace starfolds
