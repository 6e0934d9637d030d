#include "platform/surface.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace starfolds {
namespace {

/// A surface that lets the test look into its journal.
class JournalSurface : public Surface {
 public:
  using Surface::EverythingChanged;
  using Surface::Surface;

  void Present() override {
    Changed.assign(JournalBegin(), JournalEnd());
    ForgetJournal();
  }
  std::vector<PixelPlace> Changed;
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
}

TEST(SurfaceTest, APixelStaysWhereItWasWritten) {
  MemorySurface surface(8, 4);
  surface.SetPixelV(7, 3, 0x112233);
  surface.SetPixelV(0, 0, 0x445566);
  EXPECT_EQ(surface.Pixel(7, 3), 0x112233U);
  EXPECT_EQ(surface.Pixels().front(), 0x445566U);
  EXPECT_EQ(surface.Pixels().back(), 0x112233U);
  surface.Clear();
  EXPECT_EQ(surface.Pixel(7, 3), 0U);
}

TEST(SurfaceTest, TheJournalNamesEveryWrittenPlaceUntilItIsFull) {
  JournalSurface surface(300, 200, 3);
  surface.Present();
  surface.SetPixelV(299, 199, 1);
  surface.SetPixelV(5, 6, 2);
  surface.SetPixelV(300, 6, 3);
  EXPECT_FALSE(surface.EverythingChanged());
  surface.Present();
  EXPECT_EQ(surface.Changed,
            (std::vector<Surface::PixelPlace>{199U << 16U | 299U, 6U << 16U | 5U}));
  for (Long x = 0; x < 4; ++x) surface.SetPixelV(x, 0, 1);
  EXPECT_TRUE(surface.EverythingChanged()) << "a fourth write has no room";
}

TEST(SurfaceTest, ANewSizeAndClearingChangeEverything) {
  JournalSurface surface(4, 4, 100);
  surface.Present();
  surface.Clear();
  EXPECT_TRUE(surface.EverythingChanged());
  surface.Present();
  surface.Resize(6, 2);
  EXPECT_TRUE(surface.EverythingChanged());
  EXPECT_EQ(surface.Width(), 6);
  surface.SetPixelV(5, 1, 9);
  EXPECT_EQ(surface.Pixel(5, 1), 9U);
  surface.Resize(-3, 5);
  EXPECT_EQ(surface.Width(), 0);
  surface.SetPixelV(0, 0, 1);
}

TEST(SurfaceTest, TheHashTellsPicturesApart) {
  std::set<std::uint64_t> hashes;
  MemorySurface surface(3, 3);
  hashes.insert(surface.Hash());
  for (Long place = 0; place < 9; ++place) {
    surface.SetPixelV(place % 3, place / 3, 0x0000FF);
    hashes.insert(surface.Hash());
    surface.SetPixelV(place % 3, place / 3, 0);
  }
  EXPECT_EQ(hashes.size(), 10U);
}

}  // namespace
}  // namespace starfolds
