#!/bin/bash
# sway_test.sh STARFOLDS STARFOLDS-IDLE: the saver, its dialogs and the idle service under
# with_sway.sh.
set -u
program=$1
idle=$2
. "$(dirname "$0")/../desktop/screen_tools.sh"
picture=$XDG_RUNTIME_DIR/picture
export DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent

# Within thirty seconds the command succeeds.
eventually() {
  for _ in $(seq 1 300); do
    "$@" && return
    sleep 0.1
  done
  return 1
}

# Many colour bytes of the output, but not most, are above black: without a window it is grey.
grab() { grim -t ppm -o "$1" - | convert ppm:- -depth 8 rgb:"$picture"; }
shows_stars() {
  local lit black
  grab "$1"
  lit=$(tr -d '\0' <"$picture" | wc -c)
  black=$(tr -cd '\0' <"$picture" | wc -c)
  [ "$lit" -gt 300 ] && [ "$black" -gt "$lit" ]
}
expect_stars() { eventually shows_stars "$1" || fault "$2: no stars on $1"; }

has_window() { swaymsg -t get_tree | grep -qF "\"name\": \"$1\""; }
has_windows() { [ "$(swaymsg -t get_tree | grep -c '"app_id": "starfolds"')" = "$1" ]; }

companions() { pgrep -P "$running"; }
has_companions() { [ "$(companions | wc -l)" = "$1" ]; }

# The keyboard of wtype exists only while it runs, so its first key may come too early for a client.
press_until_end() {
  for _ in $(seq 1 30); do
    has_ended "$running" && break
    wtype -s 500 a
  done
  expect_end "$1"
}

# Every output has a universe of its own, and one that is added gets one, too.
start "$program" --saver --seed 5
expect_stars HEADLESS-1 'the start'
expect_stars HEADLESS-2 'the start'
eventually has_companions 1 || fault "companions: $(companions)"
swaymsg create_output >/dev/null
eventually has_companions 2 || fault "a new output: companions $(companions)"
expect_stars HEADLESS-3 'a new output'
swaymsg output HEADLESS-2 position 0 480 >/dev/null
expect_stars HEADLESS-2 'a moved output'
for scale in 1.5 2; do
  swaymsg output HEADLESS-1 scale "$scale" >/dev/null
  expect_stars HEADLESS-1 "scale $scale"
done
eventually has_windows 3 || fault 'not one window on each of three outputs'
expect_running 'changes of the outputs'
press_until_end 'a key'
swaymsg output HEADLESS-1 scale 1 >/dev/null

# Stars that do not move stay, beside others that do: after the blast, which lasts two seconds, the
# frames of this scene have 3000 to 5000 such bytes for more than a minute, and at most 1650 if the
# stars that do not move are lost.
keeps_stars() {
  for _ in $(seq 1 60); do
    grab HEADLESS-1
    [ "$(tr -d '\0' <"$picture" | wc -c)" -gt 2500 ] && return
    sleep 0.5
  done
  return 1
}
start "$program" --saver --seed 5 --no-tour --screens primary --delay 100 \
  --set Universe_ESteps=20 --set Starfold_Rotation=0 --set Universe_NewFreq=0 \
  --set Universe_AmStar=0
expect_stars HEADLESS-1 'a scene that stands still'
sleep 3
keeps_stars || fault 'stars that do not move vanish'
kill -TERM "$running"
expect_end 'SIGTERM'

# The dialogs.
start "$program" --settings
eventually has_window 'Starfold Properties' || fault 'the dialog does not open'
kill -TERM "$running"
expect_end 'SIGTERM to the dialog'

# The idle service starts the saver, and ends with it.
"$idle" --status | grep -q '(Wayland)' || fault 'there is no source of idleness'
start "$idle" --test --program "$program"
expect_stars HEADLESS-1 'the idle service'
press_until_end 'a key under the idle service'

# The end of the compositor is the end of all.
start "$program" --saver
expect_stars HEADLESS-2 'before the end'
"$idle" --test --program "$program" >/dev/null 2>&1 &
service=$!
others=$(companions)
kill -KILL "$COMPOSITOR"
for process in "$running" "$service" $others; do
  eventually has_ended "$process" || fault "a process survives the compositor: $process"
done

[ "$faults" = 0 ] || exit 1
