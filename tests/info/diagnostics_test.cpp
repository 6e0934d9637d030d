#include "info/diagnostics.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "settings/registry.h"

namespace starfolds {
namespace {

TEST(RegistryAccess, AValueOfAnEarlierTestDoesNotHideATreeThatIsReadOnlyNow) {
  MemoryTree tree;
  EXPECT_EQ(TestRegistryAccess(tree), "OK");
  EXPECT_EQ(RegistryReadText(tree, sections::kGeneral, "RegistryReadWriteTest"), "OK");
  tree.Writable = false;
  EXPECT_EQ(TestRegistryAccess(tree), "No Access");
}

TEST(TestCircle, LiesWithinItsBox) {
  for (const auto& [width, height] : {std::pair<Integer, Integer>{150, 150}, {301, 97}, {8, 8}}) {
    MemorySurface surface(width, height);
    PlotTestCircle(surface);
    const auto lit = surface.Pixels().size() - std::ranges::count(surface.Pixels(), 0U);
    EXPECT_GE(lit, 2U * std::min(width, height)) << "all round";
    for (Long x = 0; x < width; ++x) EXPECT_EQ(surface.Pixel(x, 0), 0U);
    for (Long y = 0; y < height; ++y) EXPECT_EQ(surface.Pixel(0, y), 0U);
  }
  MemorySurface none(0, 0);
  PlotTestCircle(none);
}

TEST(Grouped, SeparatesThousands) {
  EXPECT_EQ(Grouped(0), "0");
  EXPECT_EQ(Grouped(999), "999");
  EXPECT_EQ(Grouped(1000), "1,000");
  EXPECT_EQ(Grouped(ColoursOf(24)), "16,777,216");
  EXPECT_EQ(Grouped(ColoursOf(32)), "4,294,967,296");
}

}  // namespace
}  // namespace starfolds
