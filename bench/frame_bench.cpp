// One frame of a tour, alone or with others that are computed ahead, after other programs have used
// the caches (cold), beside frames without a pause (warm).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>
#include <memory>
#include <vector>

#include "desktop/huge_pages.h"
#include "scenes/scenes.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

constexpr int kFirstFrame = 1500;  // within a visit
constexpr std::size_t kJournal = std::size_t{128} * 1024;

/// Larger than the last-level caches of desktop processors.
constexpr std::size_t kOtherPrograms = std::size_t{96} * 1024 * 1024;

/// Processor time of this thread in seconds.
double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// A canvas with the journal and the memory of a window's, which is shown to nobody.
class JournalSurface : public Surface {
 public:
  JournalSurface(Integer width, Integer height) : Surface(width, height, kJournal, HugePages()) {}

  std::function<void()> OnFrame;
  std::size_t Writes = 0;
  std::size_t Changes = 0;

  void Present() override {
    Writes += PendingWrites();
    Changes += TakeChanges().size();
    OnFrame();
  }
};

/// Argument 0: stars. 1: height of a 16:9 screen. 2: after how many frames others use the caches:
/// each frame, or each time that some frames were computed ahead; 0: never. One iteration is one
/// frame.
void TourFrame(benchmark::State& state) {
  const auto height = static_cast<Integer>(state.range(1));
  JournalSurface canvas(static_cast<Integer>(height * 16 / 9), height);
  scenes::Stage stage;
  stage.Settings().Universe.Universe_Stars = static_cast<Long>(state.range(0));
  SetupDisplay(*stage.Process, canvas, 5);
  stage.Read();
  std::vector<std::uint64_t> others(kOtherPrograms / sizeof(std::uint64_t));
  int frame = 0;
  double begin = 0;
  auto iteration = state.begin();
  const auto end = state.end();
  canvas.OnFrame = [&] {
    if (++frame <= kFirstFrame) return;
    if (frame > kFirstFrame + 1) {
      state.SetIterationTime(ProcessorSeconds() - begin);
      ++iteration;
    } else {
      canvas.Writes = canvas.Changes = 0;
    }
    if (!(iteration != end)) return stage.Process->Requests.AskStop();
    if (state.range(2) != 0 && frame % state.range(2) == 0) {
      for (std::uint64_t& word : others) ++word;
    }
    begin = ProcessorSeconds();
  };
  UniverseRun(*stage.Process);
  const auto perFrame = [](std::size_t count) {
    return benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
  };
  state.counters["writes"] = perFrame(canvas.Writes);
  state.counters["changes"] = perFrame(canvas.Changes);
}

BENCHMARK(TourFrame)
    ->ArgNames({"stars", "height", "cold"})
    ->ArgsProduct({{5000, 30000}, {1080, 2160}, {0, 1, 8}})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(250);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
