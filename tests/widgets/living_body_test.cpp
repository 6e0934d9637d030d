#include "widgets/living_body.h"

#include <gtest/gtest.h>

#include "settings/factory.h"
#include "toolkit.h"

namespace starfolds {
namespace {

constexpr int kLimitMs = 30'000;

class LivingBodyTest : public testing::Test {
 protected:
  LivingBodyTest() {
    LoadFactoryProfile(Body, FactorySet::Starfolds4x, 0);
    Window.resize(600, 200);
    Box.resize(200, 150);
    Activate(Window);
  }

  bool Draws(int frames) {
    return QTest::qWaitFor([&] { return Living.Frames() >= frames; }, kLimitMs);
  }

  /// The picture after the next change is shown.
  QImage Next() {
    const QImage before = Shown();
    Living.Changed();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown() != before; }, kLimitMs));
    return Shown();
  }
  QImage Shown() { return Box.grab().toImage(); }

  static QRect LitPart(const QImage& picture) {
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if ((picture.pixel(x, y) & RGB_MASK) != 0) part |= QRect(x, y, 1, 1);
      }
    }
    return part;
  }

  StarfoldProfile Body;
  bool Exists = true;
  QWidget Window;
  PictureBox Box{&Window};
  LivingBody Living{Box, [this]() -> std::unique_ptr<ShownBody> {
                      if (!Exists) return nullptr;
                      return std::make_unique<ShownBody>(ShownBody::Of({&Body, 1}));
                    }};
};

TEST_F(LivingBodyTest, MovesWhileItCanBeSeenAndIsWanted) {
  Living.Changed();
  ASSERT_TRUE(Draws(3));
  Box.hide();
  const int hidden = Living.Frames();
  QTest::qWait(200);
  EXPECT_EQ(Living.Frames(), hidden);
  Box.show();
  ASSERT_TRUE(Draws(hidden + 2));

  Living.SetMoving(false);
  const QImage still = Shown();
  QTest::qWait(200);
  EXPECT_EQ(Shown(), still);
  Body.Starfold_Radius /= 2;
  const QImage smaller = Next();
  EXPECT_EQ(Living.Frames(), 1) << "a change is shown all the same";
  EXPECT_LT(LitPart(smaller).width(), LitPart(still).width());

  Living.Suspend();
  Body.Starfold_Radius *= 2;
  Living.Changed();
  QTest::qWait(200);
  EXPECT_EQ(Shown(), smaller) << "a run draws on the box";
  Living.Resume();
  Exists = false;
  EXPECT_TRUE(LitPart(Next()).isEmpty());
}

TEST_F(LivingBodyTest, FollowsItsBoxAndFillsItIfItIsFitted) {
  Living.SetMoving(false);
  Body.Starfold_Radius = 30;
  EXPECT_LT(LitPart(Next()).width(), 60) << "small and far away, as in a run";
  Living.SetFitted(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return LitPart(Shown()).width() > 120; }, kLimitMs));
  Box.resize(500, 150);
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(LitPart(Shown()).center().x() - 250) < 30; },
                              kLimitMs));
}

}  // namespace
}  // namespace starfolds
