#include "hosting/frm_app_exe.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/qimage_of_surface.h"
#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

class FrmAppExeTest : public HostTest {
 protected:
  int Run() {
    const auto dialog = [this](QWindow& owner, bool help) {
      EXPECT_EQ(&owner, &Window());
      ++Dialogs;
      if (help) ++Helps;
      if (InDialog) InDialog();
    };
    Form.emplace(*State, NextSeed, dialog, Shape);
    Form->Activate();
    return Events.Pumps;
  }

  QWindow& Window() { return Form->Window(); }

  std::optional<FrmAppExe> Form;
  AppWindowShape Shape;
  int Dialogs = 0;
  int Helps = 0;
  std::function<void()> InDialog;
};

/// How deep the calls have gone.
std::uintptr_t StackPlace() {
  const volatile char here = 0;
  return reinterpret_cast<std::uintptr_t>(&here);
}

/// Runs within runs would keep their memory, and their part of the stack.
/// Without a delay every frame is one pump. A universe is 20 frames of creation, 20 of its one
/// visit and 20 of pull-out then.
TEST_F(FrmAppExeTest, BeginsAnewAtOnceInEveryStage) {
  Store("Advanced", "Adv_TimeDelay", 0);
  int last = 0;
  int runs = 1;
  std::uintptr_t depth = 0;
  for (const int frame : {1, 10, 20, 21, 35, 45, 59, 60, 61}) {
    last += frame;
    Events.Plan[last] = [&, expected = runs++] {
      EXPECT_EQ(Seeds, expected);
      if (expected == 1) depth = StackPlace();
      // The stages of a run differ by less; nested runs would add up to more.
      EXPECT_NEAR(static_cast<double>(StackPlace()), static_cast<double>(depth), 6000);
      Press(Window(), Qt::Key_F5);
    };
  }
  Events.Plan[last + 1] = [&] {
    EXPECT_EQ(Seeds, runs);
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), last + 1);
}

TEST_F(FrmAppExeTest, ShowsThePropertiesAndBeginsAnewWithThem) {
  InDialog = [&] {
    Store("Universe", "Universe_Stars", 70);
    Store("Advanced", "Adv_WinResize", Dialogs == 1 ? 1 : 0);
    State->Requests.AskNewRun();
  };
  Events.Plan[20] = [&] { Press(Window(), Qt::Key_Space); };
  Events.Plan[21] = [&] {
    EXPECT_EQ(Seeds, 2);
    EXPECT_EQ(State->Universe.Universe_Stars, 70);
    EXPECT_FALSE(State->Requests.NewRun()) << "the fresh run would end at once";
    EXPECT_EQ(Window().title(), "TSLN:Starfolds 4.1a");
    EXPECT_EQ(State->Screen.SurfaceWidth, Window().width());
    Click(Window());
  };
  Events.Plan[22] = [&] {
    EXPECT_EQ(Window().title(), "");
    InDialog = [&] { State->Requests.AskQuit(); };
    Click(Window());
  };
  EXPECT_EQ(Run(), 22);
  EXPECT_EQ(Dialogs, 3);
}

/// A placement as it is stored, in twips of 15 to the pixel.
std::string PlacementText(const QWindow& window) {
  const QPoint place = window.framePosition() * 15;
  const QSize size = window.size() * 15;
  return QString::asprintf("%05d%05d%05d%05d", std::max(place.x(), 0), std::max(place.y(), 0),
                           size.width(), size.height())
      .toStdString();
}

TEST_F(FrmAppExeTest, ComesBackWhereItWas) {
  const auto stored = [&] { return RegistryReadText(Tree, "General", "WindowSize"); };
  Store("Advanced", "Adv_WinResize", 1);
  Store("General", "WindowState", 0);
  RegistryWrite(Tree, "General", "WindowSize", "00300004500900006000");
  Events.Plan[2] = [&] {
    EXPECT_EQ(PlacementText(Window()), "00300004500900006000");
    Press(Window(), Qt::Key_F5);
  };
  QPoint before;
  Events.Plan[3] = [&] {
    Window().setGeometry(-100, 50, 500, 300);
    before = Window().position();
    Press(Window(), Qt::Key_F5);
    EXPECT_EQ(stored(), PlacementText(Window()));
    EXPECT_EQ(stored().substr(0, 5), "00000");
  };
  Events.Plan[4] = [&] {
    EXPECT_EQ(Window().position(), before) << "a fresh run moves no window";
    Window().setGeometry(40, 50, 510, 310);
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), 4);
  EXPECT_EQ(stored(), PlacementText(Window()));
  EXPECT_EQ(stored().substr(10), "0765004650");
}

