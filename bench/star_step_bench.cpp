// The star step, compared with the least that any program must do for a star: read its position,
// rotate it, project it, and write two pixels. Compare the ns/star columns of the same run as a
// ratio, which does not depend on the machine's speed.
#include "measure.h"
#include "minimal_loop.h"

namespace starfolds {
namespace {

/// A body whose stars are all in front of the eye and on the screen, without re-seeding, so that
/// the step and the minimal loop do the same work.
scenes::BodyStage PlainBody(const benchmark::State& state) {
  return scenes::BodyStage(static_cast<Integer>(state.range(1)),
                           static_cast<Integer>(state.range(2)),
                           static_cast<Integer>(state.range(0)), 1, [](SettingsRecords& settings) {
                             settings.Universe.Universe_NewFreq = 0;
                             for (StarfoldProfile& profile : settings.Profiles) {
                               profile.Starfold_NewFreq = 0;
                               profile.Starfold_CometFreq = 0;
                             }
                           });
}

void FloorLoop(benchmark::State& state) {
  scenes::BodyStage stage = PlainBody(state);
  MinimalLoop minimal(stage);
  for (auto _ : state) {
    minimal.Step();
    benchmark::ClobberMemory();
  }
  CountStars(state, minimal.X.size());
}

void StandardStars(benchmark::State& state) {
  scenes::BodyStage stage = PlainBody(state);
  for (auto _ : state) {
    StarStep(stage.Frame(), {0, 0, 32000, 0, false});
    benchmark::ClobberMemory();
  }
  CountStars(state, stage.Run->Stars.Star.size());
}

void Sizes(benchmark::internal::Benchmark* bench) {
  for (const std::int64_t stars : {1000, 5000, 30000}) bench->Args({stars, 1920, 1080});
  for (const std::int64_t stars : {5000, 30000}) bench->Args({stars, 3840, 2160});
}

void Measured(benchmark::internal::Benchmark* bench) {
  Sizes(bench);
  RepeatAndTakeQuickest(bench);
}

BENCHMARK(FloorLoop)->Apply(Measured);
BENCHMARK(StandardStars)->Apply(Measured);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
