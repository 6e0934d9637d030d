#!/usr/bin/env bash
# Counts the instructions of the star step and of the minimal loop it is compared with, per star and
# frame, and of loading and saving templates, per value. Unlike times, the counts are reproducible.
# Usage: bench/instructions.sh [FOLDER]   (the folder of the counted programs)
set -euo pipefail
folder=$(realpath "${1:-build/release/bench/counted}")
frames=100

# count PROGRAM FUNCTION ARGUMENT...: prints the instructions executed within FUNCTION.
count() {
  local program=$folder/$1 function=$2
  shift 2
  valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect="$function" \
    "$program" "$@" 2>&1 | sed -n 's/.*Collected : \([0-9]*\).*/\1/p'
}

printf '\n%-8s %12s %12s %8s\n' stars minimal/star step/star ratio
for stars in 1000 5000 30000; do
  minimal=$(count star_instructions CountedMinimalLoop minimal "$stars")
  step=$(count star_instructions CountedStep step "$stars")
  awk -v stars="$stars" -v minimal="$minimal" -v step="$step" -v frames="$frames" 'BEGIN {
    printf "%-8d %12.1f %12.1f %8.2f\n", stars, minimal / stars / frames, step / stars / frames,
      step / minimal }'
done

printf '\n%-16s %8s %14s %12s\n' template values instructions each
for way in load save; do
  for kind in plain full; do
    values=$("$folder/settings_instructions" "$way" "$kind")
    function=CountedLoad
    [[ $way == load ]] || function=CountedSave
    counted=$(count settings_instructions "$function" "$way" "$kind")
    printf '%-16s %8d %14d %12d\n' "$way, $kind" "$values" "$counted" $((counted / values))
  done
done
