// The pace of a run: every run passes through `FramePace` once a frame.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Shows the frame, then waits, with window events running, until the frame has lasted
/// `FrameDelayMs` since `FrameStartTick`. A frame that has no delay left waits for the screen's
/// refresh instead. Returns true if the run must stop.
bool FramePace(ProcessState& process);

/// Stores the time of the frame's start.
void StampFrame(ProcessState& process);

/// Yields to the window system until the clock has moved on or the run must stop.
void PumpOneTick(ProcessState& process);

}  // namespace starfolds
