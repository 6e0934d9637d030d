#include "desktop/saver_guard.h"

#include <QAbstractNativeEventFilter>

#include "desktop/windows_api.h"

namespace starfolds {
namespace {

/// Windows uses the lowest four bits of a system command itself.
constexpr WPARAM kCommandMask = 0xFFF0;

}  // namespace

class SaverGuard::Filter : private QAbstractNativeEventFilter {
 public:
  Filter() { qGuiApp->installNativeEventFilter(this); }
  Filter(const Filter&) = delete;
  Filter& operator=(const Filter&) = delete;

 private:
  /// Windows asks the foreground window; a message that is not passed on refuses.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override {
    const MSG* const event = WindowsMessage(type, message);
    if (event == nullptr || event->message != WM_SYSCOMMAND ||
        (event->wParam & kCommandMask) != SC_SCREENSAVE) {
      return false;
    }
    *result = 0;
    return true;
  }
};

SaverGuard::SaverGuard() : filter_(std::make_unique<Filter>()) {}
SaverGuard::~SaverGuard() = default;

}  // namespace starfolds
