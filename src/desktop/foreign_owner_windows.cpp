#include "desktop/foreign_owner.h"

#include <chrono>

#include "desktop/windows_api.h"

namespace starfolds {
namespace {

constexpr std::chrono::milliseconds kCheckInterval{200};

}  // namespace

/// Some hosts name a control inside their window.
ForeignOwner::ForeignOwner(Long handle, const std::function<void()>& gone) {
  const HWND named = WindowOfNumber(handle);
  if (!OnWindowsDesktop() || !IsWindow(named)) return;
  const HWND window = GetAncestor(named, GA_ROOT);
  window_.reset(QWindow::fromWinId(reinterpret_cast<WId>(window)));
  if (!window_) return;
  EnableWindow(window, FALSE);
  check_.callOnTimeout([this, window, gone] {
    if (IsWindow(window)) return;
    check_.stop();
    gone();
  });
  check_.start(kCheckInterval);
}

ForeignOwner::~ForeignOwner() {
  if (!window_) return;
  const HWND window = NativeWindow(*window_);
  EnableWindow(window, TRUE);
  SetForegroundWindow(window);
}

}  // namespace starfolds
