#include "hosting/frm_saver.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

class FrmSaverTest : public HostTest {
 protected:
  FrmSaverTest() { State->Mode = RunMode::ScreenSaver; }

  /// Runs the saver and gives the number of the pump that it ended in.
  int Run() {
    Form.emplace(*State, NextSeed);
    Form->Load();
    return Events.Pumps;
  }

  QWindow& Window() { return Form->Window(); }

  std::optional<FrmSaver> Form;
};

TEST_F(FrmSaverTest, CoversTheScreenUnderItsName) {
  Events.Plan[3] = [&] {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    EXPECT_EQ(Window().objectName(), "frmSaver");
    EXPECT_EQ(Window().title(), "TSLN:Starfolds 4.1a");
    EXPECT_EQ(Window().size(), screen);
    EXPECT_TRUE(Window().flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(Window().flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(Window().cursor().shape(), Qt::BlankCursor);
    EXPECT_EQ(State->Screen.SurfaceWidth, screen.width());
    EXPECT_EQ(State->Screen.SurfaceHeight, screen.height());
    EXPECT_EQ(State->Screen.FrameDelayMs, AdvancedSettings().Adv_TimeDelay);
    Press(Window(), Qt::Key_A);
  };
  Run();
  EXPECT_EQ(Seeds, 1);
}

TEST_F(FrmSaverTest, EndsInTheFrameOfAKeyOrAButton) {
  Events.Plan[5] = [&] { Press(Window(), Qt::Key_Shift); };
  EXPECT_EQ(Run(), 5);
  EXPECT_TRUE(State->StopRun);
  Events.Plan = {{12, [&] { Click(Window()); }}};
  EXPECT_EQ(Run(), 12);
}

TEST_F(FrmSaverTest, EndsOnTheFourthMoveFromThePlaceOfTheStart) {
  for (int pump = 1; pump <= 8; ++pump) {
    Events.Plan[pump] = [this, pump] { Move(Window(), pump); };
  }
  EXPECT_EQ(Run(), 5);
}

TEST_F(FrmSaverTest, LeavesThePointerAloneIfToldSo) {
  Store("Advanced", "Adv_MouseMove", 1);
  for (int pump = 1; pump <= 30; ++pump) {
    Events.Plan[pump] = [this, pump] { Move(Window(), pump); };
  }
  Events.Plan[31] = [&] { Click(Window()); };
  EXPECT_EQ(Run(), 31);
}

TEST_F(FrmSaverTest, IsABackgroundThatADoubleClickEnds) {
  Store("Advanced", "Adv_DispBackG", 1);
  Events.Plan[2] = [&] {
    EXPECT_TRUE(Window().flags().testFlag(Qt::WindowStaysOnBottomHint));
    EXPECT_EQ(Window().cursor().shape(), Qt::BlankCursor);
    Press(Window(), Qt::Key_Escape);
    Click(Window());
    for (int x = 0; x < 10; ++x) Move(Window(), x);
  };
  Events.Plan[9] = [&] { Click(Window(), QEvent::MouseButtonDblClick); };
  EXPECT_EQ(Run(), 9);
}

TEST_F(FrmSaverTest, EndsWhenItsWindowIsClosedOrGone) {
  Events.Plan[4] = [&] { Window().close(); };
  EXPECT_EQ(Run(), 4);
  Events.Plan = {{10, [&] { Window().destroy(); }}};
  EXPECT_EQ(Run(), 10);
}

TEST_F(FrmSaverTest, ReadsTheSettingsForEveryRun) {
  Events.Plan[3] = [&] {
    EXPECT_EQ(State->Universe.Universe_Stars, 50);
    Store("Universe", "Universe_Stars", 70);
    State->NewRun = true;
  };
  Events.Plan[6] = [&] {
    EXPECT_EQ(State->Universe.Universe_Stars, 70);
    State->StopRun = true;
  };
  EXPECT_EQ(Run(), 6);
  EXPECT_EQ(Seeds, 1);
}

TEST_F(FrmSaverTest, LeavesNoSurfaceBehind) {
  Events.Plan[2] = [&] {
    EXPECT_NE(State->Screen.hDCDraw, nullptr);
    State->StopRun = true;
  };
  Run();
  Form.reset();
  EXPECT_EQ(State->Screen.hDCDraw, nullptr);
}

}  // namespace
}  // namespace starfolds
