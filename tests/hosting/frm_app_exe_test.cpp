#include "hosting/frm_app_exe.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <string>

#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

class FrmAppExeTest : public HostTest {
 protected:
  int Run() {
    Form.emplace(*State, NextSeed);
    Form->Activate();
    return Events.Pumps;
  }

  QWindow& Window() { return Form->Window(); }

  std::optional<FrmAppExe> Form;
};

TEST_F(FrmAppExeTest, FillsTheScreenWithoutACaption) {
  Events.Plan[2] = [&] {
    EXPECT_EQ(Window().objectName(), "frmAppEXE");
    EXPECT_EQ(Window().title(), "");
    EXPECT_EQ(Window().size(), QGuiApplication::primaryScreen()->size());
    EXPECT_EQ(Window().cursor().shape(), Qt::BlankCursor);
    EXPECT_FALSE(Window().flags().testFlag(Qt::WindowStaysOnTopHint));
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), 2);
  EXPECT_EQ(Seeds, 1);
}

TEST_F(FrmAppExeTest, IsAnOrdinaryWindowIfToldSo) {
  Store("Advanced", "Adv_WinResize", 1);
  Events.Plan[2] = [&] {
    EXPECT_EQ(Window().title(), "TSLN:Starfolds 4.1a");
    EXPECT_LT(Window().width(), QGuiApplication::primaryScreen()->size().width());
    EXPECT_FALSE(Window().flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(Window().cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(State->Screen.SurfaceWidth, Window().width());
    Window().close();
  };
  EXPECT_EQ(Run(), 2);
}

TEST_F(FrmAppExeTest, TakesTheWindowsSizeWithTheNextRunOnly) {
  Store("Advanced", "Adv_WinResize", 1);
  int before = 0;
  Events.Plan[2] = [&] {
    before = Window().width();
    Window().resize(before - 100, 222);
  };
  Events.Plan[10] = [&] {
    EXPECT_EQ(Window().width(), before - 100);
    EXPECT_EQ(State->Screen.SurfaceWidth, before);
    EXPECT_EQ(State->Screen.hDCDraw->Width(), before);
    Press(Window(), Qt::Key_F5);
  };
  Events.Plan[11] = [&] {
    EXPECT_EQ(State->Screen.SurfaceWidth, before - 100);
    EXPECT_EQ(State->Screen.SurfaceHeight, 222);
    EXPECT_EQ(State->Screen.CenterY, 111);
    EXPECT_EQ(State->Screen.hDCDraw->Width(), before - 100);
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), 11);
  EXPECT_EQ(Seeds, 2);
}

/// Without a delay every frame is one pump. A universe is 20 frames of creation, 20 of its one
/// visit and 20 of pull-out then.
class FrmAppExeAnew : public FrmAppExeTest, public testing::WithParamInterface<int> {
 protected:
  FrmAppExeAnew() { Store("Advanced", "Adv_TimeDelay", 0); }
};

TEST_P(FrmAppExeAnew, BeginsAtOnceInEveryStage) {
  const int pump = GetParam();
  Events.Plan[pump] = [&] { Press(Window(), Qt::Key_F5); };
  Events.Plan[pump + 1] = [&] {
    EXPECT_EQ(Seeds, 2);
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), pump + 1);
}

INSTANTIATE_TEST_SUITE_P(Stages, FrmAppExeAnew, testing::Values(1, 10, 20, 21, 35, 45, 59, 60, 61));

TEST_F(FrmAppExeTest, LeavesForGoodAlsoRightAfterF5) {
  Events.Plan[5] = [&] {
    Press(Window(), Qt::Key_F5);
    Press(Window(), Qt::Key_Escape);
  };
  EXPECT_EQ(Run(), 5);
  EXPECT_EQ(Seeds, 1);
}

TEST_F(FrmAppExeTest, GoesOnWhenAskedForSettingsAndSaysOnceThatThereAreNone) {
  testing::internal::CaptureStderr();
  Events.Plan[2] = [&] { Press(Window(), Qt::Key_Space); };
  Events.Plan[3] = [&] { Click(Window()); };
  Events.Plan[30] = [&] { Press(Window(), Qt::Key_Escape); };
  EXPECT_EQ(Run(), 30);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "The settings dialog is not part of this version yet.\n");
}

}  // namespace
}  // namespace starfolds
