#include "desktop/image_sender.h"

#include <QImage>

#include "desktop/windows_api.h"

namespace starfolds {
namespace {

/// The lines of the image that contain `part`, as a picture of their own. Its lines go from top to
/// bottom, which a negative height says.
BITMAPINFO Describe(const QImage& image, const QRect& part) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = static_cast<LONG>(image.bytesPerLine() / 4);
  info.bmiHeader.biHeight = -part.height();
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

}  // namespace

bool SendParts(QWindow& window, const QImage& image, const std::vector<QRect>& parts) {
  const HWND handle = NativeWindow(window);
  const HDC screen = handle == nullptr ? nullptr : GetDC(handle);
  if (screen == nullptr) return false;
  for (const QRect& part : parts) {
    if (part.isEmpty()) continue;  // beyond the window's edge
    const BITMAPINFO info = Describe(image, part);
    SetDIBitsToDevice(screen, part.x(), part.y(), static_cast<DWORD>(part.width()),
                      static_cast<DWORD>(part.height()), part.x(), 0, 0,
                      static_cast<UINT>(part.height()), image.constScanLine(part.y()), &info,
                      DIB_RGB_COLORS);
  }
  ReleaseDC(handle, screen);
  return true;
}

}  // namespace starfolds
