// The cost of saving all settings to the stored tree, and of reading them. A save mostly waits for
// the disk; TMPDIR selects it.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "storage/sqlite_tree.h"
#include "temporary_folder.h"

namespace starfolds {
namespace {

constexpr int kProfiles = 50;
constexpr int kFieldsPerProfile = 70;  // makes 3,500 values: all that the dialogs store
constexpr int kMissingPerProfile =
    30;  // makes 5,000 reads: the readers ask for more than is stored

class Settings {
 public:
  /// One bulk; returns whether it succeeded.
  bool Save(SqliteTree& tree, int value) const {
    TreeBulk bulk = TreeBulk::Change(tree);
    const std::string text = std::to_string(value);
    for (int i = 0; i < kProfiles; ++i) {
      for (int field = 0; field < kFieldsPerProfile; ++field) {
        tree.Write(Hive::CurrentUser, Path(i), Name(field), text);
      }
    }
    return bulk.Commit();
  }

  bool Look(SqliteTree& tree) const {
    TreeBulk bulk = TreeBulk::Look(tree);
    for (int i = 0; i < kProfiles; ++i) {
      for (int field = 0; field < kFieldsPerProfile + kMissingPerProfile; ++field) {
        benchmark::DoNotOptimize(tree.Read(Hive::CurrentUser, Path(i), Name(field)));
      }
    }
    return bulk.Commit();
  }

  std::string File() const { return folder_ / "settings.db"; }

 private:
  static std::string Path(int profile) {
    return "SOFTWARE\\Tessellane\\TSLN_Starfold\\Universe\\Starfold" + std::to_string(profile);
  }
  static std::string Name(int field) { return "Starfold_SomeSetting" + std::to_string(field); }

  TemporaryFolder folder_;
};

void SaveNewTree(benchmark::State& state) {
  const Settings settings;
  SqliteTree tree({settings.File(), {}}, {});
  for (auto _ : state) {
    if (!settings.Save(tree, 1)) state.SkipWithError("not saved");
    state.PauseTiming();
    std::filesystem::remove(settings.File());
    state.ResumeTiming();
  }
}

void SaveOverOldTree(benchmark::State& state) {
  const Settings settings;
  SqliteTree tree({settings.File(), {}}, {});
  int value = 1000;
  for (auto _ : state) {
    if (!settings.Save(tree, ++value)) state.SkipWithError("not saved");
  }
}

void LookAtTree(benchmark::State& state) {
  const Settings settings;
  SqliteTree tree({settings.File(), {}}, {});
  settings.Save(tree, 1);
  for (auto _ : state) {
    if (!settings.Look(tree)) state.SkipWithError("not read");
  }
}

void WriteOneValue(benchmark::State& state) {
  const Settings settings;
  SqliteTree tree({settings.File(), {}}, {});
  settings.Save(tree, 1);
  int value = 0;
  for (auto _ : state) {
    if (!tree.Write(Hive::CurrentUser, "General", "x", std::to_string(++value))) {
      state.SkipWithError("not written");
    }
  }
}

void ReadOneValue(benchmark::State& state) {
  const Settings settings;
  SqliteTree tree({settings.File(), {}}, {});
  settings.Save(tree, 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(tree.Read(Hive::CurrentUser, "General", "x"));
  }
}

/// A save waits for the disk, so real time is measured.
void Measured(benchmark::internal::Benchmark* bench) {
  bench->UseRealTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(SaveNewTree)->Apply(Measured);
BENCHMARK(SaveOverOldTree)->Apply(Measured);
BENCHMARK(LookAtTree)->Apply(Measured);
BENCHMARK(WriteOneValue)->Apply(Measured);
BENCHMARK(ReadOneValue)->Apply(Measured);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
