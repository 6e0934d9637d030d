// The guest's own side, frame by frame. Needs an X server.
#include "hosting/guest_window.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <cstdlib>

#include "desktop/scripted_host.h"
#include "hosting/frm_preview.h"
#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

class GuestTest : public HostTest {
 protected:
  GuestTest() { Store("Advanced", "Adv_TimeDelay", 0); }

  Long HostId() const { return static_cast<Long>(Host.Id()); }

  /// The pumps that it took.
  int RunPreview() {
    State->Mode = RunMode::Preview;
    State->PreviewParent = HostId();
    FrmPreview(*State, NextSeed).Load();
    return Events.Pumps;
  }
  int RunSaver() {
    State->Mode = RunMode::ScreenSaver;
    GuestWindow(*State, NextSeed, HostId()).Run(false);
    return Events.Pumps;
  }

  void ResizeAndAwait(std::uint32_t width, std::uint32_t height) {
    Host.Resize(width, height);
    AwaitStop();
  }
  /// What the host has done reaches the guest through the server, some time later.
  void AwaitStop() {
    const QDeadlineTimer patience(10000);
    while (!State->Requests.StopRun() && !patience.hasExpired()) QCoreApplication::processEvents();
    EXPECT_TRUE(State->Requests.StopRun());
  }

  /// One for all tests: another one's windows would have the numbers of former ones, whose last
  /// events the toolkit may still have to read.
  static const ServerConnection& Server() {
    static const ServerConnection server = ConnectToServer();
    return server;
  }

  HostWindow Host{Server(), 320, 200};
};

TEST_F(GuestTest, APreviewIsAboveTheHostsOwnChildrenAndASaverBelow) {
  Desktop.Windows = {HostId()};
  const xcb_window_t own = Host.AddChild();
  Events.Plan[3] = [&] {
    EXPECT_EQ(Host.Children().front(), own);
    EXPECT_EQ(Host.Children().size(), 2U);
    State->Requests.AskStop();
  };
  RunPreview();
  Events.Plan[6] = [&] {
    EXPECT_EQ(Host.Children().back(), own);
    EXPECT_EQ(Host.Children().size(), 2U);
    State->Requests.AskStop();
  };
  EXPECT_EQ(RunSaver(), 6);
}

TEST_F(GuestTest, OnlyASaverShowsTheMessage) {
  RegistryWrite(Tree, "Advanced", "LockMessage", "Back at noon");
  Desktop.Windows = {HostId()};
  const auto message = [] {
    for (QWindow* const window : QGuiApplication::allWindows()) {
      if (window->objectName() == "picMessage" && window->isVisible()) return window;
    }
    return static_cast<QWindow*>(nullptr);
  };
  const auto isCentred = [&](int width) {
    return std::abs(2 * message()->x() + message()->width() - width) <= 1;
  };
  Events.Plan[5] = [&] {
    EXPECT_EQ(message(), nullptr);
    State->Requests.AskStop();
  };
  RunPreview();
  Events.Plan[10] = [&] {
    ASSERT_NE(message(), nullptr);
    EXPECT_TRUE(isCentred(320));
    ResizeAndAwait(500, 300);
  };
  Events.Plan[11] = [&] {
    const QDeadlineTimer patience(10000);
    while (!isCentred(500) && !patience.hasExpired()) QCoreApplication::processEvents();
    EXPECT_TRUE(isCentred(500));
    State->Requests.AskStop();
  };
  EXPECT_EQ(RunSaver(), 11);
}

}  // namespace
}  // namespace starfolds
