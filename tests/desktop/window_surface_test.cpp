// What a window shows, read back from the screen. The same tests run without a screen, and on X
// servers of several depths and scale factors.
#include "desktop/window_surface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QWheelEvent>
#include <random>
#include <string>
#include <vector>

#include "desktop/pumped_test.h"

namespace starfolds {
namespace {

using testing::ElementsAre;

class NotedEvents : public WindowEvents {
 public:
  std::vector<std::string> Notes;

  void KeyDown(int key, Qt::KeyboardModifiers) override {
    Notes.push_back("key " + std::to_string(key));
  }
  void Scroll() override { Notes.push_back("scroll"); }
  void CloseRequested() override { Notes.push_back("close"); }
  void Exposed() override { ++Exposures; }
  void Destroyed() override { Notes.push_back("destroyed"); }

  int Exposures = 0;
};

class WindowSurfaceTest : public PumpedTest {
 protected:
  WindowSurfaceTest() { Target.Window().setFlags(Qt::Window | Qt::FramelessWindowHint); }

  void ShowAt(int width, int height) {
    Target.Window().setGeometry(20, 10, width, height);
    Target.Window().show();
    ASSERT_TRUE(PumpUntil([&] { return Target.IsExposed(); }));
    Settle();
    Target.TakeWindowSize();
  }

  void Scatter(int count) {
    for (int i = 0; i < count; ++i) {
      Target.SetPixelV(static_cast<Long>(Random() % Target.Width()),
                       static_cast<Long>(Random() % Target.Height()), Random() & 0xFFFFFFU);
    }
  }

  /// Whether a screen of this depth shows such a word so: with fewer colours low bits are lost.
  static bool LooksLike(QRgb shown, std::uint32_t expected, int depth) {
    const int lost = depth == 16 ? 8 : 0;
    return std::abs(qRed(shown) - qRed(expected)) <= lost &&
           std::abs(qGreen(shown) - qGreen(expected)) <= lost &&
           std::abs(qBlue(shown) - qBlue(expected)) <= lost;
  }

  QImage Grab() {
    const QWindow& window = Target.Window();
    return QGuiApplication::primaryScreen()
        ->grabWindow(window.winId(), 0, 0, window.width(), window.height())
        .toImage();
  }

  /// The first physical pixel that does not show the surface pixel under its centre, or black
  /// beyond the surface. "" where all do.
  std::string Difference() {
    const QImage shown = Grab();
    const int depth = QGuiApplication::primaryScreen()->depth();
    const double factor = Target.Window().devicePixelRatio();
    const int width = static_cast<int>(Target.Window().width() * factor);
    const int height = static_cast<int>(Target.Window().height() * factor);
    if (shown.width() < width || shown.height() < height) return "the picture is too small";
    const QPoint origin((Target.Window().width() - Target.Width()) / 2,
                        (Target.Window().height() - Target.Height()) / 2);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const auto column = static_cast<Long>((x + 0.5) / factor) - origin.x();
        const auto row = static_cast<Long>((y + 0.5) / factor) - origin.y();
        const std::uint32_t expected = ScreenWord(Target.Pixel(column, row));
        if (!LooksLike(shown.pixel(x, y), expected, depth)) {
          return "at " + std::to_string(x) + ", " + std::to_string(y) + ": " +
                 QString::number(shown.pixel(x, y), 16).toStdString() + " instead of " +
                 QString::number(expected, 16).toStdString();
        }
      }
    }
    return "";
  }

  /// The window system may take a moment.
  void ExpectShown() {
    PumpUntil([&] { return Difference().empty(); });
    EXPECT_EQ(Difference(), "");
  }

  std::mt19937 Random{11};
  NotedEvents Heard;
  WindowSurface Target{Heard};
};

