// Whole frames: a universe with factory settings on a memory surface, its creation and its tour,
// and gravity between the maximum number of starfolds.
#include <benchmark/benchmark.h>

#include "scenes/scenes.h"
#include "universe/gravity.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

/// Runs `frames` frames of a universe per iteration, from frame `skip` on.
void UniverseFrames(benchmark::State& state, int skip, int frames) {
  for (auto _ : state) {
    state.PauseTiming();
    scenes::Stage stage(1920, 1080);
    stage.Read();
    stage.Canvas.OnFrame = [&] {
      ++stage.FramesShown;
      if (stage.FramesShown == skip + 1) state.ResumeTiming();
      if (stage.FramesShown == skip + 1 + frames) {
        state.PauseTiming();
        stage.Process->Requests.AskStop();
      }
    };
    UniverseRun(*stage.Process);
    state.ResumeTiming();
  }
  state.counters["us/frame"] = benchmark::Counter(
      frames * 1e-6, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void CreationFrames(benchmark::State& state) { UniverseFrames(state, 20, 200); }
void TourFrames(benchmark::State& state) { UniverseFrames(state, 320, 700); }

void GravityAmongAll(benchmark::State& state) {
  StarfoldArrays folds(999);
  Rnd random(7);
  for (std::size_t i = 0; i < folds.StarfoldX.size(); ++i) {
    folds.StarfoldX[i] = random() * 1000;
    folds.StarfoldY[i] = random() * 1000;
    folds.StarfoldZ[i] = random() * 1000;
  }
  for (auto _ : state) StepGravity(folds, 1e-4F, true);
  state.counters["ns/pair"] =
      benchmark::Counter(999.0 * 998 * 1e-9, benchmark::Counter::kIsIterationInvariantRate |
                                                 benchmark::Counter::kInvert);
}

BENCHMARK(CreationFrames)->Unit(benchmark::kMillisecond);
BENCHMARK(TourFrames)->Unit(benchmark::kMillisecond);
BENCHMARK(GravityAmongAll)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
