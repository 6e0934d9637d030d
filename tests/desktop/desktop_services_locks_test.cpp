// The other processes are this test program itself, started once more with a command in its
// environment.
#include "desktop/desktop_services_locks.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>
#include <cstdlib>
#include <vector>

#include "desktop/pumped_test.h"
#include "desktop/window_hints.h"

namespace starfolds {
namespace {

constexpr char kCaption[] = "TSLN:Sterne \xC3\xBC";
constexpr char kCommand[] = "INSTANCE_TEST_COMMAND";
constexpr int kPatienceMs = 20000;

/// What the other process does: says whether the window exists, and stays (if told so) until its
/// input ends.
int RunCommand(const QByteArray& command) {
  const auto desktop = MakeLockDesktop();
  if (command == "raise") {
    desktop->BringToFront(kCaption);
    return 0;
  }
  std::puts(desktop->WindowExists(kCaption) ? "exists" : "mine");
  std::fflush(stdout);
  if (command == "stay") std::getchar();
  return 0;
}

/// Runs before all tests, and in place of them if there is a command.
class OtherProcessEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    if (qEnvironmentVariableIsSet(kCommand)) std::_Exit(RunCommand(qgetenv(kCommand)));
  }
};
[[maybe_unused]] testing::Environment* const kOtherProcess =
    testing::AddGlobalTestEnvironment(new OtherProcessEnvironment);

class Process : public QProcess {
 public:
  explicit Process(const char* command) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kCommand, command);
    setProcessEnvironment(environment);
    start(QCoreApplication::applicationFilePath(), {});
  }
  ~Process() override {
    kill();
    waitForFinished(kPatienceMs);
  }

  /// What it says about the window.
  QByteArray Answer() {
    QByteArray last;
    while (canReadLine() || waitForReadyRead(kPatienceMs)) {
      while (canReadLine()) {
        last = readLine().trimmed();
        if (last == "mine" || last == "exists") return last;
      }
    }
    return last;
  }
};

class InstanceTest : public PumpedTest {
 protected:
  InstanceTest() {
    folder_.isValid();
    qputenv("XDG_RUNTIME_DIR", folder_.path().toUtf8());
  }

  QTemporaryDir folder_;
  std::unique_ptr<DesktopServices> Desktop = MakeLockDesktop();
};

TEST_F(InstanceTest, OneOwnerOfSeveralAtOnce) {
  std::vector<std::unique_ptr<Process>> processes;
  for (int i = 0; i < 6; ++i) processes.push_back(std::make_unique<Process>("stay"));
  int owners = 0;
  for (const auto& process : processes) {
    const QByteArray answer = process->Answer();
    EXPECT_TRUE(answer == "mine" || answer == "exists") << answer.constData();
    owners += answer == "mine";
  }
  EXPECT_EQ(owners, 1);
}

TEST_F(InstanceTest, AKilledOwnerLosesItsCaption) {
  Process owner("stay");
  EXPECT_EQ(owner.Answer(), "mine");
  EXPECT_TRUE(Desktop->WindowExists(kCaption));
  owner.kill();  // by SIGKILL, so that it leaves all its files behind
  owner.waitForFinished(kPatienceMs);
  EXPECT_FALSE(Desktop->WindowExists(kCaption));
}

TEST_F(InstanceTest, AnUnlistedWindowDoesNotTakeItsCaption) {
  QWindow window;
  window.setTitle(QString::fromUtf8(kCaption));
  window.setProperty(kUnlistedProperty, true);
  window.show();
  Process other("stay");
  EXPECT_EQ(other.Answer(), "mine");
  EXPECT_TRUE(Desktop->WindowExists(kCaption)) << "the other process has it";
}

TEST_F(InstanceTest, AWindowThatIsShownHasItsCaptionAndComesForward) {
  QWindow window;
  window.setTitle(QString::fromUtf8(kCaption));
  window.show();
  EXPECT_TRUE(Desktop->WindowExists(kCaption));
  EXPECT_FALSE(Desktop->WindowExists("TSLN:Sterne"));
  window.setWindowState(Qt::WindowMinimized);
  Process other("raise");
  EXPECT_TRUE(PumpUntil([&] {
    return !(window.windowStates() & Qt::WindowMinimized) && other.state() == QProcess::NotRunning;
  }));
  EXPECT_EQ(other.exitCode(), 0);
}

}  // namespace
}  // namespace starfolds
