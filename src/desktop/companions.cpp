#include "desktop/companions.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>
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

Companions::Companions(std::function<void()> left) : left_(std::move(left)) {}

Companions::~Companions() { EndAll(); }

void Companions::Start(const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  auto process = std::make_unique<QProcess>();
  // Both channels: a reader of this program's output gets that of the companions as well.
  process->setProcessChannelMode(QProcess::ForwardedChannels);
  DieWithOwner(*process);
  Watch(*process);
  process->start(QCoreApplication::applicationFilePath(), list);
  processes_.push_back(std::move(process));
}

void Companions::Watch(QProcess& process) {
  QObject::connect(&process, &QProcess::finished, [this](int code, QProcess::ExitStatus status) {
    if (status == QProcess::NormalExit && code == 0) left_();
  });
}

void Companions::EndAll() {
  for (const auto& process : processes_) {
    process->disconnect();
    process->closeWriteChannel();
  }
  for (const auto& process : processes_) {
    if (process->state() == QProcess::NotRunning || process->waitForFinished(kLongestEnd)) continue;
    process->kill();
    process->waitForFinished(kLongestEnd);
  }
  processes_.clear();
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