/// Each shape with `Adv_WinResize` off and on.
TEST_F(FrmAppExeTest, HasTheShapeThatTheStartAsksFor) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  const QSize placed(600, 400);  // as stored below
  const QSize given(300, 200);
  const QSize usual = QSize(1280, 720).scaled(screen * 0.9, Qt::KeepAspectRatio);
  struct Case {
    const char* Name;
    AppWindowShape Shape;
    bool Resizable;
    QSize Expected;
    bool IsStored;
  };
  for (const Case& c : {Case{"framed", {false, {}, true}, false, usual, true},
                        Case{"framed, resizable", {false, {}, true}, true, placed, true},
                        Case{"size", {false, given, true}, false, given, false},
                        Case{"size, resizable", {false, given, true}, true, given, false},
                        Case{"full screen", {true, {}, true}, false, screen, false},
                        Case{"full screen, resizable", {true, {}, true}, true, screen, false}}) {
    SCOPED_TRACE(c.Name);
    Shape = c.Shape;
    Store("Advanced", "Adv_WinResize", c.Resizable ? 1 : 0);
    Store("General", "WindowState", 0);
    RegistryWrite(Tree, "General", "WindowSize", "00300004500900006000");
    Events.Pumps = 0;
    State->Requests = {};
    Events.Plan[2] = [&] {
      EXPECT_EQ(Window().size(), c.Expected);
      EXPECT_EQ(State->Screen.SurfaceWidth, c.Expected.width());
      EXPECT_EQ(Window().title(), c.Expected == screen ? "" : "TSLN:Starfolds 4.1a");
      EXPECT_EQ(Window().cursor().shape(),
                c.Expected == screen ? Qt::BlankCursor : Qt::ArrowCursor);
      Press(Window(), Qt::Key_F5);
      Window().resize(310, 210);
      Press(Window(), Qt::Key_Escape);
    };
    EXPECT_EQ(Run(), 2);
    const std::string stored = RegistryReadText(Tree, "General", "WindowSize").substr(10);
    EXPECT_EQ(stored, c.IsStored ? "0465003150" : "0900006000");
  }
}

TEST_F(FrmAppExeTest, StandsStillWhilePaused) {
  const auto hint = [this] { return Window().findChild<QWindow*>("picHints")->isVisible(); };
  std::vector<Colour> still;
  const auto picture = [this] { return State->Screen.hDCDraw->Pixels(); };
  Events.Plan[1] = [&] { EXPECT_TRUE(hint()) << "the keys"; };
  Events.Plan[30] = [&] {
    still = picture();
    Press(Window(), Qt::Key_P, Qt::ControlModifier);
  };
  Events.Plan[60] = [&] {
    EXPECT_TRUE(hint());
    EXPECT_EQ(picture(), still);
    Press(Window(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(hint());
  };
  Events.Plan[70] = [&] {
    EXPECT_NE(picture(), still);
    Press(Window(), Qt::Key_P, Qt::ControlModifier);
  };
  Events.Plan[80] = [&] { Press(Window(), Qt::Key_F5); };
  Events.Plan[90] = [&] { Press(Window(), Qt::Key_Escape); };
  EXPECT_EQ(Run(), 90);
  EXPECT_EQ(Seeds, 2);
}

TEST_F(FrmAppExeTest, SavesPicturesAndOpensTheHelpWithTheProperties) {
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  QImage shown;
  Events.Plan[30] = [&] {
    shown = ImageOf(*State->Screen.hDCDraw);
    for (int i = 0; i < 2; ++i) Press(Window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Dialogs, 0);
    Press(Window(), Qt::Key_F1);
    Press(Window(), Qt::Key_S);
    Press(Window(), Qt::Key_Escape);
  };
  Run();
  EXPECT_EQ(Dialogs, 2);
  EXPECT_EQ(Helps, 1);
  const QDir folder(home.filePath("Pictures"));
  const QStringList files = folder.entryList(QDir::Files);
  ASSERT_EQ(files.size(), 2);
  EXPECT_EQ(QImage(folder.filePath(files[0])).convertToFormat(shown.format()), shown);
}

}  // namespace
}  // namespace starfolds
