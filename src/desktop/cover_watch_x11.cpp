#include "desktop/cover_watch.h"

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>
#include <cstdlib>

namespace starfolds {
namespace {

/// The server's own events carry no mark of having been sent by a client.
constexpr std::uint8_t kEventType = 0x7F;

class X11CoverWatch : public CoverWatch, private QAbstractNativeEventFilter {
 public:
  X11CoverWatch(xcb_connection_t* connection, xcb_window_t window) : window_(window) {
    Select(connection);
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool IsCovered() const override { return covered_; }

 private:
  /// Adds to the events that the toolkit has asked for.
  void Select(xcb_connection_t* connection) const {
    xcb_generic_error_t* error = nullptr;
    xcb_get_window_attributes_reply_t* const attributes = xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window_), &error);
    if (attributes != nullptr) {
      const std::uint32_t mask = attributes->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
      xcb_change_window_attributes(connection, window_, XCB_CW_EVENT_MASK, &mask);
    }
    std::free(attributes);
    std::free(error);
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
};

}  // namespace

std::unique_ptr<CoverWatch> MakeCoverWatch(QWindow& window) {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return nullptr;
  return std::make_unique<X11CoverWatch>(x11->connection(),
                                         static_cast<xcb_window_t>(window.winId()));
}

}  // namespace starfolds
