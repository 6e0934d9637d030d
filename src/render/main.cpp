// `starfolds-render`: the saver's engine on a surface in memory.
#include <exception>
#include <memory>
#include <string_view>
#include <vector>

#include "numbers/text.h"
#include "platform/console.h"
#include "render/render_run.h"
#include "settings/stored_records.h"
#include "settings/templates.h"
#include "storage/disk_files.h"
#include "storage/sqlite_tree.h"
#include "storage/temporary_file.h"

namespace {

using namespace starfolds;

constexpr int kExitFault = 2;

int Fail(const std::string& message) {
  Complain("starfolds-render", message);
  return kExitFault;
}

int PrintAndEnd(const std::string& text) {
  return Print(text) ? 0 : Fail("cannot write to the standard output");
}

/// Saves the settings as a template.
Fault Save(const std::string& path, Files& disk, SettingsRecords& records) {
  MemoryTree tree;
  SaveSettings(tree, records);
  TemplateFile file(disk);
  file.TemplateFileName = path;
  const Fault fault =
      WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {});
  if (!fault) return std::nullopt;
  return "cannot write " + Quoted(path) + ": " + *fault;
}

Fault WriteAll(const RenderOptions& options, Files& disk, SettingsRecords& records) {
  if (!options.SaveFile.empty()) {
    if (Fault fault = Save(options.SaveFile, disk, records)) return fault;
  }
  return options.WritesFrames() ? Render(options, records) : std::nullopt;
}

int RunWith(const std::vector<std::string_view>& arguments) {
  RenderOptions options;
  if (const Fault fault = ParseOptions(arguments, options)) {
    return Fail(*fault + " (--help lists the options)");
  }
  switch (options.Action) {
    case RenderAction::Help: return PrintAndEnd(HelpOf(RendererGuide()));
    case RenderAction::Version: return PrintAndEnd("starfolds-render " STARFOLDS_VERSION "\n");
    case RenderAction::List:
    case RenderAction::Render: break;
  }
  const auto records = std::make_unique<SettingsRecords>();
  SqliteTree tree(OwnTreeFiles(), [](const UserText& line) { Fail(InOneLine(line)); });
  DiskFiles disk;
  if (const Fault fault = MakeSettings(options, tree, disk, *records)) return Fail(*fault);
  if (options.Action == RenderAction::List) return PrintAndEnd(ListText(*records));
  const Fault fault = WriteAll(options, disk, *records);
  return fault ? Fail(*fault) : 0;
}

}  // namespace

int main(int argc, char** argv) {
  RemoveTemporaryFilesOnSignals();
  try {
    return RunWith(std::vector<std::string_view>(argv + (argc > 0 ? 1 : 0), argv + argc));
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}
