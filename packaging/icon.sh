#!/usr/bin/env bash
# icon.sh STARFOLDS-RENDER FILE: draws the program's icon, an SVG with a disc for each star
# of one frame. Needs ImageMagick.
set -euo pipefail
render=$1
file=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

# The body is "Stellar Turbines" with values of its own, so that changes of the factory body do not
# change the icon.
body=(AngleTilt=60 AngleTInc=0 GHW_Ratio=0.25 RadiusExp=0.9 HeightExp=1 HWheelInc=0.02 HWC_Start=20
  HueBase=0 HueBlend=60 NewFreq=500 NewFrames=10 NewExtMult=700 NovaFreq=0 CometFreq=0)
"$render" --profile 2 --size 64x64 --frames 300 --first 300 --png "$folder" \
  --set Universe_Stars=900 --set FocalLength=1.25 "${body[@]/#/--set=Starfold_}" 2>/dev/null
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
