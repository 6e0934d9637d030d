#include <string>

#include "desktop/desktop_services_qt.h"
#include "desktop/other_programs.h"
#include "desktop/window_hints_windows.h"
#include "desktop/windows_api.h"

namespace starfolds {
namespace {

constexpr const wchar_t* kPasswordModule = L"mpr.dll";
constexpr const char* kPasswordFunction = "PwdChangePasswordA";
constexpr const char* kPasswordProvider = "SCRSAVE";

using ChangePasswordFunction = DWORD(WINAPI*)(const char*, HWND, DWORD, void*);

/// The next window with this caption after `last` in the stacking order, of any process; null after
/// the last one.
HWND NextListed(const std::wstring& caption, HWND last) {
  do {
    last = FindWindowExW(nullptr, last, nullptr, caption.c_str());
  } while (last != nullptr && GetPropW(last, kUnlistedMark) != nullptr);
  return last;
}

HWND FindListed(const std::string& caption) {
  return NextListed(QString::fromStdString(caption).toStdWString(), nullptr);
}

class WindowsDesktop : public StartsOtherPrograms {
 public:
  bool WindowExists(const std::string& caption) override { return FindListed(caption) != nullptr; }

  /// Windows allows this to a process that the user has just started.
  void BringToFront(const std::string& caption) override {
    const HWND window = FindListed(caption);
    if (window == nullptr) return;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(window);
  }

  bool IsWindow(Long handle) override { return ::IsWindow(WindowOfNumber(handle)) != 0; }

  /// Later systems have the module without this function.
  void ChangePassword(Long ownerWindow) override {
    const HMODULE module = LoadLibraryExW(kPasswordModule, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return;
    const FARPROC found = GetProcAddress(module, kPasswordFunction);
    if (found != nullptr) {
      const auto change = reinterpret_cast<ChangePasswordFunction>(reinterpret_cast<void*>(found));
      change(kPasswordProvider, WindowOfNumber(ownerWindow), 0, nullptr);
    }
    FreeLibrary(module);
  }
};

}  // namespace

std::unique_ptr<DesktopServices> MakeDesktopServices() {
  return std::make_unique<WindowsDesktop>();
}

}  // namespace starfolds
