# To be read in by tests of programs on an X server. Input is made by xdotool, and pictures are
# grabbed from the screen. DISPLAY names a server of our own.
faults=0
running=
trap 'kill -9 $running 2>/dev/null' EXIT

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

# Colour bytes of the screen that are not black; with a geometry, of that part of it.
lit() {
  import -silent -window root ${1:+-crop "$1"} -depth 8 rgb:- | tr -d '\0' | wc -c
}

# start PROGRAM ARGUMENT...
start() {
  "$@" 2>/dev/null &
  running=$!
}

# wait_for_stars [GEOMETRY]
wait_for_stars() {
  local tries
  for tries in $(seq 1 300); do
    [ "$(lit "${1:-}")" -gt 1000 ] && return
    sleep 0.1
  done
  fault "no stars${1:+ at $1}"
}

# Ends the program whatever it does.
stop() {
  kill -9 "$running"
  wait "$running"
  running=
} 2>/dev/null

has_ended() {
  case $(ps -o stat= -p "$1") in
    '' | Z*) return 0 ;;
  esac
  return 1
}

# expect_end WHAT [CODE]: the program has been told to go, and does so within thirty seconds, with this
# exit code (0).
expect_end() {
  local tries code
  for tries in $(seq 1 1500); do
    has_ended "$running" && break
    sleep 0.02
  done
  kill -9 "$running" 2>/dev/null
  wait "$running"
  code=$?
  running=
  [ "$code" = "${2:-0}" ] || fault "$1: exit code $code"
}

expect_running() {
  if has_ended "$running"; then fault "$1: the program has ended"; fi
}
