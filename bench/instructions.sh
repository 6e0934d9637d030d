#!/usr/bin/env bash
# Counts the instructions of the floor loop and of the star step, per star and frame. Unlike times,
# the counts are the same on every run.
# Usage: bench/instructions.sh [PROGRAM]   (the path of star_instructions)
set -euo pipefail
program=$(realpath "${1:-build/release/bench/counted/star_instructions}")
frames=100

# count FUNCTION ARGUMENT...: instructions within FUNCTION.
count() {
  local function=$1
  shift
  valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect="$function" \
    "$program" "$@" 2>&1 | sed -n 's/.*Collected : \([0-9]*\).*/\1/p'
}

printf '\n%-8s %12s %12s %8s\n' stars floor/star step/star ratio
for stars in 1000 5000 30000; do
  floor=$(count CountedFloor floor "$stars")
  step=$(count CountedStep step "$stars")
  awk -v stars="$stars" -v floor="$floor" -v step="$step" -v frames="$frames" 'BEGIN {
    printf "%-8d %12.1f %12.1f %8.2f\n", stars, floor / stars / frames, step / stars / frames,
      step / floor }'
done
