#!/usr/bin/env bash
# icon.sh STARFOLDS-RENDER FILE: draws the program's icon, an SVG with a disc for each star
# of one frame. Needs ImageMagick.
set -euo pipefail
render=$1
file=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

"$render" --profile 2 --size 64x64 --frames 300 --first 300 --png "$folder" \
  --set Universe_Stars=900 --set FocalLength=1.25 --set Starfold_AngleTilt=60 \
  --set Starfold_AngleTInc=0 --set Starfold_CometFreq=0 --set Starfold_NovaFreq=0 2>/dev/null
{
  cat <<'HEAD'
<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 64 64">
<rect width="64" height="64" rx="12" fill="#03030c"/>
HEAD
  convert "$folder"/*.png txt:- | sed -n 's/^\([0-9]*\),\([0-9]*\):.*\(#......\).*$/\1 \2 \3/p' |
    awk '$3 != "#000000" && ($1-31.5)^2 + ($2-31.5)^2 < 900 {
      printf "<circle cx=\"%g\" cy=\"%g\" r=\"0.8\" fill=\"%s\"/>\n", $1 + .5, $2 + .5, tolower($3)
    }'
  echo '</svg>'
} >"$file"
