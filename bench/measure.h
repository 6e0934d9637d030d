// How the benchmarks count and repeat.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace starfolds {

/// Reports the time per star, of `stars` in an iteration.
inline void CountStars(benchmark::State& state, std::size_t stars) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(stars));
  state.counters["ns/star"] = benchmark::Counter(
      static_cast<double>(stars) * 1e-9,
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The quickest of the repetitions: other programs on the machine only ever add to it.
inline double Quickest(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

inline void RepeatAndTakeQuickest(benchmark::internal::Benchmark* bench) {
  bench->Repetitions(11)->ReportAggregatesOnly(true)->ComputeStatistics("min", Quickest);
}

}  // namespace starfolds