TEST_F(WindowSurfaceTest, ShowsTheCanvasFrameByFrame) {
  ShowAt(400, 300);
  for (const int count : {500, 1, 3, 40, 0, 2000}) {
    Scatter(count);
    Target.Present();
    ExpectShown();
  }
  Target.Clear();
  Scatter(5);
  Target.Present();
  ExpectShown();
  Scatter(200'000);  // more than the journal holds
  Target.Present();
  ExpectShown();
  // Many pixels of few colours go to the screen by another road than few pixels of many.
  for (int i = 0; i < 700; ++i) {
    const Colour colour = i % 2 == 0 ? 0 : 0x102030U * (Random() % 8);
    Target.SetPixelV(static_cast<Long>(Random() % 400), static_cast<Long>(Random() % 300), colour);
  }
  Target.Present();
  ExpectShown();
  // These need the window's image, which lacks the former ones.
  Scatter(500);
  Target.Present();
  ExpectShown();
}

TEST_F(WindowSurfaceTest, KeepsItsSizeInTheMiddleOfAResizedWindow) {
  ShowAt(300, 200);
  Scatter(1000);
  Target.Present();
  ExpectShown();
  for (const auto& [width, height] : {std::pair(360, 260), {180, 130}, {330, 90}}) {
    Target.Window().resize(width, height);
    Settle();
    for (int frame = 0; frame < 2; ++frame) {
      Scatter(20);
      Target.Present();
      ExpectShown();
    }
  }
  Target.TakeWindowSize();
  EXPECT_EQ(Target.Height(), 90);
}

TEST_F(WindowSurfaceTest, RestsWhileOthersCoverItAndComesBackWhole) {
  if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "nobody tells of covers";
  ShowAt(200, 150);
  Scatter(300);
  Target.Present();
  EXPECT_TRUE(Target.IsSeen());
  {
    WindowSurface above(Heard);
    above.Window().setFlags(Qt::Window | Qt::FramelessWindowHint);
    above.Window().setGeometry(10, 5, 250, 200);
    above.Window().show();
    above.Window().raise();
    ASSERT_TRUE(PumpUntil([&] { return !Target.IsSeen(); }));
    Scatter(50);
    Target.Present();
    above.Window().setGeometry(10, 5, 100, 200);
    ASSERT_TRUE(PumpUntil([&] { return Target.IsSeen(); }));
  }
  Settle();
  Scatter(5);
  Target.Present();
  ExpectShown();
}

TEST_F(WindowSurfaceTest, KeptFramesAreShownOneAfterTheOther) {
  ShowAt(300, 200);
  if (QGuiApplication::primaryScreen()->depth() == 16) GTEST_SKIP() << "keeps no frames";
  Scatter(100);
  Target.Present();
  const std::vector<Colour> colours{0xFF, 0xFF00, 0xFF0000};
  // Few changes are drawn as points, many as tiles, and then as points until none is kept.
  for (const auto& counts : {std::vector{5, 5, 5}, {900, 900, 900}, {5, 900, 5}, {5, 5, 900}}) {
    for (std::size_t i = 0; i < colours.size(); ++i) {
      Scatter(counts[i]);
      Target.SetPixelV(150, 100, colours[i]);
      ASSERT_TRUE(Target.KeepFrame());
    }
    for (const Colour colour : colours) {
      Target.Present();
      const double factor = Target.Window().devicePixelRatio();
      const QPoint place(static_cast<int>(150.5 * factor), static_cast<int>(100.5 * factor));
      EXPECT_TRUE(
          PumpUntil([&] { return LooksLike(Grab().pixel(place), ScreenWord(colour), 24); }));
    }
    ExpectShown();
  }
  Scatter(10);
  ASSERT_TRUE(Target.KeepFrame());
  Target.Clear();
  Scatter(10);
  EXPECT_FALSE(Target.KeepFrame());
  Target.Present();
  EXPECT_EQ(Target.KeptFrameCount(), 0U) << "they would be drawn over the new picture";
  ExpectShown();
}

class WindowInputTest : public WindowSurfaceTest {
 protected:
  void Send(QEvent&& event) { QCoreApplication::sendEvent(&Target.Window(), &event); }
};

TEST_F(WindowInputTest, IgnoresRepeatsModifiersAndMediaKeys) {
  for (const int key : {Qt::Key_Shift, Qt::Key_NumLock, Qt::Key_VolumeUp}) {
    Send(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  }
  Send(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a", true));
  // A repeat that the toolkit did not recognise: key 38 goes up and down at the same time.
  for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, 38, 'a', 0);
    event.setTimestamp(1000);
    Send(std::move(event));
  }
  EXPECT_THAT(Heard.Notes, ElementsAre());
  QKeyEvent later(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, 38, 'a', 0);
  later.setTimestamp(1001);
  Send(std::move(later));
  EXPECT_THAT(Heard.Notes, ElementsAre("key " + std::to_string(Qt::Key_A)));
}

TEST_F(WindowInputTest, ReportsScrollingButNotMomentum) {
  const auto scroll = [this](QPoint pixels, QPoint angle, Qt::ScrollPhase phase) {
    Send(QWheelEvent({5, 5}, {5, 5}, pixels, angle, Qt::NoButton, Qt::NoModifier, phase, false));
    return Heard.Notes.size();
  };
  EXPECT_EQ(scroll({}, {0, 120}, Qt::NoScrollPhase), 1U);
  EXPECT_EQ(scroll({}, {}, Qt::ScrollBegin), 1U);
  EXPECT_EQ(scroll({0, 3}, {}, Qt::ScrollUpdate), 2U);
  EXPECT_EQ(scroll({0, 3}, {0, 24}, Qt::ScrollMomentum), 2U);
}

TEST_F(WindowInputTest, CannotCloseTheWindowByItself) {
  ShowAt(200, 150);
  Heard.Notes.clear();
  Target.Window().close();
  Settle();
  EXPECT_THAT(Heard.Notes, ElementsAre("close"));
  EXPECT_TRUE(Target.Window().isVisible());
}

}  // namespace
}  // namespace starfolds
