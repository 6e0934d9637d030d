// Draws single pixels on the screen without sending images.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "desktop/pixel_scale.h"
#include "platform/surface.h"

class QWindow;

namespace starfolds {

/// Draws changed pixels into a window, grouped by colour, so that the cost of a frame
/// depends on what changed: a star is a few bytes, while the tile around it is some kilobytes.
class PointPainter {
 public:
  virtual ~PointPainter() = default;

  /// `area` is the number of physical pixels of the tiles that contain these pixels. False if
  /// nothing was drawn, because sending the tiles is cheaper.
  virtual bool Draw(std::span<const PixelChange> changes, const PixelScale& scale,
                    std::int64_t area) = 0;
};

/// Null if the window system has no such requests or another pixel format. The native window must
/// exist.
std::unique_ptr<PointPainter> MakePointPainter(QWindow& window);

}  // namespace starfolds
