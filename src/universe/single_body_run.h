// `SingleBodyRun`: `UniverseRun` cut down to one body, straight ahead of an eye that does not move.
#pragma once

#include <optional>

#include "bodies/run_arrays.h"
#include "bodies/star_step.h"
#include "process/process_state.h"

namespace starfolds {

struct SingleBodyPlan {
  Integer Body = 0;  // profile 0 to 49, or composite 0 to 15 if `IsComposite`
  bool IsComposite = false;
  Long Stars = 5000;  // times `StarScale`, clamped to 1 to 30000
  Single StarScale = 1;
  Integer Trail = 1;  // pixels per star; shortened if there is no room for all of them
  std::optional<Integer> FrameLimit = {};  // without one the run goes on until a flag says stop
};

/// The frames of one body, for callers that pace them. `process` must stay unchanged while they are
/// drawn, except its surface's pixels; its star count, starfold count and trail of `Universe` are
/// set.
class SingleBody {
 public:
  /// Prepares the run and places the stars, without plotting. Ignores `plan.FrameLimit`.
  SingleBody(ProcessState& process, const SingleBodyPlan& plan);
  SingleBody(const SingleBody&) = delete;
  SingleBody& operator=(const SingleBody&) = delete;

  /// Plots the next frame on `Screen.hDCDraw`, without presenting it.
  void Step();

 private:
  ProcessState& process_;
  RunArrays arrays_;
  FrameScene scene_;
  TourPlace place_;
};

/// Runs one body on `Screen.hDCDraw` until a flag says stop or the frames are over. Changes the
/// star count, starfold count and trail of `Universe`. `NewRun` is cleared if it ended the run.
void SingleBodyRun(ProcessState& process, const SingleBodyPlan& plan);

}  // namespace starfolds
