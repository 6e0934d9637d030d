#!/bin/bash
# with_sway.sh COMMAND...: runs COMMAND on a Wayland compositor of its own, sway, with two outputs
# without hardware. The exit code is the command's.
set -u
folder=$(mktemp -d)
mkdir -m 700 "$folder/runtime"
compositor=
trap 'kill -9 $compositor 2>/dev/null; wait; rm -r "$folder"' EXIT
trap 'exit 143' HUP INT TERM

# Sway refuses to run as root.
other_user=()
if [ "$(id -u)" = 0 ]; then
  other_user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
  chown 65534:65534 "$folder" "$folder/runtime"
fi
cat >"$folder/config" <<'CONFIG'
xwayland disable
default_border none
output HEADLESS-1 resolution 640x480 position 0 0
output HEADLESS-2 resolution 500x400 position 640 0
CONFIG
unset DISPLAY WAYLAND_DISPLAY SWAYSOCK
export XDG_RUNTIME_DIR=$folder/runtime
"${other_user[@]}" env HOME="$folder" WLR_BACKENDS=headless WLR_HEADLESS_OUTPUTS=2 \
  WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
  sway --config "$folder/config" >"$folder/log" 2>&1 &
compositor=$!

# The socket of swaymsg is the last to be created.
for _ in $(seq 1 1200); do
  SWAYSOCK=$(echo "$XDG_RUNTIME_DIR"/sway-ipc.*.sock)
  [ -S "$SWAYSOCK" ] && swaymsg --socket "$SWAYSOCK" -t get_outputs >/dev/null 2>&1 && break
  kill -0 "$compositor" 2>/dev/null || break
  sleep 0.025
done
WAYLAND_DISPLAY=$(basename "$(ls "$XDG_RUNTIME_DIR"/wayland-? 2>/dev/null)")
if [ ! -S "$SWAYSOCK" ] || [ -z "$WAYLAND_DISPLAY" ]; then
  cat "$folder/log" >&2
  exit 99
fi
export SWAYSOCK WAYLAND_DISPLAY QT_QPA_PLATFORM=wayland COMPOSITOR=$compositor
export XDG_CONFIG_HOME=$folder/settings # nobody's settings
# The leaks of Qt's plug-in are not this program's; its own are found on X11.
export ASAN_OPTIONS=detect_leaks=0
"$@"
