#!/bin/bash
# endings_test.sh HOST_WINDOW: what ends the saver and the application, and what does not, by real
# input on an X server.
set -u
host=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"

# Moves the pointer NUMBER times, to another place each time.
place=400
moves() {
  for _ in $(seq "$1"); do
    place=$((place + 10))
    xdotool mousemove "$place" 300
    sleep 0.03
  done
}

double_click() { xdotool click --repeat 2 --delay 60 1; }

# ends INPUT WINDOW [SETTING]...: the input ends this window.
ends() {
  local input=$1
  shift
  xdotool mousemove 300 300
  start "$host" "$@"
  wait_for_stars
  $input
  expect_end "$input, $*"
}

# stays INPUT WINDOW [SETTING]...: the input does not end it.
stays() {
  local input=$1
  shift
  xdotool mousemove 300 300
  start "$host" "$@"
  wait_for_stars
  $input
  sleep 0.3
  expect_running "$input, $*"
  stop
}

disturb_all() {
  xdotool key a key Escape click 1
  sleep 0.6 # or the next click would be the second of a double click
  xdotool click 3
  moves 8
}

background=Advanced/Adv_DispBackG=1
keep_still=Advanced/Adv_MouseMove=1
message=Advanced/LockMessage=Back_at_ten

ends 'xdotool key a' saver $keep_still
ends 'xdotool click 1' saver $keep_still
ends 'xdotool click 3' saver
ends 'xdotool click 4' saver $keep_still
stays 'xdotool click 4' saver $background
nothing_meant='xdotool key shift key XF86AudioRaiseVolume key Caps_Lock key Caps_Lock'
stays "$nothing_meant" saver
ends 'moves 20' saver # a busy machine merges some of them
stays 'moves 3' saver
stays 'moves 20' saver $keep_still
stays disturb_all saver $background
ends double_click saver $background
stays 'moves 20' saver $background

# A key that was held before the saver came, and is for a second.
hold_on() { sleep 1; }
xdotool keydown a
stays hold_on saver
xdotool keyup a

# The message takes no input for itself.
ends 'xdotool mousemove 400 15 click 1' saver $keep_still $message

ends 'xdotool key Escape' application
stays 'moves 20' application
stays 'xdotool key F5 key F5 click 1 key a' application

# asks_for_properties NUMBER INPUT: so often does the input open the application's properties.
asks_for_properties() {
  local asked
  start "$host" application >"$output"
  wait_for_stars
  $2
  sleep 0.3
  xdotool key Escape
  expect_end "$2"
  asked=$(grep -c properties "$output")
  [ "$asked" = "$1" ] || fault "$2: opens the properties $asked times"
}
output=$(mktemp)
asks_for_properties 0 "$nothing_meant"
asks_for_properties 2 'xdotool key a key shift+a'
rm "$output"

[ "$faults" = 0 ] || exit 1
