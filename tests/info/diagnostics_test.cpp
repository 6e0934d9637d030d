#include "info/diagnostics.h"

#include <gtest/gtest.h>

#include "settings/factory.h"
#include "settings/registry.h"
#include "settings/stored_records.h"

namespace starfolds {
namespace {

TEST(RegistryAccess, AValueOfAnEarlierTestDoesNotHideATreeThatIsReadOnlyNow) {
  MemoryTree tree;
  EXPECT_EQ(TestRegistryAccess(tree), "OK");
  EXPECT_EQ(RegistryReadText(tree, sections::kGeneral, "RegistryReadWriteTest"), "OK");
  tree.Writable = false;
  EXPECT_EQ(TestRegistryAccess(tree), "No Access");
}

/// Whether black reaches the edge of the surface from its middle, in steps to the four sides.
bool Leaks(const Surface& surface) {
  std::vector<bool> seen(surface.Pixels().size());
  std::vector<std::pair<int, int>> open{{surface.Width() / 2, surface.Height() / 2}};
  while (!open.empty()) {
    const auto [x, y] = open.back();
    open.pop_back();
    if (x < 0 || y < 0 || x >= surface.Width() || y >= surface.Height()) return true;
    const auto place = static_cast<std::size_t>(y) * static_cast<std::size_t>(surface.Width()) +
                       static_cast<std::size_t>(x);
    if (seen[place] || surface.Pixel(x, y) != 0) continue;
    seen[place] = true;
    open.insert(open.end(), {{x + 1, y}, {x - 1, y}, {x, y + 1}, {x, y - 1}});
  }
  return false;
}

TEST(TestCircle, IsClosedAndLiesWithinItsBox) {
  for (const auto& [width, height] : {std::pair<Integer, Integer>{150, 150}, {301, 97}, {8, 8}}) {
    MemorySurface surface(width, height);
    PlotTestCircle(surface);
    EXPECT_FALSE(Leaks(surface)) << width << " x " << height;
  }
  MemorySurface none(0, 0);
  PlotTestCircle(none);
}

TEST(Grouped, PartsTheThousands) {
  EXPECT_EQ(Grouped(0), "0");
  EXPECT_EQ(Grouped(999), "999");
  EXPECT_EQ(Grouped(1000), "1,000");
  EXPECT_EQ(Grouped(ColoursOf(24)), "16,777,216");
  EXPECT_EQ(Grouped(ColoursOf(32)), "4,294,967,296");
}

TEST(MeasureFrames, RunsTheStoredUniverseForItsTime) {
  SettingsRecords records;
  LoadFactorySettings(records, FactorySet::Starfolds4x, 1);
  records.Universe.Universe_Stars = 777;
  MemoryTree tree;
  SaveSettings(tree, records);
  MemoryDesktop desktop;
  const FrameCost cost = MeasureFrames(tree, desktop, 320, 200, 0.05);
  EXPECT_EQ(cost.Stars, 777);
  EXPECT_EQ(cost.Width, 320);
  EXPECT_GE(cost.Frames, 1);  // on a machine that has much else to do
  EXPECT_GE(cost.Seconds, 0.05);
  EXPECT_GT(cost.ProcessorSeconds, 0);
}

}  // namespace
}  // namespace starfolds
