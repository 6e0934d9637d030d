#!/bin/sh
# with_xvfb.sh SCREEN MANAGER COMMAND...
# Runs COMMAND on an X server of its own with one screen (such as 1920x1080x24) and with the window
# manager MANAGER, or without one ("none"). The exit code is the command's. The server picks a free
# display by itself and does not start afresh when its last client leaves, which would throw out
# clients that are just connecting.
set -u
screen=$1
manager=$2
shift 2

display_file=$(mktemp)
Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp -noreset 3>"$display_file" 2>/dev/null &
server=$!
manager_process=
trap 'kill $manager_process $server 2>/dev/null; wait; rm -f "$display_file"' EXIT

tries=0
until [ -s "$display_file" ]; do
  tries=$((tries + 1))
  if [ "$tries" -gt 200 ]; then
    echo "the X server does not start" >&2
    exit 99
  fi
  sleep 0.05
done
DISPLAY=:$(cat "$display_file")
export DISPLAY
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
# Heard by builds with the leak check only.
LSAN_OPTIONS=suppressions=$(dirname "$0")/outside_leaks.supp:print_suppressions=0
export LSAN_OPTIONS

if [ "$manager" != none ]; then
  "$manager" >/dev/null 2>&1 &
  manager_process=$!
  tries=0
  until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    tries=$((tries + 1))
    if [ "$tries" -gt 200 ]; then
      echo "the window manager does not start" >&2
      exit 99
    fi
    sleep 0.05
  done
fi

"$@"
