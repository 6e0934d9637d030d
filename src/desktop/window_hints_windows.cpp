#include "desktop/window_hints_windows.h"

#include "desktop/window_hints.h"
#include "desktop/windows_api.h"

namespace starfolds {

void MarkUnlisted(QWindow& window) {
  const HWND handle = NativeWindow(window);
  if (handle != nullptr) SetPropW(handle, kUnlistedMark, reinterpret_cast<HANDLE>(1));
}

/// Tool windows have no button in the task bar, and are not in the list of Alt+Tab.
void MarkAsBackground(QWindow& window) {
  const HWND handle = NativeWindow(window);
  if (handle == nullptr) return;
  const LONG_PTR style = GetWindowLongPtrW(handle, GWL_EXSTYLE);
  SetWindowLongPtrW(handle, GWL_EXSTYLE,
                    (style & ~WS_EX_APPWINDOW) | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE);
}

/// Qt takes owners of other programs away when it shows the window.
void SetOwner(QWindow& window, QWindow* owner) {
  window.setTransientParent(owner);
  const HWND handle = owner == nullptr ? nullptr : NativeWindow(*owner);
  DWORD process = GetCurrentProcessId();
  if (handle != nullptr) GetWindowThreadProcessId(handle, &process);
  if (process == GetCurrentProcessId()) return;
  const auto giveOwner = [&window, handle](bool visible) {
    if (!visible) return;
    SetWindowLongPtrW(NativeWindow(window), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(handle));
  };
  // Queued, because the signal comes before the window is shown.
  QObject::connect(&window, &QWindow::visibleChanged, &window, giveOwner, Qt::QueuedConnection);
}

}  // namespace starfolds
