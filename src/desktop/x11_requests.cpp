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

}  // namespace

template <class Request>
void X11Requests::Append(Request request, std::size_t dataBytes) {
  request.length = static_cast<std::uint16_t>((sizeof request + dataBytes) / kWord);
  AppendData(request);
  ++count_;
}

template <class Data>
void X11Requests::AppendData(const Data& data) {
  const auto* const bytes = reinterpret_cast<const std::byte*>(&data);
  bytes_.insert(bytes_.end(), bytes, bytes + sizeof data);
}

void X11Requests::SetForeground(std::uint32_t colour) {
  Append(xcb_change_gc_request_t{XCB_CHANGE_GC, 0, 0, context_, XCB_GC_FOREGROUND}, sizeof colour);
  AppendData(colour);
}

void X11Requests::DrawPoints(std::span<const PixelPlace> places) {
  while (!places.empty()) {
    const auto part = places.first(std::min(kMostShapes, places.size()));
    Append(xcb_poly_point_request_t{XCB_POLY_POINT, XCB_COORD_MODE_ORIGIN, 0, drawable_, context_},
           part.size() * sizeof(xcb_point_t));
    for (const PixelPlace place : part) {
      AppendData(xcb_point_t{static_cast<std::int16_t>(ColumnOf(place)),
                             static_cast<std::int16_t>(RowOf(place))});
    }
    places = places.subspan(part.size());
  }
}

void X11Requests::DrawBlocks(std::span<const PixelPlace> places, const PixelScale& scale) {
  while (!places.empty()) {
    const auto part = places.first(std::min(kMostShapes, places.size()));
    Append(xcb_poly_fill_rectangle_request_t{XCB_POLY_FILL_RECTANGLE, 0, 0, drawable_, context_},
           part.size() * sizeof(xcb_rectangle_t));
    for (const PixelPlace place : part) {
      const int left = scale.Columns.Begin(ColumnOf(place));
      const int top = scale.Rows.Begin(RowOf(place));
      const int width = scale.Columns.End(ColumnOf(place)) - left;
      const int height = scale.Rows.End(RowOf(place)) - top;
      AppendData(xcb_rectangle_t{static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                                 static_cast<std::uint16_t>(width),
                                 static_cast<std::uint16_t>(height)});
    }
    places = places.subspan(part.size());
  }
}

void X11Requests::Send() {
  if (bytes_.empty()) return;
  unanswered_ += count_;
  if (unanswered_ > kMostUnanswered) {
    xcb_discard_reply(connection_, xcb_get_input_focus(connection_).sequence);
    unanswered_ = count_;
  }
  std::uint64_t sent = 0;
  if (xcb_take_socket(connection_, ReturnSocket, nullptr, 0, &sent) != 0) {
    iovec all{bytes_.data(), bytes_.size()};
    xcb_writev(connection_, &all, 1, count_);
  }
  bytes_.clear();
  count_ = 0;
}

}  // namespace starfolds
