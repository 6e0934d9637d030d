#!/bin/sh
# with_xvfb.sh SCREEN MANAGER COMMAND...
# Runs COMMAND on an X server of its own with one screen (such as 1920x1080x24) and with the window
# manager MANAGER: "openbox" or "none". The exit code is the command's. The server picks a free
# display by itself and does not start afresh when its last client leaves, which would throw out
# clients that are just connecting.
set -u
screen=$1
manager=$2
shift 2

# wait_for FILE WHAT: until the file is not empty.
wait_for() {
  tries=0
  until [ -s "$1" ]; do
    tries=$((tries + 1))
    if [ "$tries" -gt 400 ]; then
      echo "the $2 does not start" >&2
      exit 99
    fi
    sleep 0.025
  done
}

folder=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp -noreset 3>"$folder/display" 2>/dev/null &
server=$!
manager_process=
trap 'kill $manager_process $server 2>/dev/null; wait; rm -r "$folder"' EXIT
trap 'exit 143' HUP INT TERM
wait_for "$folder/display" "X server"
DISPLAY=:$(cat "$folder/display")
export DISPLAY
export QT_QPA_PLATFORM=xcb
export XDG_CONFIG_HOME="$folder" # nobody's settings
unset WAYLAND_DISPLAY
# Heard by builds with the leak check only.
LSAN_OPTIONS=suppressions=$(dirname "$0")/outside_leaks.supp:print_suppressions=0
export LSAN_OPTIONS

# A window that comes up while the manager is still starting may never be shown. Openbox runs the
# command when it is done.
if [ "$manager" = openbox ]; then
  openbox --startup "sh -c 'echo done >$folder/manager'" >/dev/null 2>&1 &
  manager_process=$!
  wait_for "$folder/manager" "window manager"
fi

"$@"
