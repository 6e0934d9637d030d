#!/usr/bin/env bash
# Renders the pictures of the documents into docs/pictures/, and the same frames for a dense screen
# into FOLDER.
# Usage: docs/pictures.sh PROGRAM FOLDER   (PROGRAM is the path of starfolds-render)
set -euo pipefail
program=$(realpath "$1")
mkdir -p "$2"
dense=$(realpath "$2")
cd "$(dirname "${BASH_SOURCE[0]}")/pictures"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# one FILE FRAME OPTION...: writes one frame of a run.
one() {
  local file=$1 frame=$2
  shift 2
  "$program" --frames "$frame" --first "$frame" --png "$scratch" "$@"
  mv "$scratch"/frame-*.png "$file"
}

# picture NAME FRAME OPTION...: writes the same frame for an ordinary screen, and for a dense one,
# where a star is a block of 2 x 2 pixels.
picture() {
  local name=$1 frame=$2
  shift 2
  one "$name-1280x720.png" "$frame" "$@" --size 1280x720
  one "$dense/$name-3840x2160.png" "$frame" "$@" --size 1920x1080 --scale 2
}

# One universe with the default settings.
picture blast 10
picture settling 100
picture starfold 800
picture core 1015
picture pull-out 1277 --set Universe_Recycle=1

# One body, with more flares than by default.
body=(--profile 0 --set Universe_Stars=3000)
picture novas 200 "${body[@]}" --set Starfold_NovaFreq=6000
for shape in 0 1 2 3 4; do
  picture "pulsars-$shape" 200 "${body[@]}" --set Starfold_NovaFreq=0 \
    --set Starfold_PulsarFreq=2500 --set "Starfold_PulsarShape=$shape"
done

# For the README, where pictures are shown small. The first visit is to "IFS Point: Spiral Wheel
# Burst".
one readme.png 840 --size 640x360 --scale 2 --set Universe_GS_Idx=19
"$program" --set Universe_Recycle=1 --frames 1300 --first 10 --every 115 --sheet universe.png
