// Windows of a program that hosts savers, made by a test without the toolkit.
#pragma once

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/x11_connection.h"

namespace starfolds {

using ServerConnection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

inline ServerConnection ConnectToServer() {
  return {xcb_connect(nullptr, nullptr), &xcb_disconnect};
}

/// A window that covers others, without a window manager's consent.
class HostWindow {
 public:
  /// `server` outlives the window.
  HostWindow(const ServerConnection& server, int width, int height,
             xcb_window_class_t kind = XCB_WINDOW_CLASS_INPUT_OUTPUT)
      : connection_(server.get()), window_(xcb_generate_id(server.get())) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    const std::uint32_t alone = 1;
    xcb_create_window(connection_, 0, window_, screen.root, 100, 100,
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                      kind, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &alone);
    xcb_map_window(connection_, window_);
    Settle();
  }
  ~HostWindow() { Destroy(); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  void Destroy() {
    if (window_ == XCB_WINDOW_NONE) return;
    xcb_destroy_window(connection_, window_);
    window_ = XCB_WINDOW_NONE;
    Settle();
  }

  void Resize(std::uint32_t width, std::uint32_t height) const {
    const std::uint32_t size[] = {width, height};
    xcb_configure_window(connection_, window_, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         size);
    Settle();
  }

  void ListenToInput() const {
    const std::uint32_t mask =
        XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_POINTER_MOTION;
    xcb_change_window_attributes(connection_, window_, XCB_CW_EVENT_MASK, &mask);
    Settle();
  }

  /// Events since `ListenToInput`.
  int InputHeard() {
    while (xcb_generic_event_t* const event = xcb_poll_for_event(connection_)) {
      const int kind = event->response_type & 0x7F;
      heard_ += kind == XCB_KEY_PRESS || kind == XCB_BUTTON_PRESS || kind == XCB_MOTION_NOTIFY;
      std::free(event);
    }
    return heard_;
  }

  xcb_window_t Id() const { return window_; }
  std::string Number() const { return std::to_string(window_); }
  std::string HexNumber() const {
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", window_);
    return text;
  }

  /// The pixels of the window on the screen that are not black, those inside it included.
  int Lit(int width, int height) const {
    const auto request = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0,
                                       static_cast<std::uint16_t>(width),
                                       static_cast<std::uint16_t>(height), ~std::uint32_t{0});
    const Answer<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection_, request, nullptr));
    if (!reply) return 0;
    const auto* const words = reinterpret_cast<std::uint32_t*>(xcb_get_image_data(reply.get()));
    return static_cast<int>(
        std::count_if(words, words + xcb_get_image_data_length(reply.get()) / 4,
                      [](std::uint32_t word) { return (word & 0xFFFFFFU) != 0; }));
  }

  /// A window inside this one that covers all of it.
  xcb_window_t AddChild() const {
    const xcb_window_t child = xcb_generate_id(connection_);
    xcb_create_window(connection_, 0, child, window_, 0, 0, 2000, 2000, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection_, child);
    Settle();
    return child;
  }

  /// The windows inside this one, the lowest first.
  std::vector<xcb_window_t> Children() const {
    const Answer<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window_), nullptr));
    if (!tree) return {};
    const xcb_window_t* const begin = xcb_query_tree_children(tree.get());
    return {begin, begin + xcb_query_tree_children_length(tree.get())};
  }

  /// Width and height of the window inside this one; nothing while there is none.
  std::pair<int, int> GuestSize() const {
    const std::vector<xcb_window_t> children = Children();
    if (children.empty()) return {};
    const Answer<xcb_get_geometry_reply_t> place(xcb_get_geometry_reply(
        connection_, xcb_get_geometry(connection_, children.front()), nullptr));
    if (!place) return {};
    return {place->width, place->height};
  }

 private:
  void Settle() const {
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }

  xcb_connection_t* connection_;
  xcb_window_t window_;
  int heard_ = 0;
};

}  // namespace starfolds
