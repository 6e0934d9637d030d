// The toolkit's connection to an X server, and replies of the server.
#pragma once

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace starfolds {

/// The connection that Qt's windows belong to; null if the application does not run on an X server.
inline xcb_connection_t* ToolkitConnection() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

/// Replies of libxcb are allocated by malloc.
struct Freed {
  void operator()(void* memory) const { std::free(memory); }
};

/// A reply; null if the server returned an error, for example because the window was destroyed in
/// the meantime.
template <class Reply>
using Answer = std::unique_ptr<Reply, Freed>;

/// Waits for the reply to `request`. `reply` is the function of libxcb for it. Errors are discarded
/// here: otherwise they would reach Qt's event loop, which prints them.
template <class Reply, class Request>
Answer<Reply> Ask(xcb_connection_t* connection, Request request,
                  Reply* (*reply)(xcb_connection_t*, Request, xcb_generic_error_t**)) {
  xcb_generic_error_t* error = nullptr;
  Answer<Reply> answer(reply(connection, request, &error));
  std::free(error);
  return answer;
}

inline void DropErrors(xcb_connection_t* connection, xcb_void_cookie_t checkedRequest) {
  std::free(xcb_request_check(connection, checkedRequest));
}

/// The atom of a name; `XCB_ATOM_NONE` if the connection is broken.
inline xcb_atom_t InternAtom(xcb_connection_t* connection, std::string_view name) {
  const auto request =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = Ask(connection, request, xcb_intern_atom_reply);
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Property of windows that must not be found by their caption.
inline constexpr std::string_view kUnlistedMark = "_STARFOLDS_UNLISTED";

}  // namespace starfolds
