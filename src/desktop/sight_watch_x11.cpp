#include "desktop/sight_watch.h"

#include <xcb/dpms.h>
#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWindow>
#include <chrono>

#include "desktop/x11_connection.h"

namespace starfolds {
namespace {

/// Masks the bit that marks events sent by clients.
constexpr std::uint8_t kEventType = 0x7F;

/// The power saving of the screens, which the server reports only on request.
class PowerSaving {
 public:
  explicit PowerSaving(xcb_connection_t* connection) : connection_(connection) {
    const xcb_query_extension_reply_t* const extension =
        xcb_get_extension_data(connection, &xcb_dpms_id);
    known_ = extension != nullptr && extension->present != 0;
  }

  /// The result may be as old as the interval between two requests. The interval is short while the
  /// screen sleeps, so that the stars are shown soon after it wakes.
  bool IsAsleep() {
    const auto now = Clock::now();
    if (known_ && now >= nextQuestion_) {
      asleep_ = AskServer();
      nextQuestion_ = now + std::chrono::milliseconds(asleep_ ? 250 : 2000);
    }
    return asleep_;
  }

 private:
  using Clock = std::chrono::steady_clock;

  bool AskServer() const {
    const auto info = Ask(connection_, xcb_dpms_info(connection_), xcb_dpms_info_reply);
    return info && info->state != 0 && info->power_level != XCB_DPMS_DPMS_MODE_ON;
  }

  xcb_connection_t* connection_;
  bool known_ = false;
  bool asleep_ = false;
  Clock::time_point nextQuestion_;
};

class X11SightWatch : public SightWatch, private QAbstractNativeEventFilter {
 public:
  X11SightWatch(xcb_connection_t* connection, xcb_window_t window)
      : window_(window), screens_(connection) {
    SelectVisibility(connection);
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool IsHidden() override { return covered_ || screens_.IsAsleep(); }

 private:
  /// Adds to the events that Qt has selected.
  void SelectVisibility(xcb_connection_t* connection) const {
    const auto attributes = Ask(connection, xcb_get_window_attributes(connection, window_),
                                xcb_get_window_attributes_reply);
    if (!attributes) return;
    const std::uint32_t mask = attributes->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
    xcb_change_window_attributes(connection, window_, XCB_CW_EVENT_MASK, &mask);
  }

  bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & kEventType) == XCB_VISIBILITY_NOTIFY) {
      const auto* const change = static_cast<const xcb_visibility_notify_event_t*>(message);
      if (change->window == window_) {
        covered_ = change->state == XCB_VISIBILITY_FULLY_OBSCURED;
      }
    }
    return false;
  }

  xcb_window_t window_;
  bool covered_ = false;
  PowerSaving screens_;
};

}  // namespace

std::unique_ptr<SightWatch> MakeSightWatch(QWindow& window) {
  xcb_connection_t* const connection = ToolkitConnection();
  if (connection == nullptr) return nullptr;
  return std::make_unique<X11SightWatch>(connection, static_cast<xcb_window_t>(window.winId()));
}

}  // namespace starfolds
