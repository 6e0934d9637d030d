#include <QAbstractNativeEventFilter>
#include <utility>

#include "desktop/signals.h"
#include "desktop/windows_api.h"

namespace starfolds {

/// The user logs off or the system shuts down. Windows asks all programs first, and one of them may
/// refuse; only the second message is a request to end.
class StopSignals::Catcher : private QAbstractNativeEventFilter {
 public:
  Catcher() = default;
  Catcher(const Catcher&) = delete;
  Catcher& operator=(const Catcher&) = delete;

  void Watch(std::function<void()> stop) {
    stop_ = std::move(stop);
    qGuiApp->installNativeEventFilter(this);
  }

  bool Asked() const { return false; }

 private:
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override {
    const MSG* const event = WindowsMessage(type, message);
    if (event == nullptr) return false;
    switch (event->message) {
      case WM_QUERYENDSESSION: *result = TRUE; return true;
      case WM_ENDSESSION:
        if (event->wParam != FALSE) stop_();
        *result = 0;
        return true;
      default: return false;
    }
  }

  std::function<void()> stop_;
};

StopSignals::StopSignals() : catcher_(std::make_unique<Catcher>()) {}
StopSignals::~StopSignals() = default;
void StopSignals::Watch(std::function<void()> stop) { catcher_->Watch(std::move(stop)); }
bool StopSignals::Asked() const { return catcher_->Asked(); }

}  // namespace starfolds
