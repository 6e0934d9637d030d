#!/bin/bash
# states_test.sh HOST_WINDOW: what the window manager is told of the windows, and how it shows them.
set -u
host=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"

# The first window that the manager lists.
client() { xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*' | head -1; }

# expect_state STATE: the manager comes to show the window in this state, within thirty seconds.
expect_state() {
  local state=
  for _ in $(seq 1 600); do
    state=$(xprop -id "$(client)" _NET_WM_STATE 2>/dev/null)
    [[ $state == *"_NET_WM_STATE_$1"* ]] && return
    sleep 0.05
  done
  fault "no state $1: $state"
}

resizable=Advanced/Adv_WinResize=1

start "$host" saver
expect_state FULLSCREEN
stop

# A background comes up below a window that is there, and leaves the focus where it is.
"$host" application $resizable General/AnimationType=0 >/dev/null 2>&1 &
other=$!
wait_for_stars
focused=$(xdotool getactivewindow)
start "$host" saver Advanced/Adv_DispBackG=1
for _ in $(seq 1 600); do
  stack=$(xprop -root _NET_CLIENT_LIST_STACKING | grep -o '0x[0-9a-f]*')
  [ "$(wc -l <<<"$stack")" = 2 ] && break
  sleep 0.05
done
state=$(xprop -id "$(head -1 <<<"$stack")" _NET_WM_STATE WM_HINTS)
[[ $state == *_NET_WM_STATE_BELOW*'input focus: False'* ]] || fault "at the bottom: $state"
[ "$(xdotool getactivewindow)" = "$focused" ] || fault "the background took the focus"
stop
running=$other
stop

stored=$(mktemp)
start "$host" application >"$stored"
expect_state FULLSCREEN
wait_for_stars
xdotool key Escape
expect_end "full screen"
grep -qx 'WindowState=2' "$stored" || fault "of a full screen is stored: $(cat "$stored")"
rm "$stored"

start "$host" application $resizable General/WindowState=2 General/AnimationType=0
expect_state MAXIMIZED_VERT
stop

[ "$faults" = 0 ] || exit 1
