// The templates that the project brings along, as a user's program reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "settings/fields.h"
#include "settings/stored_records.h"
#include "settings/templates.h"

namespace starfolds {
namespace {

std::vector<std::filesystem::path> ShippedTemplates() {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(STARFOLDS_TEMPLATES)) {
    if (entry.path().extension() == ".sfd") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

SettingsRecords Read(const std::string& bytes) {
  MemoryFiles disk;
  disk.Contents["in.sfd"] = bytes;
  TemplateFile file(disk);
  SettingsRecords records;
  EXPECT_EQ(ReadTemplate(file, "in.sfd", records), std::nullopt);
  return records;
}

/// The bytes of a template with these settings, all of them held to their ranges.
std::string Written(SettingsRecords records) {
  MemoryTree tree;
  SaveAdvancedToRegistry(tree, records.Advanced);
  ClampUniverse(records.Universe);
  MemoryFiles disk;
  TemplateFile file(disk);
  file.TemplateFileName = "out.sfd";
  EXPECT_EQ(WriteTemplate(file, tree, records.Universe, records.Profiles, records.Composites, {}),
            std::nullopt);
  return disk.Contents["out.sfd"];
}

/// A value beyond its range would be written anew as the limit, and a file that another version or
/// another program has written would differ somewhere.
TEST(ShippedTemplates, ComeBackByteByByte) {
  EXPECT_GE(ShippedTemplates().size(), 8U);
  for (const auto& path : ShippedTemplates()) {
    const std::string bytes = BytesOf(path);
    EXPECT_TRUE(Written(Read(bytes)) == bytes) << path.filename();
  }
}

}  // namespace
}  // namespace starfolds
