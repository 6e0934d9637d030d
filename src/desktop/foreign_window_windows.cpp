#include "desktop/foreign_window.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <cmath>

#include "desktop/windows_api.h"

namespace starfolds {
namespace {

/// Windows does not report to other processes that a window was resized, and a window of a process
/// that was killed can vanish without any message.
constexpr std::chrono::milliseconds kCheckInterval{100};

int LogicalLength(int physical, double factor) {
  return static_cast<int>(std::ceil(physical / factor));
}

class WindowsForeignWindow : public ForeignWindow, private QAbstractNativeEventFilter {
 public:
  WindowsForeignWindow(HWND handle, ForeignWindowEvents& events)
      : handle_(handle), events_(events) {
    check_.setInterval(kCheckInterval);
    check_.callOnTimeout([this] { Check(); });
    qGuiApp->installNativeEventFilter(this);
  }
  WindowsForeignWindow(const WindowsForeignWindow&) = delete;
  WindowsForeignWindow& operator=(const WindowsForeignWindow&) = delete;

  /// The size is taken after the child exists: if the host is unaware of screens of different
  /// scales, Windows then gives this process the host's coordinates.
  bool TakeIn(QWindow& child, GuestOrder order) override {
    window_.reset(QWindow::fromWinId(reinterpret_cast<WId>(handle_)));
    if (!window_) return false;
    child_ = &child;
    child.setParent(window_.get());
    child.create();
    childHandle_ = NativeWindow(child);
    // Clicks on a disabled child go to its parent.
    EnableWindow(childHandle_, FALSE);
    physicalSize_ = PhysicalSize();
    Fit(order == GuestOrder::Bottom ? HWND_BOTTOM : HWND_TOP, 0);
    check_.start();
    return Exists();
  }

  QSize Size() const override {
    const double factor = child_ == nullptr ? 1 : child_->devicePixelRatio();
    return {LogicalLength(physicalSize_.width(), factor),
            LogicalLength(physicalSize_.height(), factor)};
  }

 private:
  bool Exists() const { return IsWindow(handle_) && IsWindow(childHandle_); }

  /// Empty if the window is gone.
  QSize PhysicalSize() const {
    RECT inside{};
    GetClientRect(handle_, &inside);
    return {static_cast<int>(inside.right), static_cast<int>(inside.bottom)};
  }

  void Fit(HWND after, UINT flags) {
    SetWindowPos(childHandle_, after, 0, 0, physicalSize_.width(), physicalSize_.height(),
                 SWP_NOACTIVATE | flags);
  }

  void Check() {
    if (!Exists()) return ReportGone();
    const QSize size = PhysicalSize();
    if (size == physicalSize_) return;
    physicalSize_ = size;
    Fit(nullptr, SWP_NOZORDER);
    events_.HostResized();
  }

  void ReportGone() {
    check_.stop();
    events_.HostGone();
  }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override {
    const MSG* const event = WindowsMessage(type, message);
    const bool isEnd = event != nullptr && event->message == WM_DESTROY;
    if (isEnd && childHandle_ != nullptr && event->hwnd == childHandle_) ReportGone();
    return false;
  }

  HWND handle_;
  ForeignWindowEvents& events_;
  std::unique_ptr<QWindow> window_;
  QWindow* child_ = nullptr;
  HWND childHandle_ = nullptr;
  QSize physicalSize_;
  QTimer check_;
};

}  // namespace

std::unique_ptr<ForeignWindow> OpenForeignWindow(Long handle, ForeignWindowEvents& events) {
  const HWND window = WindowOfNumber(handle);
  if (!OnWindowsDesktop() || !IsWindow(window)) return nullptr;
  return std::make_unique<WindowsForeignWindow>(window, events);
}

bool CanOpenForeignWindows() { return OnWindowsDesktop(); }

bool ChooseForeignWindowSystem() { return true; }

}  // namespace starfolds
