// The cost of loading and saving settings: templates on disk, and the stored tree. The result
// depends on the disk; TMPDIR selects it.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "full_settings.h"
#include "storage/disk_files.h"
#include "storage/sqlite_tree.h"
#include "temporary_folder.h"

namespace starfolds {
namespace {

void LoadTemplateFrom(benchmark::State& state, const std::string& path, bool readable) {
  DiskFiles disk;
  const auto records = std::make_unique<SettingsRecords>();
  for (auto _ : state) {
    TemplateFile file(disk);
    const bool read = !ReadTemplate(file, path, *records);
    if (read != readable) state.SkipWithError("not as expected");
  }
}

void LoadFullTemplate(benchmark::State& state) {
  const TemporaryFolder folder;
  DiskFiles disk;
  SettingsRecords records = FullSettings(1);
  SaveAs(disk, folder / "full.sfd", records);
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(folder / "full.sfd"));
  LoadTemplateFrom(state, folder / "full.sfd", true);
}

void SaveFullTemplate(benchmark::State& state) {
  const TemporaryFolder folder;
  DiskFiles disk;
  SettingsRecords records = FullSettings(1);
  for (auto _ : state) {
    if (SaveAs(disk, folder / "full.sfd", records)) state.SkipWithError("not saved");
  }
}

/// The largest file that is accepted, with slow contents: one section full of "=" and brackets.
void LoadHostileTemplate(benchmark::State& state) {
  const TemporaryFolder folder;
  const char filler = state.range(0) == 0 ? '=' : '[';
  std::string text = "[Universe]\r\n[UniFold0]\r\n";
  text.resize(kLargestTemplate, filler);
  std::ofstream(folder / "hostile.sfd") << text;
  LoadTemplateFrom(state, folder / "hostile.sfd", true);
}

void RefuseHugeTemplate(benchmark::State& state) {
  const TemporaryFolder folder;
  std::ofstream(folder / "huge.sfd") << "[Universe]\r\n" << std::string(100'000'000, 'x');
  LoadTemplateFrom(state, folder / "huge.sfd", false);
}

/// Different settings each time, so that every value changes.
void Accept(benchmark::State& state, SettingsRecords (*make)(unsigned)) {
  const TemporaryFolder folder;
  SqliteTree tree({folder / "settings.db", {}}, {});
  SettingsRecords sets[] = {make(1), make(2)};
  int turn = 0;
  for (auto _ : state) {
    if (!SaveSettings(tree, sets[turn ^= 1])) state.SkipWithError("not saved");
  }
  MemoryTree counted;
  SaveSettings(counted, sets[0]);
  state.counters["values"] = static_cast<double>(counted.Size());
}

void ReadForARun(benchmark::State& state) {
  const TemporaryFolder folder;
  SqliteTree tree({folder / "settings.db", {}}, {});
  SettingsRecords records = FullSettings(1);
  SaveSettings(tree, records);
  for (auto _ : state) benchmark::DoNotOptimize(LoadSettings(tree));
}

BENCHMARK(LoadFullTemplate)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveFullTemplate)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadHostileTemplate)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(RefuseHugeTemplate)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Accept, plain, PlainSettings)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Accept, full, FullSettings)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadForARun)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace starfolds

BENCHMARK_MAIN();
