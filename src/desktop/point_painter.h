// Drawing single pixels on the screen without sending pictures of them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "desktop/pixel_scale.h"
#include "platform/surface.h"

class QWindow;

namespace starfolds {

/// Draws the pixels of a journal into a window, colour by colour, so that a frame costs what it
/// changed: a star is a few bytes, and the part of the picture that it stands in some kilobytes.
class PointPainter {
 public:
  virtual ~PointPainter() = default;

  /// `area`: the physical pixels that a picture of these places would have. False: nothing was
  /// drawn, as that picture is the cheaper way.
  virtual bool Draw(const Surface& surface, std::span<const Surface::PixelPlace> places,
                    const PixelScale& scale, std::int64_t area) = 0;
};

/// Nothing where the window system cannot do that, or shows colours in another way. The window
/// exists there already.
std::unique_ptr<PointPainter> MakePointPainter(QWindow& window);

}  // namespace starfolds
