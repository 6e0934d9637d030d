#!/usr/bin/env bash
# scale_out.sh STARFOLDS-RENDER [UNIVERSES]: renders universes 1 to UNIVERSES (8) with one process, then
# with one process for each processor, compares the pictures, and prints the speed-up. Needs an idle
# machine.
set -euo pipefail
render=$(readlink -f "$1")
universes=${2:-8}
workers=$(nproc)
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
cd "$folder"

# render_range FOLDER RANGE: one process. Two visits in each universe, a picture of every 80th frame.
render_range() {
  "$render" --universes "$2" --set Universe_Recycle=2 --every 80 --png "$1" 2>>"$1.log"
}

# Seconds since the start of the system, with fractions.
now() { cut -d ' ' -f 1 /proc/uptime; }

start=$(now)
render_range one "1..$universes"
between=$(now)
export -f render_range
export render
seq "$universes" | xargs -P "$workers" -I{} bash -c 'render_range many {}'
end=$(now)

diff -r one many
awk -v a="$start" -v b="$between" -v c="$end" -v n="$workers" -v u="$universes" 'BEGIN {
  printf "%d universes: %.1f s with 1 process, %.1f s with %d; %.2f times as fast, the same pictures\n",
         u, b - a, c - b, n, (b - a) / (c - b)
}'
