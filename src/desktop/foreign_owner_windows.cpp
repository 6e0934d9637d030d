#include "desktop/foreign_owner.h"
#include "desktop/windows_api.h"

namespace starfolds {

/// Some hosts name a control inside their window.
ForeignOwner::ForeignOwner(Long handle) {
  const HWND named = WindowOfNumber(handle);
  if (!OnWindowsDesktop() || !IsWindow(named)) return;
  const HWND window = GetAncestor(named, GA_ROOT);
  window_.reset(QWindow::fromWinId(reinterpret_cast<WId>(window)));
  if (window_) EnableWindow(window, FALSE);
}

ForeignOwner::~ForeignOwner() {
  if (!window_) return;
  const HWND window = NativeWindow(*window_);
  EnableWindow(window, TRUE);
  SetForegroundWindow(window);
}

}  // namespace starfolds
