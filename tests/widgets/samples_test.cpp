#include "widgets/samples.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <set>
#include <vector>

#include "settings/factory.h"
#include "settings/surprise.h"
#include "widgets/dialog_test.h"
#include "widgets/picture_box.h"

namespace starfolds {
namespace {

constexpr SampleSize kSize{{160, 120}, 1};

class SamplesTest : public testing::Test {
 protected:
  SamplesTest() { LoadFactorySet(*Records, FactorySet::Starfolds4x); }

  ProfileArray& Profiles() { return Records->Profiles; }

  std::unique_ptr<SettingsRecords> Records = std::make_unique<SettingsRecords>();
};

QRect LitPart(const QImage& picture) {
  QRect part;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if ((picture.pixel(x, y) & RGB_MASK) != 0) part |= QRect(x, y, 1, 1);
    }
  }
  return part;
}

int LitPixels(const QImage& picture) {
  int lit = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if ((picture.pixel(x, y) & RGB_MASK) != 0) ++lit;
    }
  }
  return lit;
}

TEST_F(SamplesTest, EveryBodyFillsItsPictureAndLooksLikeNoOther) {
  std::vector<QImage> pictures;
  for (int i = 0; i < kCycleSequentially + 1; ++i) {
    const QImage picture = ProfileSample(Profiles(), i, kSize);
    const QRect lit = LitPart(picture);
    EXPECT_TRUE(lit.width() > 120 || lit.height() > 90) << i;
    for (const QImage& other : pictures) EXPECT_NE(picture, other) << i;
    EXPECT_EQ(picture, ProfileSample(Profiles(), i, kSize)) << i << " is another one each time";
    pictures.push_back(picture);
  }
}

/// A random body that shows nothing would be no surprise.
TEST_F(SamplesTest, SurprisingBodiesOfEveryStyleCanBeSeen) {
  constexpr int seeds = 200;
  for (Integer style = 0; style < kStyleCount; ++style) {
    StarfoldProfile like;
    like.UniFoldName = "Mine";
    like.Starfold_FoldStyle = style;
    std::set<int> widths;
    for (int seed = 0; seed < seeds; ++seed) {
      Rnd random(static_cast<std::uint64_t>(seed));
      StarfoldProfile body = SurprisingBody(like, random);
      EXPECT_EQ(body.UniFoldName, "Mine");
      EXPECT_EQ(body.Starfold_FoldStyle, style);
      const QImage picture = SampleOfBody(body, {{64, 48}, 1}, SampleView::OfRun);
      EXPECT_GT(LitPixels(picture), 40) << "seed " << seed << " of style " << style;
      widths.insert(LitPart(picture).width());
    }
    EXPECT_GT(widths.size(), 4U) << "of style " << style << " all look alike";
  }
}

TEST_F(SamplesTest, ABodyOutOfRangeIsDrawn) {
  StarfoldProfile& profile = Profiles()[0];
  for (const Integer word : {std::numeric_limits<Integer>::min(), Integer{-1}, Integer{0},
                             std::numeric_limits<Integer>::max()}) {
    for (const auto& field : ProfileFields()) SetFieldNumber(profile, field, word);
    for (Integer style = 0; style < kStyleCount; ++style) {
      profile.Starfold_FoldStyle = style;
      EXPECT_EQ(ProfileSample(Profiles(), 0, {{40, 30}, 1}).width(), 40);
    }
  }
}

TEST_F(SamplesTest, TheWheelTurnsClockwiseFromRedAndItsStripFromTheLeft) {
  StarfoldProfile profile;
  const QImage ring = PixHueSample(profile, {{100, 100}, 1});
  EXPECT_EQ(ring.pixel(50, 12), qRgb(254, 0, 0));
  EXPECT_GT(qGreen(ring.pixel(84, 69)), 240);  // 120 degrees
  EXPECT_GT(qBlue(ring.pixel(15, 69)), 240);   // 240 degrees
  EXPECT_EQ(qAlpha(ring.pixel(50, 50)), 0);
  EXPECT_EQ(qAlpha(ring.pixel(1, 1)), 0);
  const QImage strip = PixHueSample(profile, {{360, 20}, 1});
  EXPECT_EQ(strip.pixel(5, 10), qRgb(254, 21, 0));
  EXPECT_GT(qGreen(strip.pixel(120, 10)), 250);
  profile.Starfold_HueBase = 100;
  EXPECT_EQ(PixHueSample(profile, {{360, 20}, 1}).pixel(200, 10), qRgb(255, 255, 255));
}

}  // namespace
}  // namespace starfolds
