// Requests to the X server that are written in one piece.
#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "desktop/pixel_scale.h"
#include "platform/surface.h"

namespace starfolds {

/// The drawing requests of a frame, in the format of the X protocol. A frame has some 1700 small
/// ones: libxcb would lock, copy and count each of them, and write them 16 KiB at a time. Here all
/// of them are written at once, which libxcb provides for (`xcb_take_socket`).
class X11Requests {
 public:
  X11Requests(xcb_connection_t* connection, xcb_drawable_t drawable, xcb_gcontext_t context)
      : connection_(connection), drawable_(drawable), context_(context) {}

  /// Sets the colour of the context, a pixel value of the server.
  void SetForeground(std::uint32_t colour);
  /// Draws single pixels. Any number of places.
  void DrawPoints(std::span<const PixelPlace> places);
  /// Draws the blocks of these places on a screen of another scale.
  void DrawBlocks(std::span<const PixelPlace> places, const PixelScale& scale);

  /// Writes the requests and forgets them. Does nothing if the connection is broken.
  void Send();

 private:
  template <class Request>
  void Append(Request request, std::size_t dataBytes);
  template <class Data>
  void AppendData(const Data& data);

  xcb_connection_t* connection_;
  xcb_drawable_t drawable_;
  xcb_gcontext_t context_;
  std::vector<std::byte> bytes_;
  std::size_t count_ = 0;       // requests in `bytes_`
  std::size_t unanswered_ = 0;  // requests since one that has a reply
};

}  // namespace starfolds
