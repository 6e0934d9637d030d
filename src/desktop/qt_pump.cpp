#include "desktop/qt_pump.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <cstdint>
#include <utility>

namespace starfolds {
namespace {

using std::chrono::nanoseconds;

/// Refreshes in a second where the screen tells none, or nonsense as some virtual ones do.
constexpr double kUsualRefreshRate = 60;
constexpr double kLowestRefreshRate = 10;

/// The longest that one pump goes on with events that keep coming, in milliseconds.
constexpr int kLongestPump = 10;

nanoseconds RefreshInterval() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double told = screen == nullptr ? 0 : screen->refreshRate();
  const double rate = told >= kLowestRefreshRate ? told : kUsualRefreshRate;
  return nanoseconds(static_cast<std::int64_t>(1e9 / rate));
}

/// Objects that asked to be deleted later. The toolkit does it by itself only in loops that were
/// entered for good.
void DeleteWhatIsDue() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

}  // namespace

QtPump::QtPump(std::unique_ptr<Alarm> alarm) : alarm_(std::move(alarm)) {}

Long QtPump::TickCount() {
  const auto now = Clock::now().time_since_epoch();
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  return static_cast<Long>(static_cast<std::uint32_t>(milliseconds));
}

void QtPump::PumpEvents() {
  QCoreApplication::processEvents(QEventLoop::AllEvents, kLongestPump);
  DeleteWhatIsDue();
}

void QtPump::WaitForEvents(Long milliseconds) {
  if (milliseconds > 0) SleepUntil(Clock::now() + std::chrono::milliseconds(milliseconds));
}

/// Counts from the former refresh and not from now, so that frames which are each a little early or
/// late keep step with the screen. After a longer pause the count begins anew.
void QtPump::WaitForRefresh() {
  const nanoseconds interval = RefreshInterval();
  const Clock::time_point due = lastRefresh_ + interval;
  if (Clock::now() >= due + interval) {
    lastRefresh_ = Clock::now();
    return;
  }
  while (Clock::now() < due) SleepUntil(due);
  lastRefresh_ = due;
}

/// Returns at `end`, or earlier when events arrived, which have been run then.
void QtPump::SleepUntil(Clock::time_point end) {
  alarm_->Arm(end - Clock::now());
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  alarm_->Disarm();
  DeleteWhatIsDue();
}

}  // namespace starfolds
