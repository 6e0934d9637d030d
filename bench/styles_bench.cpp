// The cost of each style: the step of a star and the seeding of one, and that of comets and ambient
// stars. The minimal loop runs in the same program, for ratios to it. Each style uses the first
// factory profile that has it.
#include <string>

#include "bodies/comets.h"
#include "measure.h"
#include "minimal_loop.h"
#include "settings/factory.h"
#include "universe/ambient.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

constexpr Integer kStars = 5000;
constexpr Integer kTrail = 6;
constexpr int kBatch = 100;     // frames between two readings of the clock
constexpr int kSettling = 600;  // frames until a body has its final look
constexpr TourPlace kNoTour{0, 0, 32000, 0, false};

/// Index of the first factory profile of a style.
int FactoryRowOf(FoldStyle style) {
  StarfoldProfile profile;
  for (int row = 0; row < kProfileCount; ++row) {
    LoadFactoryProfile(profile, FactorySet::Starfolds4x, row);
    if (profile.Style() == style) return row;
  }
  return 0;
}

/// A body of a factory profile without flares.
scenes::BodyStage FactoryBody(int row, Integer stars, Integer trail) {
  return scenes::BodyStage(1920, 1080, stars, trail, [row](SettingsRecords& settings) {
    StarfoldProfile& profile = settings.Profiles[0];
    LoadFactoryProfile(profile, FactorySet::Starfolds4x, row);
    profile.Starfold_NewFrames = 0;
    profile.Starfold_NovaFreq = 0;
    profile.Starfold_PulsarFreq = 0;
    profile.Starfold_CometFreq = 0;
  });
}

void StepBody(scenes::BodyStage& stage) { StarStep(stage.Frame(), kNoTour); }

/// The step of a settled body. It is not re-seeded, so each batch of frames starts with the same
/// stars, before those that drift have left.
void MeasureStep(benchmark::State& state, FoldStyle style, Integer trail) {
  const int row = FactoryRowOf(style);
  scenes::BodyStage stage = FactoryBody(row, kStars, trail);
  for (int frame = 0; frame < kSettling; ++frame) {
    stage.Step();
    StepNebulaRibbons(*stage.Process, stage.Run->Slots, stage.Run->Folds.StarfoldProf);
  }
  stage.Process->Profiles[0].Starfold_NewFreq = 0;
  const StarArrays settled = stage.Run->Stars;
  for (auto _ : state) {
    state.PauseTiming();
    stage.Run->Stars = settled;
    StepBody(stage);
    state.ResumeTiming();
    for (int frame = 0; frame < kBatch; ++frame) StepBody(stage);
    benchmark::ClobberMemory();
  }
  CountStars(state, static_cast<std::size_t>(kStars) * kBatch);
  state.SetLabel(std::string(FactoryProfileName(row, FactorySet::Starfolds4x)));
}

void FloorLoop(benchmark::State& state) {
  MinimalLoop minimal(FactoryBody(FactoryRowOf(FoldStyle::Standard), kStars, 1));
  for (auto _ : state) {
    for (int frame = 0; frame < kBatch; ++frame) minimal.Step();
    benchmark::ClobberMemory();
  }
  CountStars(state, minimal.X.size() * kBatch);
}

FoldStyle StyleOf(const benchmark::State& state) { return static_cast<FoldStyle>(state.range(0)); }

void Step(benchmark::State& state) { MeasureStep(state, StyleOf(state), 1); }
void StepWithTrails(benchmark::State& state) { MeasureStep(state, StyleOf(state), kTrail); }

void Seed(benchmark::State& state) {
  const int row = FactoryRowOf(StyleOf(state));
  scenes::BodyStage stage = FactoryBody(row, kStars, 1);
  for (auto _ : state) {
    for (std::size_t i = 0; i < kStars; ++i) {
      SeedStar(*stage.Process, stage.Run->Stars, stage.Run->Slots, i);
    }
    benchmark::ClobberMemory();
  }
  CountStars(state, kStars);
  state.SetLabel(std::string(FactoryProfileName(row, FactorySet::Starfolds4x)));
}

/// Comets at their maximum number that persist, with stars that end and restart at the profile's
/// rate.
void CometStars(benchmark::State& state) {
  scenes::BodyStage stage = FactoryBody(FactoryRowOf(FoldStyle::Standard), 1, 1);
  CometArrays& comets = stage.Run->Comets;
  ResetComets(*stage.Process, comets, 0, 0);
  stage.Process->Profiles[0].Starfold_CometCPersist = 1;
  stage.Process->Prepared[0].RunCometChance = 1;
  for (int frame = 0; frame < kSettling; ++frame) CometStep(stage.Frame(), 0, 0, kNoTour.SegIdx);
  stage.Process->Prepared[0].RunCometChance = 0;
  std::size_t stars = 0;
  for (const CometHead& head : comets.Heads) stars += static_cast<std::size_t>(head.CometLeft);
  for (auto _ : state) {
    for (int frame = 0; frame < kBatch; ++frame) CometStep(stage.Frame(), 0, 0, kNoTour.SegIdx);
    benchmark::ClobberMemory();
  }
  CountStars(state, stars * kBatch);
}

/// The ambient stars of a finished universe with default settings, seen from the camera's initial
/// position.
void AmbientStars(benchmark::State& state) {
  scenes::Stage stage(1920, 1080);
  stage.Read();
  const UniverseSettings& universe = stage.Process->Universe;
  PrepareRun(*stage.Process);
  const PreparedUniverse& run = stage.Process->RunUniverse;
  AmbientArrays stars(static_cast<std::size_t>(universe.Universe_AmStar),
                      static_cast<std::size_t>(universe.Universe_AmFrames));
  BuildAmbRamp(stars);
  BodySlots shape;
  SetUpExpansion(*stage.Process, shape, 0);
  const AmbientScene scene{*stage.Process, stars, shape};
  const TourPoint eye{0, 0, -run.RunDstCen};
  const Single radius = run.RunExpand * universe.Universe_ESteps / 2;
  SeedAmbientStars(scene, 0, 0);
  const auto step = [&] { StepAmbientStars(scene, eye, radius, 0, AmbientMode::Finished, 0); };
  for (int frame = 0; frame < 10 * kSettling; ++frame) step();
  for (auto _ : state) {
    for (int frame = 0; frame < kBatch; ++frame) step();
    benchmark::ClobberMemory();
  }
  CountStars(state, stars.AmbX.size() * kBatch);
}

void Measured(benchmark::internal::Benchmark* bench) {
  bench->MinTime(0.1);
  RepeatAndTakeQuickest(bench);
}

void EveryStyle(benchmark::internal::Benchmark* bench) {
  bench->DenseRange(0, kStyleCount - 1);
  Measured(bench);
}

BENCHMARK(FloorLoop)->Apply(Measured);
BENCHMARK(Step)->Apply(EveryStyle);
BENCHMARK(StepWithTrails)->Arg(0)->Apply(Measured);
BENCHMARK(Seed)->Apply(EveryStyle);
BENCHMARK(CometStars)->Apply(Measured);
BENCHMARK(AmbientStars)->Apply(Measured);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
