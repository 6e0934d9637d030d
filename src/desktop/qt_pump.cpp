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

/// Hertz, for screens that report no or an implausible rate, as some virtual ones do.
constexpr double kUsualRefreshRate = 60;
constexpr double kLowestRefreshRate = 10;

/// The maximum time in milliseconds that one pump processes events.
constexpr int kLongestPump = 10;

nanoseconds RefreshInterval() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const double told = screen == nullptr ? 0 : screen->refreshRate();
  const double rate = told >= kLowestRefreshRate ? told : kUsualRefreshRate;
  return nanoseconds(static_cast<std::int64_t>(1e9 / rate));
}

/// Deletes objects scheduled by `deleteLater`. Qt does that by itself only in event loops started
/// by `exec`.
void DeleteWhatIsDue() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

}  // namespace

QtPump::QtPump(std::unique_ptr<Alarm> alarm) : alarm_(std::move(alarm)) {}

Long QtPump::TickCount() {
  const auto now = Clock::now().time_since_epoch();
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  return static_cast<Long>(static_cast<std::uint32_t>(milliseconds));
}

/// A frame pumps right after each wait. That wait has processed the events already.
void QtPump::PumpEvents() {
  if (std::exchange(hasWaited_, false)) return;
  QCoreApplication::processEvents(QEventLoop::AllEvents, kLongestPump);
  DeleteWhatIsDue();
}

void QtPump::WaitForEvents(Long milliseconds) {
  if (milliseconds > 0) SleepUntil(Clock::now() + std::chrono::milliseconds(milliseconds));
}

/// Counts from the previous refresh and not from now, so that frames that are slightly early or
/// late stay in step with the screen. After a longer pause the count restarts.
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

/// Returns at `end`, or earlier after events were processed.
void QtPump::SleepUntil(Clock::time_point end) {
  alarm_->Wait(end - Clock::now());
  DeleteWhatIsDue();
  hasWaited_ = true;
}

}  // namespace starfolds
