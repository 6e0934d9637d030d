#include "desktop/sight_watch.h"

#include <dwmapi.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWindow>
#include <chrono>

#include "desktop/windows_api.h"

namespace starfolds {
namespace {

/// Windows reports when the display is switched on or off, but not when a window is covered.
constexpr std::chrono::milliseconds kCheckInterval{250};

/// GUID_CONSOLE_DISPLAY_STATE, which no library of MinGW-w64 defines.
constexpr GUID kDisplayState{
    0x6fe69556, 0x704a, 0x47a0, {0x8f, 0x24, 0xc2, 0x8d, 0x93, 0x6f, 0xda, 0x47}};
constexpr DWORD kDisplayOff = 0;

/// Whether a window exists but is not shown, as on a virtual desktop that is not the current one.
bool IsCloaked(HWND window) {
  DWORD cloaked = 0;
  return SUCCEEDED(DwmGetWindowAttribute(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked)) &&
         cloaked != 0;
}

/// Without the invisible border for resizing.
RECT VisibleBounds(HWND window) {
  RECT bounds{};
  if (FAILED(DwmGetWindowAttribute(window, DWMWA_EXTENDED_FRAME_BOUNDS, &bounds, sizeof bounds))) {
    GetWindowRect(window, &bounds);
  }
  return bounds;
}

/// Whether the window hides what is below it. One that is translucent or has a shape may not.
bool IsOpaque(HWND window) {
  if (!IsWindowVisible(window) || IsIconic(window) || IsCloaked(window)) return false;
  if ((GetWindowLongPtrW(window, GWL_EXSTYLE) & (WS_EX_LAYERED | WS_EX_TRANSPARENT)) != 0) {
    return false;
  }
  RECT shape{};
  return GetWindowRgnBox(window, &shape) == ERROR;
}

bool Contains(const RECT& outer, const RECT& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

/// Whether a single window above covers `window`. Several windows that do so together are not
/// noticed.
bool IsCovered(HWND window) {
  const HWND root = GetAncestor(window, GA_ROOT);
  if (IsIconic(root) || IsCloaked(root)) return true;
  RECT area{};
  GetWindowRect(window, &area);
  for (HWND above = GetWindow(root, GW_HWNDPREV); above != nullptr;
       above = GetWindow(above, GW_HWNDPREV)) {
    if (IsOpaque(above) && Contains(VisibleBounds(above), area)) return true;
  }
  return false;
}

class WindowsSightWatch : public SightWatch, private QAbstractNativeEventFilter {
 public:
  explicit WindowsSightWatch(HWND window)
      : window_(window),
        power_(
            RegisterPowerSettingNotification(window, &kDisplayState, DEVICE_NOTIFY_WINDOW_HANDLE)) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }
  ~WindowsSightWatch() override {
    if (power_ != nullptr) UnregisterPowerSettingNotification(power_);
  }
  WindowsSightWatch(const WindowsSightWatch&) = delete;
  WindowsSightWatch& operator=(const WindowsSightWatch&) = delete;

  bool IsHidden() override {
    const auto now = Clock::now();
    if (now >= nextCheck_) {
      covered_ = IsCovered(window_);
      nextCheck_ = now + kCheckInterval;
    }
    return covered_ || displayOff_;
  }

 private:
  using Clock = std::chrono::steady_clock;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override {
    const MSG* const event = WindowsMessage(type, message);
    if (event != nullptr && event->hwnd == window_ && event->message == WM_POWERBROADCAST &&
        event->wParam == PBT_POWERSETTINGCHANGE) {
      TakePower(*reinterpret_cast<const POWERBROADCAST_SETTING*>(event->lParam));
    }
    return false;
  }

  void TakePower(const POWERBROADCAST_SETTING& setting) {
    if (IsEqualGUID(setting.PowerSetting, kDisplayState)) {
      displayOff_ = setting.Data[0] == kDisplayOff;
    }
  }

  HWND window_;
  HPOWERNOTIFY power_;
  bool covered_ = false;
  bool displayOff_ = false;
  Clock::time_point nextCheck_;
};

}  // namespace

std::unique_ptr<SightWatch> MakeSightWatch(QWindow& window) {
  const HWND handle = NativeWindow(window);
  if (handle == nullptr) return nullptr;
  return std::make_unique<WindowsSightWatch>(handle);
}

}  // namespace starfolds
