// Counting and repetition of the benchmarks.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace starfolds {

/// Reports the time per star, for `stars` stars in an iteration.
inline void CountStars(benchmark::State& state, std::size_t stars) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(stars));
  state.counters["ns/star"] = benchmark::Counter(
      static_cast<double>(stars) * 1e-9,
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The minimum over the repetitions: other programs on the machine only add to the time.
inline double Quickest(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

inline void RepeatAndTakeQuickest(benchmark::internal::Benchmark* bench) {
  bench->Repetitions(11)->ReportAggregatesOnly(true)->ComputeStatistics("min", Quickest);
}

}  // namespace starfolds
