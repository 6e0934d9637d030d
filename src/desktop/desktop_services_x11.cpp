#include "desktop/desktop_services_x11.h"

#include <xcb/xcb.h>

#include <vector>

#include "desktop/other_programs.h"
#include "desktop/x11_connection.h"

namespace starfolds {
namespace {

/// Depth to which windows are searched without a window manager's list: the root's children are
/// programs' windows, or the frames around them.
constexpr int kTreeDepth = 3;

/// Maximum length of a property that is read, in units of four bytes.
constexpr std::uint32_t kPropertyRoom = 64 * 1024;

/// Tells the window manager that the request comes from the user.
constexpr std::uint32_t kSourcePager = 2;

class X11Desktop : public StartsOtherPrograms {
 public:
  X11Desktop(xcb_connection_t* connection, xcb_window_t root)
      : connection_(connection),
        root_(root),
        managerCheck_(InternAtom(connection, "_NET_SUPPORTING_WM_CHECK")),
        clientList_(InternAtom(connection, "_NET_CLIENT_LIST")),
        activeWindow_(InternAtom(connection, "_NET_ACTIVE_WINDOW")),
        windowName_(InternAtom(connection, "_NET_WM_NAME")),
        unlisted_(InternAtom(connection, kUnlistedMark)) {}

  bool WindowExists(const std::string& caption) override {
    return Find(caption) != XCB_WINDOW_NONE;
  }

  void BringToFront(const std::string& caption) override {
    const xcb_window_t window = Find(caption);
    if (window == XCB_WINDOW_NONE) return;
    if (HasManager()) {
      AskManagerToActivate(window);
    } else {
      RaiseAndFocus(window);
    }
    xcb_flush(connection_);
  }

  bool IsWindow(Long handle) override {
    if (handle <= 0) return false;
    const auto request = xcb_get_window_attributes(connection_, static_cast<xcb_window_t>(handle));
    return Ask(connection_, request, xcb_get_window_attributes_reply) != nullptr;
  }

 private:
  Answer<xcb_get_property_reply_t> Property(xcb_window_t window, xcb_atom_t name) {
    const auto request =
        xcb_get_property(connection_, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kPropertyRoom);
    return Ask(connection_, request, xcb_get_property_reply);
  }

  std::vector<xcb_window_t> WindowProperty(xcb_window_t window, xcb_atom_t name) {
    const auto reply = Property(window, name);
    if (!reply || reply->format != 32) return {};
    const auto* const begin = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {begin, begin + xcb_get_property_value_length(reply.get()) / 4};
  }

  std::string TextProperty(xcb_window_t window, xcb_atom_t name) {
    const auto reply = Property(window, name);
    if (!reply || reply->format != 8) return {};
    const auto* const text = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return {text, static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
  }

  std::string Caption(xcb_window_t window) {
    std::string caption = TextProperty(window, windowName_);
    return caption.empty() ? TextProperty(window, XCB_ATOM_WM_NAME) : caption;
  }

  /// A window manager that has crashed leaves its property on the root window. That of a running
  /// one names a window whose own property names that window.
  bool HasManager() {
    const auto mark = WindowProperty(root_, managerCheck_);
    return !mark.empty() && WindowProperty(mark.front(), managerCheck_) == mark;
  }

  std::vector<xcb_window_t> Children(xcb_window_t window) {
    const auto reply = Ask(connection_, xcb_query_tree(connection_, window), xcb_query_tree_reply);
    if (!reply) return {};
    const xcb_window_t* const begin = xcb_query_tree_children(reply.get());
    return {begin, begin + xcb_query_tree_children_length(reply.get())};
  }

  void CollectBelow(xcb_window_t window, int depth, std::vector<xcb_window_t>& found) {
    if (depth == 0) return;
    for (const xcb_window_t child : Children(window)) {
      found.push_back(child);
      CollectBelow(child, depth - 1, found);
    }
  }

  std::vector<xcb_window_t> TopLevelWindows() {
    if (HasManager()) return WindowProperty(root_, clientList_);
    std::vector<xcb_window_t> found;
    CollectBelow(root_, kTreeDepth, found);
    return found;
  }

  bool IsListed(xcb_window_t window) {
    const auto mark = Property(window, unlisted_);
    return !mark || mark->type == XCB_ATOM_NONE;
  }

  xcb_window_t Find(const std::string& caption) {
    for (const xcb_window_t window : TopLevelWindows()) {
      if (Caption(window) == caption && IsListed(window)) return window;
    }
    return XCB_WINDOW_NONE;
  }

  void AskManagerToActivate(xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = activeWindow_;
    message.data.data32[0] = kSourcePager;
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection_, 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
  }

  void RaiseAndFocus(xcb_window_t window) {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    DropErrors(connection_, xcb_map_window_checked(connection_, window));
    DropErrors(connection_, xcb_configure_window_checked(connection_, window,
                                                         XCB_CONFIG_WINDOW_STACK_MODE, &above));
    DropErrors(connection_, xcb_set_input_focus_checked(connection_, XCB_INPUT_FOCUS_PARENT, window,
                                                        XCB_CURRENT_TIME));
  }

  xcb_connection_t* connection_;
  xcb_window_t root_;
  xcb_atom_t managerCheck_;
  xcb_atom_t clientList_;
  xcb_atom_t activeWindow_;
  xcb_atom_t windowName_;
  xcb_atom_t unlisted_;
};

xcb_window_t RootOfFirstScreen(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

}  // namespace

std::unique_ptr<DesktopServices> MakeX11Desktop() {
  xcb_connection_t* const connection = ToolkitConnection();
  if (connection == nullptr) return nullptr;
  return std::make_unique<X11Desktop>(connection, RootOfFirstScreen(connection));
}

}  // namespace starfolds
