#!/bin/bash
# saver_test.sh SAVER HOST TEMPLATE: what Windows asks of a screen saver, under Wine. DISPLAY names an X
# server of our own, WINEPREFIX a folder of Wine that nothing else uses.
set -u
saver=$1 host=$2 template=$3
. "$(dirname "$0")/../desktop/screen_tools.sh"
# Parts of the two monitors that the host's white window does not cover.
left=400x300+0+300
right=400x600+400+0
folder=$(mktemp -d)
trap 'kill -9 $running 2>/dev/null; wineserver -k; rm -r "$folder"' EXIT
wineserver -k # it would keep the display of an earlier test
rm -rf "$WINEPREFIX"/drive_c/users/*/AppData/Roaming/Tessellane

# Lines of the host go to a file, because it also writes without being asked.
start_host() {
  lines=$folder/lines
  rm -f "$folder/questions" "$lines"
  mkfifo "$folder/questions"
  wine "$host" <"$folder/questions" >"$lines" 2>/dev/null &
  host_process=$!
  exec 9>"$folder/questions"
  await 'the host' grep -q '^window ' "$lines"
  window=$(tr -d '\r' <"$lines" | sed -n 's/^window //p')
}

# await WHAT COMMAND...: until the command succeeds.
await() {
  local what=$1
  shift
  for _ in $(seq 1 300); do
    "$@" && return
    sleep 0.1
  done
  fault "$what: waited in vain for: $*"
}

answered() { [ "$(grep -c '^done' "$lines")" -gt "$1" ]; }

# ask LINE: prints what the host answers.
ask() {
  local before skip
  before=$(grep -c '^done' "$lines")
  skip=$(wc -l <"$lines")
  echo "$1" >&9
  await "$1" answered "$before"
  tail -n +$((skip + 1)) "$lines" | tr -d '\r'
}

# has QUESTION PATTERN: whether a line of the answer matches.
has() { ask "$1" | grep -qE "$2"; }
lacks() { ! has "$1" "$2"; }

# press KEY COMMAND...: until the command succeeds. A window can be in front before it takes keys.
press() {
  local key=$1 tries
  shift
  for tries in $(seq 1 300); do
    ((tries % 50 != 1)) || xdotool key "$key"
    sleep 0.1
    "$@" && return
  done
  fault "$key: waited in vain for: $*"
}

two_monitors() {
  xrandr --setmonitor left 400/100x600/150+0+0 screen
  xrandr --setmonitor right 400/100x600/150+400+0 none
} >/dev/null

start_saver() {
  start wine "$saver" /s
  await '/s' has windows ' 0,0 400x600 topmost foreground .*\[TSLN:Starfolds 4.1a\]'
  wait_for_stars "$left"
  wait_for_stars "$right"
}

moves() {
  local x
  for x in 300 310 320 330 340 350; do
    xdotool mousemove "$x" 300
    sleep 0.05
  done
}

test_saver() {
  local input
  for input in 'xdotool key a' 'xdotool mousemove 600 300 click 1' moves; do
    xdotool mousemove 100 500
    start_saver
    $input
    expect_end "/s and $input"
    await "a window is left after $input" lacks windows ' 400x600 '
  done
}

test_end_of_session() {
  start_saver
  has session 'the session may end' || fault 'the saver keeps the session'
  expect_end 'the end of the session'
}

test_saver_windows() {
  start_saver
  has windows ' 400,0 400x600 topmost owner' || fault "no second window, or it has the focus"
  timeout 60 wine "$saver" /S 2>/dev/null || fault "a second saver: $?"
  [ "$(ask windows | grep -c ' 400x600 ')" = 2 ] || fault "a second saver has windows"
  kill -9 "$running" # without a chance to end the other process
  wait "$running" 2>/dev/null
  running=
  await 'the second monitor without its owner' lacks windows ' 400x600 '
}

test_settings() {
  start wine "$saver" "/c:$window"
  await '/c' has windows "owner=$window \[Starfold Properties\]"
  has windows 'disabled owner=0 \[Host\]' || fault "the host takes input below the dialog"
  await 'the welcome' has windows 'foreground .*\[Starfolds\]'
  press Return has windows 'foreground .*\[Starfold Properties\]'
  timeout 60 wine "$saver" 2>/dev/null || fault "a second dialog: $?"
  [ "$(ask windows | grep -c 'Starfold Properties')" = 1 ] || fault "a second dialog has a window"
  press alt+F4 has_ended "$running"
  expect_end '/c'
  await 'the host after /c' has windows 'foreground owner=0 \[Host\]'
}

test_settings_of_killed_host() {
  start wine "$saver" /C "$window"
  await '/C' has windows "owner=$window \[Starfold Properties\]"
  kill -9 "$host_process"
  expect_end '/C and the end of its program'
}

start_preview() {
  start wine "$saver" /p "$window"
  await '/p' has children ' 0,0 152x112 disabled'
}

test_preview() {
  start_preview
  has windows 'foreground .*\[Host\]' || fault "the preview has taken the focus"
  xdotool mousemove 150 180 click 1
  await 'a click on the preview' grep -q '^button' "$lines"
  ask 'size 304 224' >/dev/null
  await 'the preview in a larger window' has children ' 0,0 304x224 disabled'
  expect_running '/p in a larger window'
  ask 'size 152 112' >/dev/null
  ask destroy >/dev/null
  expect_end '/p and the end of its window'
}

test_preview_of_killed_host() {
  start_preview
  kill -9 "$host_process"
  expect_end '/p and the end of its program'
}

# Nothing is shown, and nothing waits.
test_nothing_to_show() {
  local switch
  for switch in '/p 999999' /p "/p:$window" '/a 1'; do
    # shellcheck disable=SC2086 # two arguments
    timeout 60 wine "$saver" $switch 2>/dev/null || fault "$switch: $?"
  done
}

test_names() {
  mkdir "$folder/Größe"
  cp "$saver" "$folder/Größe/stars.exe" # an application, because no "stars.scr" is beside it
  start wine "Z:$folder/Größe/stars.exe" /s
  await 'an application' has windows ' 0,0 400x600 foreground owner=0 \[stars\]'
  press Escape has_ended "$running"
  expect_end 'an application'
  cp "$template" "$folder/Größe Ω.sfd"
  start wine "$saver" --window --full-screen "Z:$folder/Größe Ω.sfd"
  await 'a template' has windows ' 0,0 400x600 foreground'
  wait_for_stars "$left"
  press Escape has_ended "$running"
  expect_end 'a template'
  start wine "$saver" --window "Z:$folder/None.sfd"
  await 'a message about the name' has windows 'foreground .*\[Starfolds\]'
  press Return has_ended "$running"
  expect_end 'a template that does not exist' 2
}

two_monitors
start_host
test_saver
test_end_of_session
test_saver_windows
test_settings
test_nothing_to_show
test_preview
start_host
test_names
test_preview_of_killed_host
start_host
test_settings_of_killed_host
[ "$faults" = 0 ]
