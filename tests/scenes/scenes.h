// Named scenes that tests, benchmarks and pictures share: a process state with a memory surface, a
// counted clock and a seed, ready to run.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "bodies/seed_star.h"
#include "bodies/star_step.h"
#include "process/prepare_run.h"
#include "settings/stored_records.h"
#include "universe/host_surface.h"

namespace starfolds::scenes {

/// A memory surface that runs `OnFrame` once a frame.
class WatchedSurface : public MemorySurface {
 public:
  using MemorySurface::MemorySurface;
  std::function<void()> OnFrame;

  void Present() override {
    MemorySurface::Present();
    if (OnFrame) OnFrame();
  }
};

/// A saver process in memory. `Settings()` may be changed until `Read()`, but for the focal length
/// and the frame delay, which are taken before.
class Stage {
 public:
  explicit Stage(Integer width = 640, Integer height = 360, std::uint64_t seed = 1)
      : Canvas(width, height) {
    Process->Events = &Clock;
    Process->Desktop = &Desktop;
    Process->Tree = &Tree;
    SetupDisplay(*Process, Canvas, seed);
  }

  SettingsRecords& Settings() { return *Records; }

  /// Reads the settings for a run.
  void Read(bool smallPreview = false) {
    Process->Advanced = Records->Advanced;
    TakeUniverseSettings(*Process, *Records, smallPreview);
  }

  /// Makes the run stop after so many frames.
  void StopAfter(int frames) {
    Canvas.OnFrame = [this, frames] {
      if (++FramesShown >= frames) Process->Requests.AskStop();
    };
  }

  // Large; kept off the stack.
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  std::unique_ptr<SettingsRecords> Records = std::make_unique<SettingsRecords>();
  WatchedSurface Canvas;
  CountedPump Clock;
  MemoryDesktop Desktop;
  MemoryTree Tree;
  int FramesShown = 0;
};

/// One body of profile 0, seeded and straight ahead, whose frames the caller steps one by one.
class BodyStage : public Stage {
 public:
  BodyStage(Integer width, Integer height, Integer stars, Integer trail = 1,
            const std::function<void(SettingsRecords&)>& change = {})
      : Stage(width, height) {
    Settings().Universe.Universe_Stars = stars;
    Settings().Universe.Universe_STrail = trail;
    if (change) change(Settings());
    Read();
    Process->Universe.Universe_Starfold = 1;
    PrepareRun(*Process);
    Run = std::make_unique<RunArrays>(Process->Universe, Process->RunUniverse.RunTrail, Integer{1},
                                      Integer{0});
    Run->Folds.StarfoldRel[0] = {0, 0, Process->Prepared[0].RunDistance};
    InitBodies(*Process, Run->Slots, Run->Folds.StarfoldProf);
    for (std::size_t i = 0; i < Run->Stars.Star.size(); ++i) {
      SeedStar(*Process, Run->Stars, Run->Slots, i);
    }
  }

  FrameScene Frame() { return {*Process, *Run, RunKind::SingleProfile}; }

  void Step() {
    AdvanceAngles(Process->Prepared);
    StarStep(Frame(), {0, 0, 32000, 0, false});
  }

  std::unique_ptr<RunArrays> Run;
};

}  // namespace starfolds::scenes
