#include "desktop/qimage_of_surface.h"

#include <algorithm>

namespace starfolds {

QImage ImageOf(const Surface& surface, const QRect& rect) {
  QImage image(rect.size(), QImage::Format_RGB32);
  for (int y = 0; y < rect.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    const std::span words(line, static_cast<std::size_t>(rect.width()));
    surface.CopyRow(rect.x(), rect.y() + y, words);
    std::ranges::transform(words, words.begin(), ScreenWord);
  }
  return image;
}

QImage ImageOf(const Surface& surface) {
  return ImageOf(surface, QRect(0, 0, surface.Width(), surface.Height()));
}

}  // namespace starfolds
