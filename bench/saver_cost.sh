#!/usr/bin/env bash
# Measures the cost of the whole saver on an X server, compared with two savers of the xscreensaver
# collection that also draw points: processor time per second, of the program and of the server, and
# how often the program goes to sleep in a second.
# galaxy moves about 2250 stars a galaxy and erases them; discrete plots 4096 points a frame in few
# colours and erases none. Takes about six minutes and needs an idle machine.
# Usage: bench/saver_cost.sh [PROGRAM]   (the path of starfolds)
set -euo pipefail
program=$(realpath "${1:-build/release/src/app/starfolds}")
hacks=/usr/libexec/xscreensaver
packages=(xvfb xscreensaver-data xscreensaver-data-extra)
seconds=${SECONDS_A_ROW:-15} # measuring time of each row
warm_up=3                    # before measuring

install_missing() {
  local root=()
  if command -v Xvfb >/dev/null && [[ -x $hacks/galaxy && -x $hacks/discrete ]]; then return; fi
  [[ $(id -u) -eq 0 ]] || root=(sudo)
  "${root[@]}" apt-get -qq update
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o Dpkg::Use-Pty=0 install \
    --no-install-recommends "${packages[@]}" >/dev/null
}

folder=$(mktemp -d)
server=
client=
end_both() {
  local process
  for process in $client $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  client=
  server=
}
trap 'end_both; rm -r "$folder"' EXIT
trap 'exit 143' HUP INT TERM

# start_server SIZE: starts an X server with a screen of this size.
start_server() {
  : >"$folder/display"
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$folder/display" 2>/dev/null &
  server=$!
  until [[ -s $folder/display ]]; do sleep 0.05; done
  DISPLAY=:$(<"$folder/display")
  export DISPLAY
}

# cpu PROCESS: prints its processor time so far, in milliseconds. The scheduler counts nanoseconds;
# the ticks of /proc/PID/stat are too coarse for programs that run for less than one.
cpu() {
  cat "/proc/$1"/task/*/schedstat | awk '{ sum += $1 } END { print sum / 1e6 }'
}

# sleeps PROCESS: prints how often its threads have waited for something so far.
sleeps() {
  cat "/proc/$1"/task/*/status | awk '/^voluntary_ctxt_switches/ { sum += $2 } END { print sum }'
}

# Keeps the user's settings out.
export HOME=$folder XDG_DATA_HOME=$folder XDG_CONFIG_HOME=$folder

# row SIZE NAME STARS FRAMES COMMAND...: runs the command on a new server and prints its row.
row() {
  local size=$1 name=$2 stars=$3 frames=$4 before after asleep
  shift 4
  start_server "$size"
  env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 "$@" >/dev/null 2>&1 &
  client=$!
  sleep "$warm_up"
  before=$(cpu "$client") before_server=$(cpu "$server") asleep=$(sleeps "$client")
  sleep "$seconds"
  after=$(cpu "$client") after_server=$(cpu "$server") asleep=$(($(sleeps "$client") - asleep))
  awk -v size="$size" -v name="$name" -v stars="$stars" -v frames="$frames" -v s="$seconds" \
    -v client="$after $before" -v server="$after_server $before_server" -v sleeps="$asleep" 'BEGIN {
      split(client, c); split(server, x)
      a = (c[1] - c[2]) / s; b = (x[1] - x[2]) / s
      printf "%-10s %-10s %7s %7s %9.1f %9.1f %9.1f %9.0f\n", size, name, stars, frames, a, b, a + b,
        sleeps / s }'
  end_both
}

# saver SIZE STARS FRAMES DELAY: measures Starfolds during a tour. With a delay of 0 there is a
# frame per refresh of the screen, 60 a second on this server.
saver() {
  row "$1" starfolds "$2" "$3" "$program" --saver --seed 5 --set Universe_Stars="$2" \
    --set Universe_ESteps=10 --set Adv_TimeDelay="$4"
}

# hack SIZE NAME STARS FRAMES OPTION...: measures one of the other savers.
hack() {
  local size=$1 name=$2 stars=$3 frames=$4
  shift 4
  row "$size" "$name" "$stars" "$frames" "$hacks/$name" --root --delay $((1000000 / frames)) "$@"
}

install_missing
printf 'milliseconds of processor time for each second\n'
printf '%-10s %-10s %7s %7s %9s %9s %9s %9s\n' \
  screen saver stars frames/s program server both sleeps/s
for size in 1920x1080 3840x2160; do
  saver "$size" 5000 25 40
  hack "$size" galaxy 4500 25 --count 2
  hack "$size" discrete 4096 25
  saver "$size" 5000 60 0
  hack "$size" galaxy 4500 60 --count 2
  hack "$size" discrete 4096 60
  saver "$size" 30000 25 40
  hack "$size" galaxy 29250 25 --count 13
  saver "$size" 30000 60 0
  hack "$size" galaxy 29250 60 --count 13
done
