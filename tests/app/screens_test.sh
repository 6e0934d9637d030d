#!/bin/bash
# screens_test.sh STARFOLDS: the saver on two monitors, the halves of the one screen of an X server.
# DISPLAY names a server of our own.
set -u
program=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"
left=400x600+0+0
right=400x600+400+0

split_screen() {
  xrandr --setmonitor left 400/100x600/150+0+0 screen
  xrandr --setmonitor right 400/100x600/150+400+0 none
} >/dev/null
join_screen() { xrandr --delmonitor right --delmonitor left; }

companions() { pgrep -P "$running"; }

wait_for_both() {
  wait_for_stars "$left"
  wait_for_stars "$right"
}

# expect_no_companion WHAT PROCESS...: within thirty seconds none of these is left.
expect_no_companion() {
  local what=$1 process
  shift
  for process in "$@"; do
    for _ in $(seq 1 1500); do
      has_ended "$process" && break
      sleep 0.02
    done
    has_ended "$process" || fault "$what: a companion is left behind"
  done
}

# ends_both INPUT: on whatever screen.
ends_both() {
  local others
  start "$program" --saver
  wait_for_both
  others=$(companions)
  [ "$(wc -w <<<"$others")" = 1 ] || fault "companions: $others"
  $1
  expect_end "$1"
  expect_no_companion "$1" $others
}

moves_right() {
  local x
  for x in 500 510 520 530 540 550; do
    xdotool mousemove "$x" 300
    sleep 0.03
  done
}

split_screen
xdotool mousemove 100 100
ends_both 'xdotool key a'
ends_both 'xdotool mousemove 600 300 click 1'
ends_both 'moves_right'
ends_both 'xdotool mousemove 100 300 click 1'
ends_both 'eval kill -TERM $running'

# One screen alone.
start "$program" --saver --screens primary --seed 5
wait_for_stars "$left"
[ "$(lit "$right")" = 0 ] || fault "stars on the other screen"
[ -z "$(companions)" ] || fault "a companion on one screen"
stop
start "$program" --saver --screens 2 --seed 5
wait_for_stars "$right"
[ "$(lit "$left")" = 0 ] || fault "stars on the primary screen"
stop
timeout 30 "$program" --saver --screens 3 2>/dev/null
[ $? = 1 ] || fault "there is a third screen"

# However the owner dies.
for signal in KILL SEGV; do
  start "$program" --saver
  wait_for_both
  others=$(companions)
  kill -$signal "$running"
  wait "$running" 2>/dev/null
  expect_no_companion "SIG$signal" $others
done

# A companion that dies is replaced.
start "$program" --saver
wait_for_both
others=$(companions)
kill -KILL $others
expect_no_companion "SIGKILL of a companion" $others
for _ in $(seq 1 600); do
  [ -n "$(companions)" ] && break
  sleep 0.05
done
[ -n "$(companions)" ] || fault "a killed companion leaves its screen uncovered"
wait_for_both
stop

# Where no kernel helps, the end of the owner's pipe is enough.
sleep 1.5 | timeout 30 "$program" --saver --companion --screens 2 2>/dev/null
[ $? = 0 ] || fault "a companion does not hear of its owner's end"

# Screens come and go.
start "$program" --saver
wait_for_both
others=$(companions)
join_screen
expect_no_companion "one screen" $others
sleep 0.5
expect_running "one screen"
[ -z "$(companions)" ] || fault "one screen: $(companions)"
wait_for_stars 100x600+350+0
split_screen
sleep 1
wait_for_both
xdotool key a
expect_end "a key after changes of the screens"

[ "$faults" = 0 ] || exit 1
