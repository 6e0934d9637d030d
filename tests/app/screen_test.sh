#!/bin/bash
# screen_test.sh STARFOLDS: the saver and the application on an X server, with its input made by
# xdotool and its picture grabbed from the screen. DISPLAY names a server of our own.
set -u
program=$1
caption='TSLN:Starfolds 4.1a'
faults=0
running=
trap 'kill -9 $running 2>/dev/null' EXIT

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

# Colour bytes of the screen that are not black.
lit() { import -silent -window root -depth 8 rgb:- | tr -d '\0' | wc -c; }

start() {
  "$program" "$@" 2>/dev/null &
  running=$!
}

wait_for_stars() {
  local tries
  for tries in $(seq 1 40); do
    [ "$(lit)" -gt 1000 ] && return
    sleep 0.1
  done
  fault "no stars"
}

# expect_end WHAT: the program has been told to go, and does so within ten seconds with code 0.
expect_end() {
  local tries code
  for tries in $(seq 1 100); do
    case $(ps -o stat= -p "$running") in
      '' | Z*) break ;;
    esac
    sleep 0.1
  done
  kill -9 "$running" 2>/dev/null
  wait "$running"
  code=$?
  running=
  [ "$code" = 0 ] || fault "$1: exit code $code"
}

expect_running() {
  case $(ps -o stat= -p "$running") in
    '' | Z*) fault "$1: the program has ended" ;;
  esac
}

xdotool mousemove 700 500

start --saver --seed 5
wait_for_stars
window=$(xdotool search --name "^$caption\$")
[ "$(wc -w <<<"$window")" = 1 ] || fault "windows with the saver's caption: $window"
geometry=$(xdotool getwindowgeometry --shell "${window:-0}" | tr '\n' ' ')
[[ $geometry == *'X=0 Y=0 WIDTH=1920 HEIGHT=1080 '* ]] || fault "the saver stands at $geometry"
first=$(import -silent -window root -depth 8 rgb:- | cksum)
sleep 0.3
[ "$first" != "$(import -silent -window root -depth 8 rgb:- | cksum)" ] || fault "the stars stand still"

# A second start finds the first and goes away quietly.
timeout 10 "$program" /S 2>/dev/null || fault "the second saver: exit code $?"
[ "$(xdotool search --name "^$caption\$" | wc -l)" = 1 ] || fault "a second saver is there"
expect_running "while a second one starts"
kill -TERM "$running"
expect_end "SIGTERM"

start /S
wait_for_stars
xdotool key a
expect_end "a key"

start /s
wait_for_stars
xdotool click 1
expect_end "a button"

start --saver
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
start --saver
wait_for_stars
kill -STOP "$running"
kill -TERM "$running"
kill -CONT "$running"
expect_end "SIGTERM while stopped"

start --window --seed 5
wait_for_stars
xdotool key a
xdotool key F5
xdotool click 1
sleep 0.5
expect_running "keys of the application"
wait_for_stars
xdotool key Escape
expect_end "Esc"

[ "$faults" = 0 ] || exit 1
