// The program as a guest in the windows of a scripted host: the contract of today's saver hosts
// (arguments, environment, window, signals), and the preview. Needs an X server.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <QDeadlineTimer>
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "desktop/scripted_host.h"

namespace starfolds {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Texts = std::vector<std::string>;

/// For what must happen in the end, on a machine that has much else to do.
constexpr int kPatienceMs = 30'000;

bool WaitUntil(const std::function<bool()>& done) {
  for (const QDeadlineTimer end(kPatienceMs); !end.hasExpired();) {
    if (done()) return true;
    std::this_thread::sleep_for(1ms);
  }
  return done();
}

std::string FromEnvironment(const char* name) { return qgetenv(name).toStdString(); }

class Program : public QProcess {
 public:
  Program(const Texts& arguments, const Texts& environment) {
    const auto list = [](const Texts& texts) {
      QStringList strings;
      for (const std::string& text : texts) strings.append(QString::fromStdString(text));
      return strings;
    };
    setEnvironment(list(environment));
    start(STARFOLDS_PROGRAM, list(arguments));
    waitForStarted();
  }
  ~Program() override {
    kill();
    waitForFinished();
  }

  bool Runs() { return !waitForFinished(0) && state() == Running; }

  /// nullopt if it is killed by a signal or does not end.
  std::optional<int> ExitCode() {
    if (state() != NotRunning && !waitForFinished(kPatienceMs)) return {};
    return exitStatus() == NormalExit ? std::optional(exitCode()) : std::nullopt;
  }

  std::string Words() { return readAllStandardError().toStdString(); }

  /// Whether SIGTERM no longer kills it.
  bool CatchesSignals() const {
    std::ifstream status("/proc/" + std::to_string(processId()) + "/status");
    for (std::string line; std::getline(status, line);) {
      if (!line.starts_with("SigCgt:")) continue;
      return (std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
    }
    return false;
  }
};

class Host : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(xcb_connection_has_error(Server.get()), 0); }

  /// All that a host which strips the environment leaves of it.
  static Texts Stripped(Texts more = {}) {
    Texts environment{"PATH=/usr/bin:/bin",
                      "HOME=" + FromEnvironment("XDG_CONFIG_HOME"),
                      "LANG=C.UTF-8",
                      "DISPLAY=" + FromEnvironment("DISPLAY"),
                      "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere",
                      "LSAN_OPTIONS=" + FromEnvironment("LSAN_OPTIONS")};
    environment.insert(environment.end(), more.begin(), more.end());
    return environment;
  }

  static std::string Names(const HostWindow& window) {
    return "XSCREENSAVER_WINDOW=" + window.HexNumber();
  }

  /// From 0 to `longest` milliseconds.
  Clock::duration RandomTime(int longest) {
    return std::chrono::microseconds(std::uniform_int_distribution(0, longest * 1000)(Random));
  }

  ServerConnection Server = ConnectToServer();
  std::mt19937 Random{std::random_device()()};
};

/// A guest draws in its host's window, follows its size, and goes with it.
class GuestRole : public Host, public testing::WithParamInterface<const char*> {
 protected:
  /// The arguments of the role, with the window's number in them.
  static Texts Arguments(const HostWindow& window) {
    Texts arguments{GetParam()};
    if (arguments.front() != "--root") arguments.push_back(window.Number());
    return arguments;
  }
};

TEST_P(GuestRole, DrawsInTheHostsWindowWhateverItsSize) {
  HostWindow window(Server, 200, 150);
  Program program(Arguments(window), Stripped({Names(window)}));
  EXPECT_TRUE(WaitUntil([&] { return window.Lit(200, 150) > 100; }));
  for (const auto& [width, height] : {std::pair{640, 480}, {1, 1}, {300, 200}}) {
    window.Resize(width, height);
  }
  EXPECT_TRUE(WaitUntil([&] { return window.Lit(300, 200) > 100; }));
  // The far corner was outside of the first size.
  EXPECT_TRUE(WaitUntil([&] { return window.Lit(300, 200) > window.Lit(200, 150); }));
  EXPECT_TRUE(program.Runs());
  window.Destroy();
  EXPECT_EQ(program.ExitCode(), 0);
}

TEST_P(GuestRole, LeavesTheInputToTheHost) {
  HostWindow window(Server, 300, 200);
  window.ListenToInput();
  Program program(Arguments(window), Stripped({Names(window)}));
  ASSERT_TRUE(WaitUntil([&] { return window.Lit(300, 200) > 100; }));
  ASSERT_EQ(std::system("xdotool mousemove 150 150 click 1 key a key Escape mousemove 160 160 "
                        "mousemove 170 170 mousemove 180 180 mousemove 190 190 click 1 click 1"),
            0);
  EXPECT_TRUE(WaitUntil([&] { return window.InputHeard() >= 10; }));
  std::this_thread::sleep_for(100ms);
  EXPECT_TRUE(program.Runs());
}

