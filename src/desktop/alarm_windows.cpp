#include <QCoreApplication>
#include <algorithm>
#include <ratio>

#include "desktop/alarm.h"
#include "desktop/windows_api.h"

namespace starfolds {
namespace {

using std::chrono::nanoseconds;
using Ticks = std::chrono::duration<LONGLONG, std::ratio<1, 10'000'000>>;  // of the system's timers

/// CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, which MinGW-w64 does not define. Other timers are up to
/// 16 ms late.
constexpr DWORD kHighResolution = 2;

/// Waits for a timer and for messages at once. Qt's timers of less than 16 ms are multimedia
/// timers, each of which costs the start of a thread or more.
class WaitableTimer : public Alarm {
 public:
  /// `timer` becomes the alarm's own. It is reset by a wait.
  explicit WaitableTimer(HANDLE timer) : timer_(timer) {}
  ~WaitableTimer() override { CloseHandle(timer_); }
  WaitableTimer(const WaitableTimer&) = delete;
  WaitableTimer& operator=(const WaitableTimer&) = delete;

  /// Qt's own events are announced by a message, too. If the timer ended the wait, there are no
  /// events to process.
  void Wait(nanoseconds time) override {
    time = std::max(time, nanoseconds(1));
    LARGE_INTEGER due{};
    due.QuadPart = -std::chrono::ceil<Ticks>(time).count();  // from now
    SetWaitableTimer(timer_, &due, 0, nullptr, nullptr, FALSE);
    // The timeout is for a timer that could not be set.
    const auto timeout =
        static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(time).count());
    const DWORD ended = MsgWaitForMultipleObjectsEx(1, &timer_, timeout, QS_ALLINPUT,
                                                    MWMO_ALERTABLE | MWMO_INPUTAVAILABLE);
    if (ended != WAIT_OBJECT_0) QCoreApplication::processEvents(QEventLoop::AllEvents);
  }

 private:
  HANDLE timer_;
};

}  // namespace

/// Systems before Windows 10 1803 have no such timers.
std::unique_ptr<Alarm> MakeAlarm() {
  const HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS);
  if (timer == nullptr) return MakeToolkitAlarm();
  return std::make_unique<WaitableTimer>(timer);
}

}  // namespace starfolds
