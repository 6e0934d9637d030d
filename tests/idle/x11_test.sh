#!/bin/bash
# x11_test.sh STARFOLDS-IDLE: the service on an X server of our own, which DISPLAY names, without
# any D-Bus service.
set -u
program=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"
folder=$(mktemp -d)
trap 'kill -9 $running 2>/dev/null; rm -r "$folder"' EXIT
export XDG_RUNTIME_DIR=$folder DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent

# A saver that never ends by itself.
saver=$folder/saver
printf '#!/bin/sh\necho $$ >"%s/shown"\nexec sleep 1000\n' "$folder" >"$saver"
chmod +x "$saver"

wait_for_saver() {
  for _ in $(seq 1 1500); do
    [ -s "$folder/shown" ] && return
    sleep 0.02
  done
  fault "$1: the saver has not started"
}

expect_no_saver() {
  for _ in $(seq 1 1500); do
    has_ended "$(cat "$folder/shown")" && break
    sleep 0.02
  done
  has_ended "$(cat "$folder/shown")" || fault "$1: the saver is left behind"
  rm "$folder/shown"
}

# One movement is a bump of the table; movement that goes on ends the saver.
start "$program" --test --program "$saver"
wait_for_saver 'no input'
xdotool mousemove_relative 5 5
sleep 3
has_ended "$(cat "$folder/shown")" && fault 'a bump has ended the saver'
expect_running 'a bump'
for _ in $(seq 1 300); do
  has_ended "$running" && break
  xdotool mousemove_relative -- 1 1 mousemove_relative -- -1 -1
  sleep 0.1
done
expect_end 'movement'
expect_no_saver 'movement'

# However the service ends, it takes the saver along.
for signal in TERM KILL; do
  start "$program" --test --program "$saver"
  wait_for_saver "before SIG$signal"
  kill -$signal "$running"
  wait "$running" 2>/dev/null
  running=
  expect_no_saver "SIG$signal"
done

# Without settings the service is off and ends at once.
start "$program" --program "$saver"
expect_end 'off'
"$program" --status | grep -q 'MIT-SCREEN-SAVER' || fault 'the source is not named'
env -u DISPLAY "$program" --test 2>"$folder/said"
[ $? = 1 ] || fault 'it watches nothing'
grep -q 'no desktop' "$folder/said" || fault "without a display it says: $(cat "$folder/said")"

[ "$faults" = 0 ] || exit 1
