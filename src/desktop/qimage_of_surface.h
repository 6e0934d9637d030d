// A surface as a picture of Qt.
#pragma once

#include <QImage>

#include "platform/surface.h"

namespace starfolds {

/// A part of the surface; `rect` must be on it.
QImage ImageOf(const Surface& surface, const QRect& rect);

/// The whole surface.
QImage ImageOf(const Surface& surface);

}  // namespace starfolds
