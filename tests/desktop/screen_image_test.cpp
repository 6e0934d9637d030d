#include "desktop/screen_image.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "desktop/places_by_colour.h"

namespace starfolds {
namespace {

TEST(ScreenImage, IsBlackBesideTheSurfaceAndWritesNothingBesideItself) {
  constexpr int width = 4;
  constexpr int height = 3;
  constexpr int line = width + 1;
  MemorySurface surface(2, 1);
  for (const Integer surfaceWidth : {2, 0}) {
    surface.Resize(surfaceWidth, 1);
    PixelScale scale;
    scale.Columns.Measure(surfaceWidth, 1, width, 1);
    scale.Rows.Measure(1, 1, height, 1);
    std::vector<std::uint32_t> words(line * height, 0xDEADBEEF);
    ScreenImage{words.data(), line * 4, width, height}.PaintAll(scale, surface);
    EXPECT_EQ(std::ranges::count(words, 0xFF000000U), width * height);
    EXPECT_EQ(std::ranges::count(words, 0xDEADBEEFU), height);
  }
}

TEST(PlacesByColour, GiveUpOnTooManyColoursAndGoOnWithTheNextFrame) {
  std::vector<PixelChange> frame;
  for (Colour ink = 0; ink < 1025; ++ink) frame.push_back({ink, ink});
  PlacesByColour places;
  EXPECT_FALSE(places.Sort(frame));
  frame.pop_back();
  ASSERT_TRUE(places.Sort(frame));
  ASSERT_EQ(places.Groups().size(), frame.size());
  for (const auto& group : places.Groups()) {
    EXPECT_EQ(group.Count, 1U);
    EXPECT_EQ(places.Places()[group.Begin], group.Ink);
  }
}

}  // namespace
}  // namespace starfolds
