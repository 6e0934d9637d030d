#!/usr/bin/env bash
# Makes pictures of the dialogs: every page and style, light and dark, at 100 and 200 %. One of them
# is kept for the README.
# Usage: docs/dialogs.sh DIALOG_PICTURES FOLDER   (the path of the program; the output folder)
set -euo pipefail
program=$(realpath "$1")
mkdir -p "$2"
folder=$(realpath "$2")
kept=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/pictures

for percent in 100 200; do
  for look in light dark; do
    QT_SCALE_FACTOR=$((percent / 100)) "$program" "$folder/$percent" "$look" 2>/dev/null
  done
done
convert "$folder/100/light-universe-0.png" +dither -colors 48 -strip "png8:$kept/properties.png"
