// Where written frames go. A sink is made per output that the command line asks for.
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

  /// Takes a frame. It is called only for frames that are to be written, in their order.
  virtual Fault Take(FrameNumber frame, const MemorySurface& surface) = 0;

  /// All frames were taken: what is still open is ended.
  virtual Fault Finish() = 0;
};

using FrameSinks = std::vector<std::unique_ptr<FrameSink>>;

FrameSinks MakeSinks(const RenderOptions& options);

}  // namespace starfolds
