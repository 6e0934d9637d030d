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

/// How long a companion may take to end before it is killed, in milliseconds.
constexpr int kLongestEnd = 1000;

/// Runs in the companion before its program does. The owner may have died before he was watched.
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
  // Not the errors alone: whoever listens to our output hears the companions' as well.
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

/// The pipe's reading end. It becomes readable when there is nobody left who could write.
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
