// The surface that the renderer runs the engine on.
#pragma once

#include <functional>

#include "process/run_requests.h"
#include "render/frame_sinks.h"

namespace starfolds {

/// Passes each planned frame to the sinks when the engine presents it, and stops the run after the
/// last frame or when a sink has failed.
class RecordingSurface : public MemorySurface {
 public:
  /// Called after every frame, written or not.
  std::function<void(FrameNumber)> OnFrame;

  /// All arguments but `plan` must outlive the surface.
  RecordingSurface(Integer width, Integer height, const FramePlan& plan, const FrameSinks& sinks,
                   RunRequests& requests)
      : MemorySurface(width, height), plan_(plan), sinks_(sinks), requests_(requests) {}

  void Present() override;

  /// The first fault of a sink, if any.
  const Fault& Trouble() const { return trouble_; }

 private:
  void WriteFrame();

  FramePlan plan_;
  const FrameSinks& sinks_;
  RunRequests& requests_;
  FrameNumber frame_ = 0;
  Fault trouble_;
};

}  // namespace starfolds
