#!/usr/bin/env bash
# Takes the pictures of the properties dialog anew: every page and style, light and dark, at 100 and
# 200 %.
# Usage: docs/dialogs.sh DIALOG_PICTURES   (the path of the program)
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/pictures/dialogs
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

rm -rf "$folder"
for percent in 100 200; do
  mkdir -p "$folder/$percent"
  for look in light dark; do
    QT_SCALE_FACTOR=$((percent / 100)) "$program" "$work/$percent" "$look" 2>/dev/null
  done
  for picture in "$work/$percent"/*.png; do
    convert "$picture" +dither -colors 48 -strip "png8:$folder/$percent/$(basename "$picture")"
  done
done
