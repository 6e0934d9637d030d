#include "desktop/signals.h"

#include <utility>

#ifdef __unix__
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <cstddef>
#include <optional>
#endif

namespace starfolds {

#ifdef __unix__

namespace {

constexpr std::array<int, 3> kStopSignals{SIGTERM, SIGINT, SIGHUP};

/// The write end of the pipe by which a signal reaches the event loop: a signal handler may call
/// `write`, but few other functions.
volatile sig_atomic_t pipeEntrance = -1;

void WriteToPipe(int) {
  const int error = errno;
  [[maybe_unused]] const auto written = write(static_cast<int>(pipeEntrance), "", 1);
  errno = error;
}

}  // namespace

class StopSignals::Catcher {
 public:
  Catcher() {
    std::array<int, 2> ends{-1, -1};
    if (pipe(ends.data()) != 0) return;
    for (const int end : ends) {
      fcntl(end, F_SETFD, FD_CLOEXEC);
      fcntl(end, F_SETFL, O_NONBLOCK);
    }
    exit_ = ends[0];
    pipeEntrance = ends[1];
    for (std::size_t i = 0; i < kStopSignals.size(); ++i) CatchSignal(i);
  }

  ~Catcher() {
    for (std::size_t i = 0; i < kStopSignals.size(); ++i) {
      if (former_[i]) sigaction(kStopSignals[i], &*former_[i], nullptr);
    }
    notifier_.reset();
    if (exit_ < 0) return;
    close(static_cast<int>(pipeEntrance));
    close(exit_);
    pipeEntrance = -1;
  }

  void Watch(std::function<void()> stop) {
    if (exit_ < 0) return;
    notifier_.emplace(exit_, QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, [this, stop = std::move(stop)] {
      std::array<char, 16> bytes{};
      while (read(exit_, bytes.data(), bytes.size()) > 0) {
      }
      stop();
    });
  }

  bool Asked() const {
    pollfd waiting{exit_, POLLIN, 0};
    return poll(&waiting, 1, 0) > 0;  // an invalid descriptor counts as not ready
  }

 private:
  /// A signal that the parent process has set to be ignored stays ignored, as under nohup.
  void CatchSignal(std::size_t i) {
    struct sigaction former {};
    sigaction(kStopSignals[i], nullptr, &former);
    if (former.sa_handler == SIG_IGN) return;
    former_[i] = former;
    struct sigaction action {};
    action.sa_handler = WriteToPipe;
    action.sa_flags = SA_RESTART;
    sigaction(kStopSignals[i], &action, nullptr);
  }

  int exit_ = -1;
  std::array<std::optional<struct sigaction>, kStopSignals.size()> former_;
  std::optional<QSocketNotifier> notifier_;
};

#else

class StopSignals::Catcher {
 public:
  void Watch(const std::function<void()>&) {}
  bool Asked() const { return false; }
};

#endif

StopSignals::StopSignals() : catcher_(std::make_unique<Catcher>()) {}
StopSignals::~StopSignals() = default;
void StopSignals::Watch(std::function<void()> stop) { catcher_->Watch(std::move(stop)); }
bool StopSignals::Asked() const { return catcher_->Asked(); }

}  // namespace starfolds
