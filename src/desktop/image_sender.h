// Sends the changed parts of a window's image to the screen.
#pragma once

#include <QRect>
#include <vector>

class QImage;
class QWindow;

namespace starfolds {

/// Sends each part by itself, where Qt would send the rectangle around all of them. `parts` are
/// rectangles of `image`, which has the size of the window and 32 bits per pixel, in physical
/// pixels; empty ones are ignored. False if nothing was sent, because Qt does this well on this
/// window system.
bool SendParts(QWindow& window, const QImage& image, const std::vector<QRect>& parts);

}  // namespace starfolds
