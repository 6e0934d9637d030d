// The pace of a run: every run passes through `FramePace` once a frame.
#pragma once

#include "process/process_state.h"

namespace starfolds {

/// Shows the frame, after those that are kept, then waits, with window events running, until the
/// frame has lasted `FrameDelayMs` since `FrameStartTick`. A frame that has no delay left waits for
/// the screen's refresh instead. Returns true if the run must stop.
bool FramePace(ProcessState& process);

/// The same for a frame that may be kept: if the surface can keep it, returns at once until some
/// frames are kept or a part of the frame's delay is over, and then shows them at their times. A
/// program that sleeps finds the caches cold, so several frames computed together cost up to a half
/// less than one after each sleep. Once a new run was
/// requested, kept frames are not waited for.
bool FramePaceAhead(ProcessState& process);

/// Stores the time of the frame's start.
void StampFrame(ProcessState& process);

/// Yields to the window system until the clock has moved on or the run must stop.
void PumpOneTick(ProcessState& process);

}  // namespace starfolds
