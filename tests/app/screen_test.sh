#!/bin/bash
# screen_test.sh STARFOLDS: the saver and the application on an X server, with its input made by
# xdotool and its picture grabbed from the screen. DISPLAY names a server of our own.
set -u
program=$1
caption='TSLN:Starfolds 4.1a'
. "$(dirname "$0")/../desktop/screen_tools.sh"

xdotool mousemove 700 500

start "$program" --saver --seed 5
wait_for_stars
window=$(xdotool search --name "^$caption\$")
[ "$(wc -w <<<"$window")" = 1 ] || fault "windows with the saver's caption: $window"
geometry=$(xdotool getwindowgeometry --shell "${window:-0}" | tr '\n' ' ')
[[ $geometry == *'X=0 Y=0 WIDTH=1920 HEIGHT=1080 '* ]] || fault "the saver stands at $geometry"
first=$(import -silent -window root -depth 8 rgb:- | cksum)
for _ in $(seq 1 300); do
  second=$(import -silent -window root -depth 8 rgb:- | cksum)
  [ "$first" != "$second" ] && break
  sleep 0.1
done
[ "$first" != "$second" ] || fault "the stars stand still"

# A second start finds the first and goes away quietly.
timeout 30 "$program" /S 2>/dev/null || fault "the second saver: exit code $?"
[ "$(xdotool search --name "^$caption\$" | wc -l)" = 1 ] || fault "a second saver is there"
expect_running "while a second one starts"
kill -TERM "$running"
expect_end "SIGTERM"

start "$program" /S
wait_for_stars
xdotool key a
expect_end "a key"

# An application window with the saver's caption does not keep an idle daemon's saver from starting.
start "$program" --window --set Adv_WinResize=1
application=$running
for count in 1 2; do
  for _ in $(seq 1 600); do
    [ "$(xdotool search --name "^$caption\$" | wc -l)" = $count ] && break
    sleep 0.05
  done
  [ $count = 1 ] && start "$program" /S
done
[ "$(xdotool search --name "^$caption\$" | wc -l)" = 2 ] || fault "no saver over an application window"
stop
running=$application
stop

start "$program" /s
wait_for_stars
xdotool click 1
expect_end "a button"

start "$program" --saver
wait_for_stars
xdotool mousemove 710 510
sleep 0.3
expect_running "one move"
for x in 720 730 740 750 760 770; do
  xdotool mousemove "$x" 500
  sleep 0.05
done
expect_end "moves"

# Suspended and continued, as some hosts do while nobody sees the saver.
start "$program" --saver
wait_for_stars
kill -STOP "$running"
kill -TERM "$running"
kill -CONT "$running"
expect_end "SIGTERM while stopped"

start "$program" --window --seed 5
wait_for_stars
xdotool key F5
sleep 0.3
expect_running "F5"
wait_for_stars
xdotool key Escape
expect_end "Esc"

# Any other key asks for the properties, which greet a new user; none of it holds up the end.
start "$program" --window --seed 5
wait_for_stars
xdotool key a
for _ in $(seq 1 600); do
  xdotool search --name '^Starfold Properties$' >/dev/null && break
  sleep 0.05
done
xdotool search --name '^Starfold Properties$' >/dev/null || fault "the properties do not open"
kill -TERM "$running"
expect_end "SIGTERM in the properties"

[ "$faults" = 0 ] || exit 1
