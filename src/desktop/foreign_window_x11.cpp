#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QWindow>
#include <cmath>
#include <optional>

#include "desktop/foreign_window.h"
#include "desktop/x11_connection.h"

namespace starfolds {
namespace {

/// Set in events that clients have sent, as opposed to those of the server.
constexpr std::uint8_t kSentByProgram = 0x80;

int LogicalLength(int physical, double factor) {
  return static_cast<int>(std::ceil(physical / factor));
}

/// Only the server knows when a window of another program is destroyed, and it reports that to
/// clients that have selected the window's events. So the events are selected first, and then the
/// window is checked, to notice one that was destroyed just before. A guest that missed the end of
/// its host would never end.
class X11ForeignWindow : public ForeignWindow, private QAbstractNativeEventFilter {
 public:
  X11ForeignWindow(xcb_connection_t* connection, xcb_window_t handle, ForeignWindowEvents& events)
      : connection_(connection), handle_(handle), events_(events) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    DropErrors(connection_, xcb_change_window_attributes_checked(connection_, handle_,
                                                                 XCB_CW_EVENT_MASK, &mask));
    qGuiApp->installNativeEventFilter(this);
  }
  X11ForeignWindow(const X11ForeignWindow&) = delete;
  X11ForeignWindow& operator=(const X11ForeignWindow&) = delete;

  bool CanShow() const {
    const auto attributes = Ask(connection_, xcb_get_window_attributes(connection_, handle_),
                                xcb_get_window_attributes_reply);
    return attributes && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
  }

  bool TakeIn(QWindow& child, GuestOrder order) override {
    const std::optional<QSize> size = PhysicalSize(handle_);
    if (!size) return false;
    physicalSize_ = *size;
    window_.reset(QWindow::fromWinId(handle_));
    if (!window_) return false;
    child_ = &child;
    child.setParent(window_.get());
    child.create();
    Fit();
    if (order == GuestOrder::Bottom) {
      child.lower();
    } else {
      child.raise();
    }
    childHandle_ = static_cast<xcb_window_t>(child.winId());
    return PhysicalSize(handle_) && PhysicalSize(childHandle_);
  }

  QSize Size() const override {
    const double factor = child_ == nullptr ? 1 : child_->devicePixelRatio();
    return {LogicalLength(physicalSize_.width(), factor),
            LogicalLength(physicalSize_.height(), factor)};
  }

 private:
  /// nullopt if the window is gone.
  std::optional<QSize> PhysicalSize(xcb_window_t window) const {
    const auto answer =
        Ask(connection_, xcb_get_geometry(connection_, window), xcb_get_geometry_reply);
    if (!answer) return std::nullopt;
    return QSize(answer->width, answer->height);
  }

  void Fit() { child_->setGeometry(QRect(QPoint(), Size())); }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override {
    if (child_ == nullptr || type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    switch (event->response_type & ~kSentByProgram) {
      case XCB_DESTROY_NOTIFY:
        Destroyed(reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window);
        break;
      case XCB_CONFIGURE_NOTIFY:
        Configured(*reinterpret_cast<const xcb_configure_notify_event_t*>(event));
        break;
      default: break;
    }
    return false;
  }

  void Destroyed(xcb_window_t window) {
    if (window == handle_ || window == childHandle_) events_.HostGone();
  }

  void Configured(const xcb_configure_notify_event_t& event) {
    const QSize size(event.width, event.height);
    if (event.window != handle_ || size == physicalSize_) return;
    physicalSize_ = size;
    Fit();
    events_.HostResized();
  }

  xcb_connection_t* connection_;
  xcb_window_t handle_;
  ForeignWindowEvents& events_;
  std::unique_ptr<QWindow> window_;
  QWindow* child_ = nullptr;
  xcb_window_t childHandle_ = XCB_WINDOW_NONE;
  QSize physicalSize_;
};

bool ServerAnswers() {
  xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
  const bool answers = xcb_connection_has_error(connection) == 0;
  xcb_disconnect(connection);
  return answers;
}

}  // namespace

std::unique_ptr<ForeignWindow> OpenForeignWindow(Long handle, ForeignWindowEvents& events) {
  xcb_connection_t* const connection = ToolkitConnection();
  if (handle <= 0 || connection == nullptr) return nullptr;
  auto window =
      std::make_unique<X11ForeignWindow>(connection, static_cast<xcb_window_t>(handle), events);
  if (!window->CanShow()) return nullptr;
  return window;
}

bool CanOpenForeignWindows() { return ToolkitConnection() != nullptr; }

bool ChooseForeignWindowSystem() {
  if (!ServerAnswers()) return false;
  qputenv("QT_QPA_PLATFORM", "xcb");
  return true;
}

}  // namespace starfolds
