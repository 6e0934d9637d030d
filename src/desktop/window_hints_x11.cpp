#include "desktop/window_hints.h"

#include <xcb/xcb.h>

#include <QWindow>
#include <array>

#include "desktop/x11_connection.h"

namespace starfolds {

void MarkUnlisted(QWindow& window) {
  xcb_connection_t* const connection = ToolkitConnection();
  if (connection == nullptr) return;
  const std::uint32_t yes = 1;
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                      InternAtom(connection, kUnlistedMark), XCB_ATOM_CARDINAL, 32, 1, &yes);
}

/// Qt keeps existing states and adds its own when it shows the window.
void MarkAsBackground(QWindow& window) {
  xcb_connection_t* const connection = ToolkitConnection();
  if (connection == nullptr) return;
  const std::array<xcb_atom_t, 4> states{InternAtom(connection, "_NET_WM_STATE_BELOW"),
                                         InternAtom(connection, "_NET_WM_STATE_STICKY"),
                                         InternAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                         InternAtom(connection, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                      InternAtom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(),
                      states.data());
  // Some window managers put windows on all workspaces by this, others by the state.
  const std::uint32_t allWorkspaces = 0xFFFFFFFFU;
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                      InternAtom(connection, "_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 32, 1,
                      &allWorkspaces);
}

void SetOwner(QWindow& window, QWindow* owner) { window.setTransientParent(owner); }

}  // namespace starfolds
