#include "desktop/dirty_tiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace starfolds {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kTile = DirtyTiles::kTileSize;

void TouchTile(DirtyTiles& tiles, int column, int row) {
  tiles.Touch(column * kTile + kTile - 1, row * kTile);
}

TEST(DirtyTiles, JoinsNeighboursOfARowAndCutsAtTheEdgeOfTheSurface) {
  DirtyTiles tiles;
  tiles.Resize(10 * kTile + 5, 6 * kTile + 3);
  tiles.Touch(0, 0);
  tiles.Touch(kTile, 0);
  tiles.Touch(3 * kTile, 0);
  tiles.Touch(10 * kTile + 4, 6 * kTile + 2);
  EXPECT_THAT(tiles.Take(),
              ElementsAre(TileRect{0, 0, 2 * kTile, kTile}, TileRect{3 * kTile, 0, kTile, kTile},
                          TileRect{10 * kTile, 6 * kTile, 5, 3}));
  EXPECT_THAT(tiles.Take(), IsEmpty());
}

TEST(DirtyTiles, BecomeTheirBoundsAboveSevenTenths) {
  DirtyTiles tiles;
  tiles.Resize(20 * kTile, 20 * kTile);
  // Two rows of ten tiles: with all of the first and four of the second they are just 7/10.
  for (int i = 0; i < 10; ++i) TouchTile(tiles, 3 + i, 5);
  for (int i = 0; i < 4; ++i) TouchTile(tiles, 3 + i, 6);
  EXPECT_EQ(tiles.Take().size(), 2U);

  for (int i = 0; i < 10; ++i) TouchTile(tiles, 3 + i, 5);
  for (int i = 0; i < 5; ++i) TouchTile(tiles, 3 + i, 6);
  EXPECT_THAT(tiles.Take(), ElementsAre(TileRect{3 * kTile, 5 * kTile, 10 * kTile, 2 * kTile}));
}

TEST(DirtyTiles, BecomeTheirBoundsAboveTheHighestCount) {
  DirtyTiles tiles;
  tiles.Resize(32 * kTile, 32 * kTile);
  // Every second tile of a row: 16 rectangles in each of 16 rows are the most that is kept.
  const auto touchRows = [&](int rows) {
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < 32; column += 2) TouchTile(tiles, column, row);
    }
  };
  touchRows(16);
  EXPECT_EQ(tiles.Take().size(), DirtyTiles::kMaxRects);
  touchRows(17);
  EXPECT_THAT(tiles.Take(), ElementsAre(TileRect{0, 0, 31 * kTile, 17 * kTile}));
}

}  // namespace
}  // namespace starfolds
