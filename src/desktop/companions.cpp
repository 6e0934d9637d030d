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
#ifdef _WIN32
#include "desktop/windows_api.h"
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

/// Milliseconds between two looks at the pipe, on systems that do not report that it was closed.
[[maybe_unused]] constexpr int kOwnerCheckInterval = 100;

#ifdef _WIN32

/// A job whose processes are killed when its last handle is closed. The only one is never closed
/// but by the end of this process.
HANDLE MakeDeadlyJob() {
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

/// If the process was killed in between, there is nothing to add.
void AddToJob(qint64 processId) {
  static const HANDLE job = MakeDeadlyJob();
  const HANDLE process =
      OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(processId));
  if (process == nullptr) return;
  AssignProcessToJobObject(job, process);
  CloseHandle(process);
}

#endif

/// Has a companion killed when its owner ends. On Linux the function is called in the new process
/// before the program is executed; the owner may have ended already.
void DieWithOwner([[maybe_unused]] QProcess& process) {
#ifdef __linux__
  process.setChildProcessModifier([owner = getpid()] {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != owner) _exit(0);
  });
#elif defined(_WIN32)
  QObject::connect(&process, &QProcess::started, [&process] { AddToJob(process.processId()); });
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

#elif defined(_WIN32)

/// The read end of the pipe. Windows does not report that the other end was closed unless a thread
/// waits for it.
class OwnerWatch::Pipe {
 public:
  explicit Pipe(std::function<void()> gone) {
    check_.setInterval(kOwnerCheckInterval);
    check_.callOnTimeout([this, gone = std::move(gone)] {
      if (!IsClosed()) return;
      check_.stop();
      gone();
    });
    check_.start();
  }

 private:
  static bool IsClosed() {
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    return !PeekNamedPipe(input, nullptr, 0, nullptr, nullptr, nullptr) &&
           GetLastError() == ERROR_BROKEN_PIPE;
  }

  QTimer check_;
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
