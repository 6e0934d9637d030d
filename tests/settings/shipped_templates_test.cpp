// The templates that the project brings along, as a user's program reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
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

/// Whether nobody has designed this body: all but its weight and its name is as in a new record.
bool IsBare(const StarfoldProfile& profile) {
  static const StarfoldProfile fresh;
  return std::all_of(ProfileFields().begin(), ProfileFields().end(), [&](const auto& field) {
    return field.Name.starts_with("_") || FieldText(profile, field) == FieldText(fresh, field);
  });
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

TEST(ShippedTemplates, ShowDesignedBodiesAtAWatchablePace) {
  for (const auto& path : ShippedTemplates()) {
    const SettingsRecords records = Read(BytesOf(path));
    const VisitList visits = ParseVisitList(records.Universe.Universe_GS_Idx);
    std::set<int> inUse(visits.Bodies.begin(), visits.Bodies.begin() + visits.Count);
    for (int i = 0; i < kProfileCount; ++i) {
      if (records.Profiles[i].UniFoldPct > 0) inUse.insert(i);
    }
    for (int i = 0; i < kCompositeCount; ++i) {
      const CompositeProfile& composite = records.Composites[i];
      if (composite.CompFoldPct == 0 && !inUse.contains(kFirstComposite + i)) continue;
      inUse.insert(composite.CompFold_Type.begin(),
                   composite.CompFold_Type.begin() + composite.MemberCount());
    }
    EXPECT_FALSE(inUse.empty()) << path.filename();
    for (const int body : inUse) {
      if (body >= kFirstComposite) continue;
      EXPECT_FALSE(IsBare(records.Profiles[body])) << path.filename() << ", body " << body;
    }
    EXPECT_GE(records.Advanced.Adv_TimeDelay, 25) << path.filename();
    EXPECT_LE(records.Advanced.Adv_TimeDelay, 50) << path.filename();
    EXPECT_EQ(records.Advanced.LockMessage, "") << path.filename();
  }
}

}  // namespace
}  // namespace starfolds
