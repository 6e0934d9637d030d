// The message above a window whose pixels never rest, read back from the screen.
#include "desktop/message_window.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <random>

#include "desktop/pumped_test.h"
#include "desktop/window_surface.h"

namespace starfolds {
namespace {

class MessageWindowTest : public PumpedTest {
 protected:
  void SetUp() override {
    if (QGuiApplication::platformName() == "offscreen") GTEST_SKIP() << "nothing shows there";
    Target.Window().setFlags(Qt::Window | Qt::FramelessWindowHint);
    Target.Window().setGeometry(20, 10, 500, 200);
    Target.Window().show();
    ASSERT_TRUE(PumpUntil([&] { return Target.IsExposed(); }));
    Settle(100);
    Target.TakeWindowSize();
  }

  /// Fills the whole surface with noise.
  void ShowNoise() {
    for (Long y = 0; y < Target.Height(); ++y) {
      for (Long x = 0; x < Target.Width(); ++x) Target.SetPixelV(x, y, Random() | 0x010101U);
    }
    Target.Present();
  }

  QRect Box() { return Target.Window().findChild<QWindow*>("picMessage")->geometry(); }

  QImage Grab(QRect part) {
    return QGuiApplication::primaryScreen()
        ->grabWindow(Target.Window().winId(), part.x(), part.y(), part.width(), part.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }

  /// Pixels that are neither black nor of the ink's hue, and the inked ones.
  static std::pair<int, int> StrangeAndInked(const QImage& box) {
    int strange = 0;
    int inked = 0;
    for (int y = 0; y < box.height(); ++y) {
      for (int x = 0; x < box.width(); ++x) {
        const QRgb pixel = box.pixel(x, y);
        if (qRed(pixel) + qBlue(pixel) > 16) ++strange;
        if (qGreen(pixel) > 200) ++inked;
      }
    }
    return {strange, inked};
  }

  static constexpr Colour kGreen = 0x00FF00;

  std::mt19937 Random{3};
  WindowEvents Unheard;
  WindowSurface Target{Unheard};
  MessageWindow Message{Target.Window()};
};

TEST_F(MessageWindowTest, IsNeverDrawnOver) {
  Message.Print("Back at ten", {"Arial", 20, kGreen});
  ASSERT_TRUE(PumpUntil([&] { return StrangeAndInked(Grab(Box())).second > 100; }));
  for (int i = 0; i < 20; ++i) {
    ShowNoise();
    Events.WaitForEvents(5);
    const auto [strange, inked] = StrangeAndInked(Grab(Box()));
    ASSERT_EQ(strange, 0);
    ASSERT_GT(inked, 100);
  }
  EXPECT_GT(StrangeAndInked(Grab(Box().translated(0, Box().height()))).first, 1000);
}

TEST_F(MessageWindowTest, DriftsFromItsPlaceAndBack) {
  const MessageStyle style{"Arial", 20, kGreen};
  Message.Print("Back at ten", style);
  const QPoint rest = Box().topLeft();
  Message.SetDrift(true);
  Message.Print("Back at ten", style);
  EXPECT_EQ(Box().topLeft(), rest);
  EXPECT_TRUE(PumpUntil([&] { return Box().topLeft() == rest + QPoint(2, 2); }));
  Message.Print("Back at ten", style);
  EXPECT_NE(Box().topLeft(), rest) << "another universe does not bring it back";
  Message.SetDrift(false);
  Message.Print("Back at ten", style);
  EXPECT_EQ(Box().topLeft(), rest);
}

}  // namespace
}  // namespace starfolds
