// Draws single pixels on the screen without sending images.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "desktop/pixel_scale.h"
#include "platform/surface.h"

class QWindow;

namespace starfolds {

/// Requests to the window system, in its own format.
struct PointDrawing {
  std::vector<std::byte> Bytes;
  std::size_t Requests = 0;
};

/// Draws changed pixels into a window, grouped by colour, so that the cost of a frame
/// depends on what changed: a star is a few bytes, while the tile around it is some kilobytes.
class PointPainter {
 public:
  virtual ~PointPainter() = default;

  /// Makes a drawing of the changes, in place of what it contains. `area` is the number of physical
  /// pixels of the tiles that contain these pixels. False if sending the tiles is cheaper.
  virtual bool Prepare(std::span<const PixelChange> changes, const PixelScale& scale,
                       std::int64_t area, PointDrawing& drawing) = 0;

  virtual void Draw(const PointDrawing& drawing) = 0;
};

/// Null if the window system has no such requests or another pixel format. The native window must
/// exist.
std::unique_ptr<PointPainter> MakePointPainter(QWindow& window);

}  // namespace starfolds
