#include "desktop/companions.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <utility>

#ifdef __unix__
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#endif
#ifdef __linux__
#include <signal.h>
#include <sys/prctl.h>
#endif

namespace starfolds {
namespace {

/// The time in milliseconds that a companion has to end before it is killed.
constexpr int kLongestEnd = 1000;

/// A companion that fails is started again after this time in milliseconds. One that fails again
/// and again within the second time is given up, because it would probably never succeed.
constexpr int kRestartPause = 500;
constexpr int kStartTime = 10'000;
constexpr int kMostFailures = 3;  // in a row

/// Called in the child process before the program is executed. The owner may have ended already.
void DieWithOwner([[maybe_unused]] QProcess& process) {
#ifdef __linux__
  process.setChildProcessModifier([owner = getpid()] {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != owner) _exit(0);
  });
#endif
}

}  // namespace

struct Companions::Companion {
  QStringList Arguments;
  QElapsedTimer Running;
  int Failures = 0;  // in a row, each soon after a start
  QProcess Process;
  QTimer Pause;

  Companion() {
    Pause.setSingleShot(true);
    Pause.callOnTimeout([this] { Start(); });
  }

  void Start() {
    Running.start();
    Process.start(QCoreApplication::applicationFilePath(), Arguments);
  }

  void StartAgain() {
    if (Running.elapsed() > kStartTime) Failures = 0;
    if (++Failures > kMostFailures) return;
    Pause.start(kRestartPause);
  }
};

Companions::Companions(std::function<void()> left) : left_(std::move(left)) {}

Companions::~Companions() { EndAll(); }

void Companions::Start(const std::vector<std::string>& arguments) {
  auto companion = std::make_unique<Companion>();
  for (const std::string& argument : arguments) {
    companion->Arguments << QString::fromStdString(argument);
  }
  // Both channels: a reader of this program's output gets that of the companions as well.
  companion->Process.setProcessChannelMode(QProcess::ForwardedChannels);
  DieWithOwner(companion->Process);
  Watch(*companion);
  companion->Start();
  companions_.push_back(std::move(companion));
}

void Companions::Watch(Companion& companion) {
  const auto ended = [this, &companion](int code, QProcess::ExitStatus status) {
    if (status == QProcess::NormalExit && code == 0) {
      left_();
    } else {
      companion.StartAgain();
    }
  };
  QObject::connect(&companion.Process, &QProcess::finished, ended);
}

void Companions::EndAll() {
  for (const auto& companion : companions_) {
    companion->Process.disconnect();
    companion->Process.closeWriteChannel();
  }
  for (const auto& companion : companions_) {
    QProcess& process = companion->Process;
    if (process.state() == QProcess::NotRunning || process.waitForFinished(kLongestEnd)) continue;
    process.kill();
    process.waitForFinished(kLongestEnd);
  }
  companions_.clear();
}

#ifdef __unix__

/// The read end of the pipe. It becomes readable when no process has the write end open.
class OwnerWatch::Pipe {
 public:
  explicit Pipe(std::function<void()> gone) : notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this, gone = std::move(gone)] {
      char byte = 0;
      if (read(STDIN_FILENO, &byte, 1) != 0) return;
      notifier_.setEnabled(false);
      gone();
    });
  }

 private:
  QSocketNotifier notifier_;
};

#else

class OwnerWatch::Pipe {
 public:
  explicit Pipe(const std::function<void()>&) {}
};

#endif

OwnerWatch::OwnerWatch(std::function<void()> gone)
    : pipe_(std::make_unique<Pipe>(std::move(gone))) {}

OwnerWatch::~OwnerWatch() = default;

}  // namespace starfolds
