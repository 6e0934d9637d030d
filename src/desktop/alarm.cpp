#include "desktop/alarm.h"

#include <QCoreApplication>
#include <QEventLoop>
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

/// A timer whose end is an event of the loop.
class LoopAlarm : public Alarm {
 public:
  void Wait(nanoseconds time) override {
    Arm(time);
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    Disarm();
  }

 private:
  /// Fires once, `fromNow` later. Replaces an earlier setting.
  virtual void Arm(nanoseconds fromNow) = 0;
  virtual void Disarm() = 0;
};

class ToolkitAlarm : public LoopAlarm {
 public:
  ToolkitAlarm() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
  }

 private:
  void Arm(nanoseconds fromNow) override {
    timer_.start(std::chrono::ceil<std::chrono::milliseconds>(std::max(fromNow, nanoseconds(0))));
  }
  void Disarm() override { timer_.stop(); }

  QTimer timer_;
};

#ifdef __linux__

/// A kernel timer, which the event loop polls as a file descriptor that becomes readable.
class KernelAlarm : public LoopAlarm {
 public:
  /// `file` is a timerfd, owned by the alarm.
  explicit KernelAlarm(int file) : file_(file), notifier_(file, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { Disarm(); });
  }
  ~KernelAlarm() override { close(file_); }

 private:
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

#ifndef _WIN32
std::unique_ptr<Alarm> MakeAlarm() {
#ifdef __linux__
  const int file = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
  if (file >= 0) return std::make_unique<KernelAlarm>(file);
#endif
  return MakeToolkitAlarm();
}
#endif

}  // namespace starfolds
