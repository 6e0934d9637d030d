#include "hosting/frm_saver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

using testing::ElementsAre;

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
    EXPECT_EQ(Window().title(), "TSLN:Starfolds 4.1a");
    EXPECT_EQ(Window().size(), screen);
    EXPECT_TRUE(Window().flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(Window().flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(Window().cursor().shape(), Qt::BlankCursor);
    EXPECT_FALSE(Window().findChild<QWindow*>("picMessage")->isVisible()) << "it is empty";
    EXPECT_EQ(State->Screen.SurfaceWidth, screen.width());
    Press(Window(), Qt::Key_A);
  };
  Run();
  EXPECT_EQ(Seeds, 1);
  Form.reset();
  EXPECT_EQ(State->Screen.hDCDraw, nullptr);
}

TEST_F(FrmSaverTest, EndsInTheFrameOfAButtonOrMoves) {
  Events.Plan[5] = [&] { Click(Window()); };
  EXPECT_EQ(Run(), 5);
  EXPECT_TRUE(State->Requests.StopRun());
  Events.Pumps = 0;
  Events.Plan.clear();
  for (int pump = 1; pump <= 8; ++pump) {
    Events.Plan[pump] = [this, pump] { Move(Window(), pump); };
  }
  EXPECT_EQ(Run(), 5) << "with the fourth move from the place of the start";
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

TEST_F(FrmSaverTest, AResizedScreenStartsARunWithTheStoredSettings) {
  Events.Plan[3] = [&] {
    EXPECT_EQ(State->Universe.Universe_Stars, 50);
    Store("Universe", "Universe_Stars", 70);
    Window().setWindowState(Qt::WindowNoState);
    Window().resize(300, 200);
  };
  Events.Plan[5] = [&] {
    EXPECT_EQ(Seeds, 2);
    EXPECT_EQ(State->Screen.SurfaceWidth, 300);
    EXPECT_EQ(State->Screen.hDCDraw->Height(), 200);
    EXPECT_EQ(State->Universe.Universe_Stars, 70);
    Window().resize(400, 200);
    Press(Window(), Qt::Key_A);
  };
  EXPECT_EQ(Run(), 5);
}

TEST_F(FrmSaverTest, OnItsOwnScreenOnlyHasTheCaption) {
  Form.emplace(*State, NextSeed, ScreenPlace{0, false});
  Events.Plan[2] = [&] {
    EXPECT_EQ(Window().title(), "");
    EXPECT_TRUE(Window().flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    State->Requests.AskStop();
  };
  Form->Load();
}

/// On Windows 9x, with a password.
class FrmSaverPassword : public FrmSaverTest {
 protected:
  FrmSaverPassword() {
    Platform.Id = kWindows9x;
    Tree.Write(Hive::CurrentUser, "Control Panel\\Desktop", "ScreenSaveUsePassword", "1");
  }
};

TEST_F(FrmSaverPassword, GoesOnWithTheSameRunIfItIsRefused) {
  Platform.Verdict = 0;
  Events.Plan[20] = [&] { Press(Window(), Qt::Key_A); };
  Events.Plan[50] = [&] { State->Requests.AskStop(); };
  EXPECT_EQ(Run(), 50);
  EXPECT_EQ(Seeds, 1);
  Form.reset();
  EXPECT_THAT(Platform.Log, ElementsAre("behind -1", "verify", "not running"));
}

TEST_F(FrmSaverPassword, EndsTheSaverIfItIsRightOrCannotBeAskedFor) {
  for (const std::optional<Long> verdict : {std::optional<Long>(1), std::optional<Long>()}) {
    Platform.Verdict = verdict;
    Events.Pumps = 0;
    Events.Plan[5] = [&] { Click(Window()); };
    EXPECT_EQ(Run(), 5);
  }
}

/// The dialog runs window events while it is shown.
class SlowDialog : public ScriptedPlatform {
 public:
  std::function<void()> Meanwhile;

  std::optional<Long> VerifyScreenSavePwd() override {
    Meanwhile();
    return ScriptedPlatform::VerifyScreenSavePwd();
  }
};

TEST_F(FrmSaverPassword, IsAskedForOnceAtATime) {
  SlowDialog dialog;
  dialog.Id = kWindows9x;
  dialog.Verdict = 0;
  dialog.Meanwhile = [&] { Press(Window(), Qt::Key_B); };
  State->Platform = &dialog;
  Events.Plan[3] = [&] { Press(Window(), Qt::Key_A); };
  Events.Plan[4] = [&] {
    EXPECT_THAT(dialog.Log, ElementsAre("behind -1", "verify"));
    dialog.Meanwhile = [&] { State->Requests.AskQuit(); };
    Press(Window(), Qt::Key_A);
  };
  EXPECT_EQ(Run(), 4) << "the system's request to end was lost";
  Form.reset();
}

}  // namespace
}  // namespace starfolds
