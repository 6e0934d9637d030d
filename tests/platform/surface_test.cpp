#include "platform/surface.h"

#include <gtest/gtest.h>

#include <limits>

namespace starfolds {
namespace {

/// A surface that gives the test its changes.
class JournalSurface : public Surface {
 public:
  using Surface::EverythingChanged;
  using Surface::Surface;

  void Present() override {
    const auto changes = TakeChanges();
    Changed.assign(changes.begin(), changes.end());
  }
  std::vector<PixelChange> Changed;
};

TEST(SurfaceTest, PlacesOffTheSurfaceAreHarmless) {
  MemorySurface surface(8, 4);
  constexpr Long low = std::numeric_limits<Long>::min();
  constexpr Long high = std::numeric_limits<Long>::max();
  for (const Long x : {low, Long{-1}, Long{8}, high}) {
    for (const Long y : {low, Long{-1}, Long{0}, Long{4}, high}) {
      surface.SetPixelV(x, y, 0xFFFFFF);
      surface.SetPixelV(y, x, 0xFFFFFF);
    }
  }
  EXPECT_EQ(surface.Pixels(), std::vector<Colour>(32, 0));
  surface.SetPixelV(0, 1, 0xFFFFFF);
  EXPECT_EQ(surface.Pixel(8, 0), 0U) << "not the first one of the next row";
}

TEST(SurfaceTest, ChangesAreThePixelsThatDifferFromTheLastFrame) {
  constexpr Colour white = 0xFFFFFF;
  JournalSurface surface(300, 200, 4);
  surface.Present();
  surface.SetPixelV(299, 199, 1);
  surface.SetPixelV(5, 6, 2);
  surface.SetPixelV(300, 6, 3);
  surface.Present();
  const PixelPlace corner = PlaceOfPixel(299, 199);
  const PixelPlace inside = PlaceOfPixel(5, 6);
  EXPECT_EQ(surface.Changed, (std::vector<PixelChange>{{corner, 1}, {inside, 2}}));

  surface.SetPixelV(5, 6, 0);  // erased, and drawn again by another star
  surface.SetPixelV(299, 199, 0);
  surface.SetPixelV(299, 199, 1);
  surface.SetPixelV(5, 6, white);
  EXPECT_EQ(surface.Pixel(5, 6), white) << "not the flag of the journal";
  EXPECT_EQ(surface.Pixels()[6 * 300 + 5], white);
  surface.Present();
  EXPECT_EQ(surface.Changed, (std::vector<PixelChange>{{inside, white}}));
  surface.Present();
  EXPECT_TRUE(surface.Changed.empty());
}

TEST(SurfaceTest, AFullJournalChangesEverythingUntilTheNextFrame) {
  JournalSurface surface(300, 200, 4);
  surface.Present();
  for (Long x = 0; x < 4; ++x) surface.SetPixelV(x, 0, 1);
  EXPECT_FALSE(surface.EverythingChanged());
  surface.SetPixelV(4, 0, 1);
  EXPECT_TRUE(surface.EverythingChanged());
  surface.Present();
  EXPECT_FALSE(surface.EverythingChanged());
  for (Long x = 0; x < 4; ++x) surface.SetPixelV(x, 0, 2);
  surface.Present();
  EXPECT_EQ(surface.Changed.size(), 4U) << "a pixel that was in the full journal is in this one";
}

TEST(SurfaceTest, ANewSizeAndClearingChangeEverything) {
  JournalSurface surface(4, 4, 100);
  surface.Present();
  surface.Clear();
  EXPECT_TRUE(surface.EverythingChanged());
  surface.Present();
  surface.SetPixelV(0, 0, 1);
  surface.Resize(6, 2);
  EXPECT_EQ(surface.Pixel(0, 0), 0U);
  EXPECT_TRUE(surface.EverythingChanged());
  EXPECT_EQ(surface.Width(), 6);
  surface.SetPixelV(5, 1, 9);
  EXPECT_EQ(surface.Pixel(5, 1), 9U);
  surface.Resize(-3, 5);
  EXPECT_EQ(surface.Width(), 0);
  surface.SetPixelV(0, 0, 1);
}

}  // namespace
}  // namespace starfolds
