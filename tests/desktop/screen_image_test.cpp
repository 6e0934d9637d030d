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

TEST(PlacesByColour, HasEachPixelOnceUnderItsColourWithAnyNumberOfColours) {
  PlacesByColour places;
  for (const Colour colours : {10'000U, 4096U, 3U, 1U}) {
    std::vector<PixelChange> frame;
    for (PixelPlace place = 0; place < 20'000; ++place) frame.push_back({place, place % colours});
    places.Sort(frame);
    std::vector<PixelChange> grouped;
    for (const auto& group : places.Groups()) {
      for (const PixelPlace place : places.Places().subspan(group.Begin, group.Count)) {
        grouped.push_back({place, group.Ink});
      }
    }
    std::ranges::sort(grouped, {}, &PixelChange::Place);
    EXPECT_EQ(grouped, frame) << colours << " colours";
    if (colours <= 4096) {
      EXPECT_EQ(places.Groups().size(), colours);
    }
  }
}

}  // namespace
}  // namespace starfolds
