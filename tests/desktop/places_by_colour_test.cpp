#include "desktop/places_by_colour.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "desktop/journal_surface.h"
#include "desktop/screen_image.h"

namespace starfolds {
namespace {

using Sorted = std::map<Colour, std::vector<PixelPlace>>;

/// What a sorting by hand gives.
Sorted ByHand(const Surface& surface, std::span<const PixelPlace> places) {
  Sorted sorted;
  for (const auto place : places) {
    sorted[surface.Pixel(ColumnOf(place), RowOf(place))].push_back(place);
  }
  return sorted;
}

Sorted Taken(const PlacesByColour& places) {
  Sorted taken;
  for (const auto& group : places.Groups()) {
    const auto part = places.Places().subspan(group.Begin, group.Count);
    EXPECT_FALSE(taken.contains(group.Ink));
    taken[group.Ink].assign(part.begin(), part.end());
  }
  return taken;
}

/// Colours that differ in few bits, as those of a ramp do, and so meet in a poor table.
TEST(PlacesByColour, FindsEachPlaceOnceUnderItsColour) {
  std::mt19937 random(7);
  PlacesByColour places;
  for (const unsigned colours : {1U, 30U, 1000U}) {
    JournalSurface surface(200, 100);
    for (int i = 0; i < 5000; ++i) {
      surface.SetPixelV(static_cast<Long>(random() % 200), static_cast<Long>(random() % 100),
                        (random() % colours) * 0x000100U);
    }
    ASSERT_TRUE(places.Sort(surface, surface.Journal()));
    EXPECT_EQ(Taken(places), ByHand(surface, surface.Journal())) << colours;
  }
}

TEST(PlacesByColour, GivesUpWhereThereAreTooManyAndGoesOnWithTheNextFrame) {
  JournalSurface surface(2000, 1);
  PlacesByColour places;
  for (Long x = 0; x < 1025; ++x) surface.SetPixelV(x, 0, static_cast<Colour>(x));
  EXPECT_FALSE(places.Sort(surface, surface.Journal()));
  surface.SetPixelV(0, 0, 5);
  EXPECT_TRUE(places.Sort(surface, surface.Journal()));
  EXPECT_EQ(Taken(places), ByHand(surface, surface.Journal()));
}

}  // namespace
}  // namespace starfolds
