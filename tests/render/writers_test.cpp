// The writers of files, fed with surfaces that the test has drawn.
#include <gtest/gtest.h>

#include "render/contact_sheet.h"
#include "render/png_picture.h"
#include "render/test_files.h"
#include "render/y4m_video.h"

namespace starfolds {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x00FF00;
constexpr Colour kBlue = 0xFF0000;

/// Each pixel differs from its neighbours in all channels, so a row or a channel that is swapped
/// or shifted shows.
void DrawPattern(MemorySurface& surface) {
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) {
      surface.SetPixelV(x, y, static_cast<Colour>((x * 37 + y) << 16 | (y * 53) << 8 | (200 - x)));
    }
  }
}

TEST(WritePng, ReadsBackAsTheSurface) {
  const TestFolder folder;
  for (const int scale : {1, 3}) {
    MemorySurface surface(6, 4);
    DrawPattern(surface);
    ASSERT_EQ(WritePng(folder.Path("a.png"), PictureOf(surface), scale), std::nullopt);
    const ReadPicture read = ReadPng(folder.Path("a.png"));
    ASSERT_EQ(read.Width, 6 * scale);
    ASSERT_EQ(read.Height, 4 * scale);
    for (int y = 0; y < read.Height; ++y) {
      for (int x = 0; x < read.Width; ++x) {
        EXPECT_EQ(read.At(x, y), surface.Pixel(x / scale, y / scale)) << x << ' ' << y;
      }
    }
  }
}

TEST(Y4mVideo, IsAHeaderAndThreePlanesAFrame) {
  const TestFolder folder;
  constexpr int scale = 2;
  Y4mVideo video(folder.Path("v.y4m"), scale);
  MemorySurface surface(3, 1);
  surface.SetPixelV(2, 0, kRed);
  ASSERT_EQ(video.Take(1, surface), std::nullopt);
  surface.SetPixelV(0, 0, kBlue);
  ASSERT_EQ(video.Take(2, surface), std::nullopt);
  ASSERT_EQ(video.Finish(), std::nullopt);

  const auto plane = [](int left, int middle, int right) {
    std::string row;
    for (const int value : {left, left, middle, middle, right, right}) {
      row += static_cast<char>(value);
    }
    return row + row;
  };
  EXPECT_EQ(FileText(folder.Path("v.y4m")),
            "YUV4MPEG2 W6 H2 F25:1 Ip A1:1 C444\n"
            "FRAME\n" +
                plane(16, 16, 63) + plane(128, 128, 102) + plane(128, 128, 240) + "FRAME\n" +
                plane(32, 16, 63) + plane(240, 128, 102) + plane(118, 128, 240));
}

TEST(ContactSheet, ASingleStarStaysVisibleWhereverItIs) {
  for (const int size : {320, 321, 719, 1283, 4001}) {
    for (const int place : {0, size / 2, size - 1}) {
      MemorySurface surface(static_cast<Integer>(size), static_cast<Integer>(size));
      surface.SetPixelV(place, size - 1 - place, 0x123456);
      const Tile tile = MakeTile(PictureOf(surface));
      EXPECT_LE(tile.Width, 320);
      EXPECT_LE(tile.Height, 240);
      EXPECT_EQ(std::count(tile.Pixels.begin(), tile.Pixels.end(), 0x123456U), 1)
          << size << " at " << place;
    }
  }
}

TEST(ContactSheet, ShowsTheFramesInRowsOfAGrid) {
  const TestFolder folder;
  ContactSheet sheet(folder.Path("s.png"));
  MemorySurface surface(40, 30);
  for (const Colour colour : {kRed, kGreen, kBlue}) {
    surface.Clear();
    surface.SetPixelV(5, 6, colour);
    ASSERT_EQ(sheet.Take(1000, surface), std::nullopt);
  }
  ASSERT_EQ(sheet.Finish(), std::nullopt);

  const ReadPicture read = ReadPng(folder.Path("s.png"));
  std::vector<std::pair<int, int>> stars;
  for (const Colour colour : {kRed, kGreen, kBlue}) {
    const auto found = std::find(read.Pixels.begin(), read.Pixels.end(), colour);
    ASSERT_NE(found, read.Pixels.end());
    const auto index = static_cast<int>(found - read.Pixels.begin());
    stars.emplace_back(index % read.Width, index / read.Width);
  }
  EXPECT_EQ(stars[0].second, stars[1].second);
  EXPECT_GE(stars[1].first, stars[0].first + 40);
  EXPECT_EQ(stars[2].first, stars[0].first);
  EXPECT_GE(stars[2].second, stars[0].second + 30);
}

}  // namespace
}  // namespace starfolds
