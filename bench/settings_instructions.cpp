// Loads and saves settings for callgrind to count (bench/instructions.sh).
#include <cstdio>
#include <memory>
#include <string_view>

#include "full_settings.h"

using namespace starfolds;

/// The functions that callgrind counts, with C linkage so that it finds their names.
extern "C" void CountedLoad(TemplateFile& file, SettingsRecords& records) {
  ReadTemplate(file, "t.sfd", records);
}
extern "C" void CountedSave(Files& disk, SettingsRecords& records) {
  SaveAs(disk, "t.sfd", records);
}

/// Prints the number of values of the settings.
int main(int argc, char** argv) {
  if (argc < 3) return 2;
  SettingsRecords records =
      std::string_view(argv[2]) == "full" ? FullSettings(1) : PlainSettings(1);
  MemoryFiles disk;
  if (std::string_view(argv[1]) == "save") {
    auto* volatile counted = &CountedSave;  // prevents inlining
    counted(disk, records);
  } else {
    SaveAs(disk, "t.sfd", records);
    TemplateFile file(disk);
    auto* volatile counted = &CountedLoad;
    counted(file, records);
  }
  MemoryTree tree;
  SaveSettings(tree, records);
  std::printf("%zu\n", tree.Size());
}
