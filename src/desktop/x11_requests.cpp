#include "desktop/x11_requests.h"

#include <sys/uio.h>
#include <xcb/xcbext.h>

#include <algorithm>

namespace starfolds {
namespace {

/// Points or blocks of one request: every server accepts requests of up to 65535 words.
constexpr std::size_t kMostShapes = 0x4000;

/// Events and replies have only the lower 16 bits of a request's number, so libxcb loses count
/// without a reply in 65536 requests.
constexpr std::size_t kMostUnanswered = 0x4000;

constexpr std::size_t kWord = 4;

/// Called by libxcb when it needs the socket back. Nothing is kept back here.
void ReturnSocket(void* /*closure*/) {}

template <class Data>
void AppendData(const Data& data, PointDrawing& drawing) {
  const auto* const bytes = reinterpret_cast<const std::byte*>(&data);
  drawing.Bytes.insert(drawing.Bytes.end(), bytes, bytes + sizeof data);
}

/// Appends a request, whose `dataBytes` bytes of data follow.
template <class Request>
void Append(Request request, std::size_t dataBytes, PointDrawing& drawing) {
  request.length = static_cast<std::uint16_t>((sizeof request + dataBytes) / kWord);
  AppendData(request, drawing);
  ++drawing.Requests;
}

}  // namespace

void X11Requests::SetForeground(std::uint32_t colour, PointDrawing& drawing) const {
  Append(xcb_change_gc_request_t{XCB_CHANGE_GC, 0, 0, context_, XCB_GC_FOREGROUND}, sizeof colour,
         drawing);
  AppendData(colour, drawing);
}

void X11Requests::DrawPoints(std::span<const PixelPlace> places, PointDrawing& drawing) const {
  while (!places.empty()) {
    const auto part = places.first(std::min(kMostShapes, places.size()));
    Append(xcb_poly_point_request_t{XCB_POLY_POINT, XCB_COORD_MODE_ORIGIN, 0, drawable_, context_},
           part.size() * sizeof(xcb_point_t), drawing);
    for (const PixelPlace place : part) {
      AppendData(xcb_point_t{static_cast<std::int16_t>(ColumnOf(place)),
                             static_cast<std::int16_t>(RowOf(place))},
                 drawing);
    }
    places = places.subspan(part.size());
  }
}

void X11Requests::DrawBlocks(std::span<const PixelPlace> places, const PixelScale& scale,
                             PointDrawing& drawing) const {
  while (!places.empty()) {
    const auto part = places.first(std::min(kMostShapes, places.size()));
    Append(xcb_poly_fill_rectangle_request_t{XCB_POLY_FILL_RECTANGLE, 0, 0, drawable_, context_},
           part.size() * sizeof(xcb_rectangle_t), drawing);
    for (const PixelPlace place : part) {
      const int left = scale.Columns.Begin(ColumnOf(place));
      const int top = scale.Rows.Begin(RowOf(place));
      const int width = scale.Columns.End(ColumnOf(place)) - left;
      const int height = scale.Rows.End(RowOf(place)) - top;
      AppendData(
          xcb_rectangle_t{static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                          static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height)},
          drawing);
    }
    places = places.subspan(part.size());
  }
}

void X11Requests::Send(const PointDrawing& drawing) {
  unanswered_ += drawing.Requests;
  if (unanswered_ > kMostUnanswered) {
    xcb_discard_reply(connection_, xcb_get_input_focus(connection_).sequence);
    unanswered_ = drawing.Requests;
  }
  std::uint64_t sent = 0;
  if (xcb_take_socket(connection_, ReturnSocket, nullptr, 0, &sent) != 0) {
    // xcb_writev only reads, but its type does not say so.
    iovec all{const_cast<std::byte*>(drawing.Bytes.data()), drawing.Bytes.size()};
    xcb_writev(connection_, &all, 1, drawing.Requests);
  }
}

}  // namespace starfolds
