// Requests to the X server that are written in one piece.
#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <span>

#include "desktop/pixel_scale.h"
#include "desktop/point_painter.h"
#include "platform/surface.h"

namespace starfolds {

/// The drawing requests of a frame, in the format of the X protocol. A frame has some 1700 small
/// ones: libxcb would lock, copy and count each of them, and write them 16 KiB at a time. Here all
/// of them are written at once, which libxcb provides for (`xcb_take_socket`).
class X11Requests {
 public:
  X11Requests(xcb_connection_t* connection, xcb_drawable_t drawable, xcb_gcontext_t context)
      : connection_(connection), drawable_(drawable), context_(context) {}

  // These append to a drawing.

  /// Sets the colour of the context, a pixel value of the server.
  void SetForeground(std::uint32_t colour, PointDrawing& drawing) const;
  /// Draws single pixels. Any number of places.
  void DrawPoints(std::span<const PixelPlace> places, PointDrawing& drawing) const;
  /// Draws the blocks of these places on a screen of another scale.
  void DrawBlocks(std::span<const PixelPlace> places, const PixelScale& scale,
                  PointDrawing& drawing) const;

  /// Writes the requests. Does nothing if the connection is broken.
  void Send(const PointDrawing& drawing);

 private:
  xcb_connection_t* connection_;
  xcb_drawable_t drawable_;
  xcb_gcontext_t context_;
  std::size_t unanswered_ = 0;  // requests since one that has a reply
};

}  // namespace starfolds
