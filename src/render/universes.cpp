#include "render/universes.h"

#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "numbers/text.h"
#include "platform/console.h"
#include "render/output_file.h"
#include "render/render_run.h"
#include "render/standard_streams.h"
#include "settings/stored_records.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

namespace fs = std::filesystem;

/// Paths of the command line are UTF-8, which is not the code page of all systems.
fs::path PathOf(const std::string& text) { return {std::u8string(text.begin(), text.end())}; }

std::string TextOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string SixDigits(std::uint64_t number) {
  char text[30];
  std::snprintf(text, sizeof text, "%06" PRIu64, number);
  return text;
}

/// A stored tree that computes a number from all that is written to it (FNV-1a).
class HashingTree : public MemoryTree {
 public:
  std::uint64_t Hash = 14695981039346656037ULL;

  bool Write(Hive hive, std::string_view path, std::string_view name,
             std::string_view text) override {
    for (const std::string_view part : {path, name, text}) Add(part);
    return MemoryTree::Write(hive, path, name, text);
  }

  void Add(std::string_view text) {
    for (const char c : text) AddByte(static_cast<unsigned char>(c));
    AddByte(0);
  }

 private:
  void AddByte(unsigned byte) { Hash = (Hash ^ byte) * 1099511628211ULL; }
};

/// A line that is the same for two calls if they make the same pictures of a universe.
std::string Recipe(const RenderOptions& options, SettingsRecords& records) {
  HashingTree tree;
  SaveSettings(tree, records);
  const FramePlan& plan = options.Plan;
  char hash[20];
  std::snprintf(hash, sizeof hash, "%016" PRIx64, tree.Hash);
  return std::to_string(options.Width) + "x" + std::to_string(options.Height) + " scale " +
         std::to_string(options.Scale) + " frames " + std::to_string(plan.First) + " to " +
         std::to_string(plan.Frames) + " every " + std::to_string(plan.Every) + " settings " +
         hash + "\n";
}

/// "tour.mp4" becomes "tour-000007.mp4".
std::string Numbered(const std::string& file, std::uint64_t universe) {
  if (file.empty()) return file;
  const fs::path path = PathOf(file);
  fs::path name = path.stem();
  name += "-" + SixDigits(universe);
  name += path.extension();
  return TextOf(path.parent_path() / name);
}

/// The options for one universe.
RenderOptions ForUniverse(RenderOptions options, std::uint64_t universe) {
  options.Universes = UniverseRange{universe, universe};
  options.Seed = universe;
  if (!options.PngFolder.empty()) {
    options.PngFolder = TextOf(PathOf(options.PngFolder) / ("universe-" + SixDigits(universe)));
  }
  for (std::string* file : {&options.VideoFile, &options.Y4mFile, &options.SheetFile}) {
    *file = Numbered(*file, universe);
  }
  return options;
}

/// The files and the folder of one universe.
std::vector<fs::path> OutputsOf(const RenderOptions& options) {
  std::vector<fs::path> outputs;
  for (const std::string& output :
       {options.PngFolder, options.VideoFile, options.Y4mFile, options.SheetFile}) {
    if (!output.empty()) outputs.push_back(PathOf(output));
  }
  return outputs;
}

/// The file that says by which recipe an output was completed.
fs::path MarkOf(const fs::path& output) {
  fs::path name = ".";
  name += output.filename();
  name += ".done";
  return output.parent_path() / name;
}

bool IsComplete(const fs::path& output, const std::string& recipe) {
  std::error_code error;
  if (!fs::exists(output, error)) return false;
  std::ifstream mark(MarkOf(output), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(mark), {}) == recipe;
}

/// The hashes go to the standard output, so they are printed each time.
bool IsComplete(const RenderOptions& options, const std::string& recipe) {
  if (options.Hash) return false;
  for (const fs::path& output : OutputsOf(options)) {
    if (!IsComplete(output, recipe)) return false;
  }
  return true;
}

Fault MarkComplete(const fs::path& output, const std::string& recipe) {
  OutputFile mark;
  if (Fault fault = mark.Open(TextOf(MarkOf(output)))) return fault;
  if (Fault fault =
          mark.Write({reinterpret_cast<const std::uint8_t*>(recipe.data()), recipe.size()})) {
    return fault;
  }
  return mark.Commit();
}

/// Renders one universe. Its marks are removed first: of a folder that is written again, some
/// pictures are new and some are old until it is complete.
Fault RenderUniverse(const RenderOptions& options, SettingsRecords& records,
                     const std::string& recipe, const std::string& title) {
  const std::vector<fs::path> outputs = OutputsOf(options);
  for (const fs::path& output : outputs) {
    std::error_code ignored;
    fs::remove(MarkOf(output), ignored);
  }
  if (Fault fault = RenderOneRun(options, records, title)) return fault;
  for (const fs::path& output : outputs) {
    if (Fault fault = MarkComplete(output, recipe)) return fault;
  }
  return std::nullopt;
}

/// One line for each universe, for the logs of jobs.
void Report(std::uint64_t universe, const char* what) {
  Complain("starfolds-render", "universe " + std::to_string(universe) + " " + what);
}

}  // namespace

Fault RenderUniverses(const RenderOptions& options, SettingsRecords& records) {
  RenderOptions all = options;
  all.Plan.Frames = std::min<FrameNumber>(all.Plan.Frames, FramesOfUniverse(records.Universe));
  if (all.Plan.Count() == 0) {
    return "--first " + std::to_string(all.Plan.First) + " lies beyond the last frame, " +
           std::to_string(all.Plan.Frames);
  }
  if (Fault fault = CheckSheet(all)) return fault;
  const std::string recipe = Recipe(all, records);
  const UniverseRange& range = *options.Universes;
  for (std::uint64_t universe = range.First; universe <= range.Last; ++universe) {
    const RenderOptions one = ForUniverse(all, universe);
    if (IsComplete(one, recipe)) {
      Report(universe, "was complete");
      continue;
    }
    const std::string title = "universe " + std::to_string(universe) + " of " +
                              std::to_string(range.First) + ".." + std::to_string(range.Last) + " ";
    if (Fault fault = RenderUniverse(one, records, recipe, title)) {
      return "universe " + std::to_string(universe) + ": " + *fault;
    }
    Report(universe, "is complete");
  }
  return std::nullopt;
}

}  // namespace starfolds
