#include "render/recording_surface.h"

namespace starfolds {

void RecordingSurface::Present() {
  MemorySurface::Present();
  ++frame_;
  if (plan_.Writes(frame_)) WriteFrame();
  if (OnFrame) OnFrame(frame_);
  if (frame_ >= plan_.Frames || trouble_) requests_.AskStop();
}

void RecordingSurface::WriteFrame() {
  for (const auto& sink : sinks_) {
    trouble_ = sink->Take(frame_, *this);
    if (trouble_) return;
  }
}

}  // namespace starfolds
