// The star step against the least that any program must do for a star: read its place, rotate it,
// project it, and write two pixels. Compare the ns/star columns of the same run, as a ratio; the
// machine's own speed drops out.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "scenes/scenes.h"

namespace starfolds {
namespace {

/// The least loop that draws the same picture: one body, no flares, no profiles, no levels and no
/// hues, over arrays and a canvas of the same size, in the same arithmetic.
struct Floor {
  std::vector<Single> X, Y, Z, Cos, Sin;
  std::vector<Long> OldX, OldY;
  std::vector<Colour> Tint, Canvas;
  int Width, Height;
  double Focal, TiltCos, TiltSin, Distance;

  explicit Floor(const scenes::BodyStage& stage)
      : OldX(stage.Run->Stars.Star.size()),
        OldY(OldX.size()),
        Canvas(static_cast<std::size_t>(stage.Canvas.Width()) * stage.Canvas.Height()),
        Width(stage.Canvas.Width()),
        Height(stage.Canvas.Height()),
        Focal(stage.Process->Screen.FocalPixels),
        TiltCos(stage.Process->Prepared[0].Star.LevelCos[0]),
        TiltSin(stage.Process->Prepared[0].Star.LevelSin[0]),
        Distance(stage.Run->Folds.StarfoldRel[0].Z) {
    for (const StarState& star : stage.Run->Stars.Star) {
      X.push_back(star.StarX);
      Y.push_back(star.StarY);
      Z.push_back(star.StarZ);
      Cos.push_back(star.StarSpinCos);
      Sin.push_back(star.StarSpinSin);
      Tint.push_back(star.StarColor);
    }
  }

  void Write(Long x, Long y, Colour colour) {
    if (static_cast<std::uint32_t>(x) >= static_cast<std::uint32_t>(Width)) return;
    if (static_cast<std::uint32_t>(y) >= static_cast<std::uint32_t>(Height)) return;
    Canvas[static_cast<std::size_t>(y) * Width + x] = colour;
  }

  void Step() {
    for (std::size_t i = 0; i < X.size(); ++i) {
      Write(OldX[i], OldY[i], 0);
      const double x = X[i];
      const double y = Y[i];
      const double z = Z[i];
      X[i] = static_cast<Single>(x * Cos[i] - z * Sin[i]);
      Z[i] = static_cast<Single>(z * Cos[i] + x * Sin[i]);
      const double f = Focal / (y * TiltSin + Z[i] * TiltCos + Distance);
      OldX[i] = static_cast<Long>(RoundHalfEven(X[i] * f + Width / 2));
      OldY[i] = static_cast<Long>(RoundHalfEven((Z[i] * TiltSin - y * TiltCos) * f + Height / 2));
      Write(OldX[i], OldY[i], Tint[i]);
    }
  }
};

void CountStars(benchmark::State& state, std::size_t stars) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(stars));
  state.counters["ns/star"] = benchmark::Counter(
      static_cast<double>(stars) * 1e-9,
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// A body whose stars all lie in front of the eye, within the screen, with no re-seeding, so that
/// the step and the floor do the same work.
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
  Floor floor(stage);
  for (auto _ : state) {
    floor.Step();
    benchmark::ClobberMemory();
  }
  CountStars(state, floor.X.size());
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

/// The quickest of the repetitions: other programs on the machine only ever add to it.
double Quickest(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

void Measured(benchmark::internal::Benchmark* bench) {
  Sizes(bench);
  bench->Repetitions(11)->ReportAggregatesOnly(true)->ComputeStatistics("min", Quickest);
}

BENCHMARK(FloorLoop)->Apply(Measured);
BENCHMARK(StandardStars)->Apply(Measured);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