/// At random moments of its start and of its run, some after a change of size.
TEST_P(GuestRole, EndsWithItsHost) {
  constexpr int kAtOnce = 10;
  constexpr int rounds = 5;          // of ten
  constexpr int kLongestLife = 250;  // milliseconds
  struct Visit {
    std::unique_ptr<HostWindow> Window;
    std::unique_ptr<Program> Guest;
    Clock::time_point Resize, Death;
  };
  for (int round = 0; round < rounds; ++round) {
    std::vector<Visit> visits(kAtOnce);
    for (Visit& visit : visits) {
      visit.Window = std::make_unique<HostWindow>(Server, 200, 150);
      visit.Guest =
          std::make_unique<Program>(Arguments(*visit.Window), Stripped({Names(*visit.Window)}));
      visit.Resize = Clock::now() + RandomTime(2 * kLongestLife);
      visit.Death = Clock::now() + RandomTime(kLongestLife);
    }
    const auto end = Clock::now() + std::chrono::milliseconds(kLongestLife);
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
      for (Visit& visit : visits) {
        if (now >= visit.Death) {
          visit.Window->Destroy();
        } else if (now >= visit.Resize) {
          visit.Window->Resize(300, 200);
        }
      }
      std::this_thread::sleep_for(1ms);
    }
    for (Visit& visit : visits) {
      visit.Window->Destroy();
      ASSERT_EQ(visit.Guest->ExitCode(), 0) << visit.Guest->Words();
    }
  }
}

/// Also where its pixels are not the server's, the last ones cut off by the window's border.
TEST_F(Host, TheWholeWindowIsCoveredAtEveryScale) {
  for (const auto& [factor, largest] : {std::pair{"1", 0}, {"1.25", 1}}) {
    HostWindow window(Server, 301, 203);
    Program program({"--window-id", window.Number()},
                    Stripped({std::string("QT_SCALE_FACTOR=") + factor}));
    ASSERT_TRUE(WaitUntil([&] { return window.Lit(301, 203) > 100; })) << factor;
    const auto [width, height] = window.GuestSize();
    EXPECT_TRUE(width >= 301 && width <= 301 + largest) << factor << ": " << width;
    EXPECT_TRUE(height >= 203 && height <= 203 + largest) << factor << ": " << height;
  }
}

INSTANTIATE_TEST_SUITE_P(Roles, GuestRole, testing::Values("/P", "--root"), [](const auto& role) {
  return std::string(role.param).find("root") == std::string::npos ? "Preview" : "Saver";
});

TEST_F(Host, SettingsOnTheCommandLineHoldForTheRun) {
  HostWindow window(Server, 300, 200);
  Program program({"--root", "--stars", "10", "--starfolds", "1", "--set", "Universe_AmStar=0"},
                  Stripped({Names(window)}));
  ASSERT_TRUE(WaitUntil([&] { return window.Lit(300, 200) > 0; }));
  for (int i = 0; i < 10; ++i) {
    EXPECT_LT(window.Lit(300, 200), 100);
    std::this_thread::sleep_for(20ms);
  }
}

TEST_F(Host, SigtermEndsItSoonAtAnyMoment) {
  HostWindow window(Server, 640, 480);
  for (int i = 0; i < 20; ++i) {
    Program program({"--root"}, Stripped({Names(window)}));
    ASSERT_TRUE(WaitUntil([&] { return program.CatchesSignals(); }));
    std::this_thread::sleep_for(RandomTime(400));
    program.terminate();
    ASSERT_EQ(program.ExitCode(), 0) << program.Words();
  }
}

TEST_F(Host, NumbersThatNameNoWindowAreRefused) {
  const HostWindow blind(Server, 300, 200, XCB_WINDOW_CLASS_INPUT_ONLY);
  HostWindow stale(Server, 300, 200);
  const std::string staleNumber = stale.Number();
  stale.Destroy();

  struct Case {
    Texts Arguments;
    Texts Environment;
    int ExitCode;
    const char* Words;
  };
  const std::string noWindow = "XSCREENSAVER_WINDOW=";
  const Case cases[] = {
      {{"--window-id", staleNumber}, {}, 1, "there is no window"},
      {{"--window-id", blind.Number()}, {}, 1, "there is no window"},
      {{"--root"}, {noWindow + "b7f3-token"}, 1, "'b7f3-token', which is no window"},
      {{"--root"}, {noWindow + staleNumber}, 0, "there is no window"},
      {{"/P", "-1"}, {}, 0, ""},
      {{"/P", staleNumber}, {}, 0, ""},
      {{"/P", blind.Number()}, {}, 0, ""},
      {{"/P", "99999999999999999999"}, {}, 0, ""},
  };
  for (const Case& given : cases) {
    Program program(given.Arguments, Stripped(given.Environment));
    const std::string line =
        testing::PrintToString(given.Arguments) + testing::PrintToString(given.Environment);
    EXPECT_EQ(program.ExitCode(), given.ExitCode) << line;
    EXPECT_THAT(program.Words(), testing::HasSubstr(given.Words)) << line;
  }
}

}  // namespace
}  // namespace starfolds
