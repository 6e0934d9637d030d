#include "desktop/alarm.h"

#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>

#ifdef __linux__
#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>
#endif

namespace starfolds {
namespace {

using std::chrono::nanoseconds;

class ToolkitAlarm : public Alarm {
 public:
  ToolkitAlarm() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
  }

  void Arm(nanoseconds fromNow) override {
    timer_.start(std::chrono::ceil<std::chrono::milliseconds>(std::max(fromNow, nanoseconds(0))));
  }
  void Disarm() override { timer_.stop(); }

 private:
  QTimer timer_;
};

#ifdef __linux__

/// A kernel timer, which the event loop polls as a file descriptor that becomes readable.
class KernelAlarm : public Alarm {
 public:
  /// `file` is a timerfd, owned by the alarm.
  explicit KernelAlarm(int file) : file_(file), notifier_(file, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { Disarm(); });
  }
  ~KernelAlarm() override { close(file_); }

  void Arm(nanoseconds fromNow) override {
    // A time of zero would disarm the timer.
    const auto wait = std::max(fromNow, nanoseconds(1)).count();
    constexpr std::int64_t second = 1'000'000'000;
    Set({.tv_sec = static_cast<time_t>(wait / second), .tv_nsec = wait % second});
    armed_ = true;
  }
  /// Setting the timer also resets its expiration, so nothing is left to be read.
  void Disarm() override {
    if (armed_) Set({});
    armed_ = false;
  }

 private:
  void Set(timespec fromNow) {
    const itimerspec once{.it_interval = {}, .it_value = fromNow};
    timerfd_settime(file_, 0, &once, nullptr);
  }

  int file_;
  bool armed_ = false;
  QSocketNotifier notifier_;
};

#endif

}  // namespace

std::unique_ptr<Alarm> MakeToolkitAlarm() { return std::make_unique<ToolkitAlarm>(); }

std::unique_ptr<Alarm> MakeAlarm() {
#ifdef __linux__
  const int file = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
  if (file >= 0) return std::make_unique<KernelAlarm>(file);
#endif
  return MakeToolkitAlarm();
}

}  // namespace starfolds
