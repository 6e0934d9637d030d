#!/usr/bin/env bash
# Renders the pictures of the help's parameter and style pages into docs/help/pictures/: strips that
# compare values of one setting, and the recipes of the style pages.
# Usage: docs/help/parameter-pictures.sh RENDER [NAME]...   (the path of starfolds-render;
# only these pictures, or all)
set -euo pipefail
program=$(realpath "$1")
shift
wanted=" $* "
cd "$(dirname "${BASH_SOURCE[0]}")/pictures"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The settings that a picture starts from, and the size of its tiles: three fill 640 pixels.
start=(--profile 0)
columns=3
tile=210x158

# shot FILE FRAME SETTINGS: writes one frame. SETTINGS is a text of words NAME=VALUE, where a name
# without the prefix Universe_ is a starfold's; @NUMBER selects another frame, %NAME a body made by
# `points`.
shot() {
  local file=$1 frame=$2 word
  local -a options=() words
  read -r -d '' -a words <<<"$3" || true
  for word in "${words[@]}"; do
    case $word in
      @*) frame=${word#@} ;;
      %*) options+=(--template "$scratch/${word#%}.sfd") ;;
      Universe_*) options+=(--set "$word") ;;
      *) options+=(--set "Starfold_$word") ;;
    esac
  done
  "$program" "${start[@]}" "${options[@]}" --size "$tile" --seed 7 --frames "$frame" \
    --first "$frame" --png "$scratch"
  mv "$scratch"/frame-*.png "$file"
}

# strip NAME FRAME COMMON CAPTION SETTINGS [CAPTION SETTINGS]...: makes a frame for each caption,
# with the common settings and its own.
strip() {
  local name=$1 frame=$2 common=$3 number=0
  local -a tiles=()
  shift 3
  [[ $wanted == '  ' || $wanted == *" $name "* ]] || return 0
  while (($# > 0)); do
    number=$((number + 1))
    shot "$scratch/tile-$number.png" "$frame" "$common $2"
    tiles+=(-label "$1" "$scratch/tile-$number.png")
    shift 2
  done
  montage -background '#303030' -fill '#d8d8d8' -pointsize 12 "${tiles[@]}" -tile "${columns}x" \
    -geometry +2+2 "$scratch/strip.png"
  convert "$scratch/strip.png" +dither -colors 64 -strip "png8:$name.png"
}

# points NAME IFS|ATOMIC ROW...: makes a body of these rows around the centre 1000 1000 1000. A row is an
# attractor point (X Y Z SCALE AXIS ANGLE PERCENT) or an atom (ELEMENT X Y Z STRUCTURE RADIUS
# SYMMETRY). No option of the program sets them, so they are passed in a template file, whose reader
# uses the first section of a name.
points() {
  local name=$1 section=$2 prefix=Atom key='Atom_P%02d' count=Starfold_Atoms axis row
  local -i index=0
  local -a numbers
  shift 2
  [[ $section == ATOMIC ]] || { prefix=IFS key='IFS_P%d' count=Starfold_IFS_Points; }
  "$program" --set "Starfold0/$count=$#" --save "$scratch/settings.sfd"
  {
    printf '[UniFold0\\%s]\r\n' "$section"
    for axis in X Y Z; do printf '%s_Center%s=1000\r\n' "$prefix" "$axis"; done
    for row in "$@"; do
      read -ra numbers <<<"$row"
      # shellcheck disable=SC2059
      printf "$key=*%5d%5d%5d%5d%5d%5d%5d\r\n" "$index" "${numbers[@]}"
      index+=1
    done
    cat "$scratch/settings.sfd"
  } >"$scratch/$name.sfd"
}

# ---- the universe -------------------------------------------------------------------------------

start=(--theme 1)
strip creation-phases 5 'Universe_Stars=8000' 'frame 5' '' 'frame 30' @30 'frame 80' @80 \
  'frame 130' @130 'frame 200' @200 'frame 300' @300
strip creation-stars 290 '' '500 stars' Universe_Stars=500 '5000 stars' '' \
  '30000 stars' Universe_Stars=30000
strip creation-expand 290 '' 'speed 500' Universe_Expand=500 'speed 2500' '' \
  'speed 10000' Universe_Expand=10000
strip creation-persist 150 '' 'persistence 0.9' Universe_Persist=0.9 'persistence 0.99' '' \
  'persistence 1' Universe_Persist=1
strip creation-profile 60 '' 'profile Segmented Starfish' Universe_Profile=3 \
  'Wireframe: Octahedron' Universe_Profile=20 'Cubic Hydrocarbon' Universe_Profile=42
strip creation-hues 70 'Universe_Stars=12000' 'hues 165 to 210' '' \
  'hues 0 to 60' 'Universe_HW_Start=0 Universe_HW_End=60' \
  'hues 300 to 240' 'Universe_HW_Start=300 Universe_HW_End=240'
strip new-frequency 850 '' 'exclusive 0 %' Universe_NewPctStEx=0 'exclusive 50 %' \
  Universe_NewPctStEx=50 'exclusive 100 %' Universe_NewPctStEx=100
ambient='Universe_Stars=100 Universe_NewFreq=0 Universe_Tour=0 CometFreq=0 Universe_AmStar=1000'
strip ambient-frames 700 "$ambient" 'flash of 0 frames' Universe_AmFrames=0 \
  'flash of 30 frames' '' 'flash of 300 frames' Universe_AmFrames=300
strip ambient-age 700 "$ambient Universe_AmFrames=0" 'age increment 0' Universe_AmCAge=0 \
  'age increment 0.1' '' 'age increment 1' Universe_AmCAge=1
strip tour-visit 460 '' 'far away' '' 'approach' @640 'stand-off' @760 'close-in' @900 \
  'in the core' @1000 'leaving' @1150
strip tour-steps 600 '' 'frame 600, steps 40' Universe_GSteps=40 'steps 160' '' \
  'steps 400' Universe_GSteps=400
gravity='Universe_Tour=0 Universe_Starfold=30 Universe_NewPctStEx=0 Universe_Stars=8000'
strip gravity-magnitude 1500 "$gravity" 'magnitude 1000' Universe_GravForce=1000 \
  'magnitude 10000' Universe_GravForce=10000 'magnitude 100000' Universe_GravForce=100000

# ---- the shape of a starfold --------------------------------------------------------------------

start=(--profile 0)
quiet='Universe_Stars=5000 NovaFreq=0 PulsarFreq=0 CometFreq=0 NewFrames=0'
strip shape-radius 200 "$quiet AngleTilt=150" 'radius 100' Radius=100 'radius 300' '' \
  'radius 600' Radius=600
strip shape-rotation 600 "$quiet AngleTilt=135 RadSegs=4 RadFill=15" \
  'rotation 100, 600 frames' Rotation=100 'rotation 500' '' 'rotation 2000' Rotation=2000
strip shape-tilt 200 "$quiet" 'tilt 0: edge on' AngleTilt=0 'tilt 45: from below' AngleTilt=45 \
  'tilt 90: face on' AngleTilt=90 'tilt 135: from above' AngleTilt=135 \
  'tilt 170' '' 'tilt 170, plane X-Z' AxisPlane=1
strip shape-arms 200 "$quiet AngleTilt=135" '5 radials, fill 50' 'RadSegs=5 RadFill=50' \
  '5 radials, fill 10' 'RadSegs=5 RadFill=10' '40 radials, fill 20' 'RadSegs=40 RadFill=20'
strip shape-bands 200 "$quiet AngleTilt=135 RadiusExp=1" '3 bands, fill 30' \
  'RadBands=3 RadBFill=30' '10 bands, fill 30' 'RadBands=10 RadBFill=30' \
  '5 bands with 8 radials' 'RadBands=5 RadBFill=30 RadSegs=8 RadFill=40'
strip shape-ratio 200 "$quiet AngleTilt=165" 'ratio 0' GHW_Ratio=0 'ratio 0.3' '' \
  'ratio 1' GHW_Ratio=1
strip shape-radius-exponent 200 "$quiet AngleTilt=135" 'exponent 0.3' RadiusExp=0.3 \
  'exponent 1.15' '' 'exponent 5' RadiusExp=5
strip shape-height-exponent 200 \
  "$quiet AngleTilt=165 Distance=700 GHW_Ratio=1 Profile=2 RadiusExp=0.7" \
  'exponent 0' HeightExp=0 'exponent 1' HeightExp=1 'exponent 5' HeightExp=5
columns=4 tile=156x118
strip shape-profiles 200 \
  "$quiet Distance=550 GHW_Ratio=0.6 HeightExp=0 AngleTilt=165 RadiusExp=0.7" \
  Standard '' Top-Like Profile=1 Spherical Profile=2 Conical Profile=3 Hyperbolic Profile=4 \
  Outer-Hyperbolic Profile=5 Inner-Hyperbolic Profile=6 \
  'Standard, exponent 2' HeightExp=2
columns=3 tile=210x158
strip shape-color-multiplier 200 "$quiet AngleTilt=135" 'multiplier 300' ColorMult=300 \
  'multiplier 1800' '' 'multiplier 6000' ColorMult=6000
strip shape-color-rules 200 "$quiet AngleTilt=135 Rotation=5000" 'Rotational Velocity' \
  'ColorComp=0' 'Velocity (Square Root)' 'ColorComp=1 ColorMult=900' 'Distance from Core' \
  ColorComp=2
strip creation-trails 200 "$quiet Universe_Stars=1000 AngleTilt=135 Rotation=20000" 'trail 1' '' \
  'trail 10' Universe_STrail=10 'trail 30' Universe_STrail=30

# ---- flares and comets --------------------------------------------------------------------------

calm='Universe_Stars=3000 NovaFreq=0 PulsarFreq=0 CometFreq=0 AngleTilt=150'
strip flares-new-frequency 300 "$calm" 'frequency 125' NewFreq=125 'frequency 2000' NewFreq=2000 \
  'frequency 9999' NewFreq=9999
strip flares-new-size 300 "$calm NewFreq=400 NewFrames=30" 'extension 1' NewExtMult=1 \
  'extension 100' '' 'extension 1000' NewExtMult=1000
strip flares-nova 300 "$calm NewFreq=400" 'frequency 320' NovaFreq=320 \
  'frequency 2000, extension 1500' 'NovaFreq=2000 NovaExtMult=1500' \
  'frequency 9999' NovaFreq=9999
few='Universe_Stars=10 NovaFreq=0 CometFreq=0 ColorComp=4 NewFreq=300 PulsarFreq=9999
  PulsarFrames=40 PulsarMinExt=2400 PulsarMaxExt=2401 AngleTilt=90 Radius=350 RadiusExp=0.4
  Distance=560'
strip flares-pulsar-shapes 62 "$few" Nova PulsarShape=0 Axes PulsarShape=1 Star PulsarShape=2 \
  Sphere PulsarShape=3 Sphere-2 PulsarShape=4 \
  'a nova, not a pulsar' 'PulsarFreq=0 NovaFreq=9999 NovaFrames=40 NovaExtMult=3000'
strip flares-pulsar-depth 62 "$few PulsarShape=3" 'depth 0' PulsarDepth=0 'depth 100' '' \
  'depth 1000' PulsarDepth=1000
comets='Universe_Stars=1500 NovaFreq=0 PulsarFreq=0 NewFrames=0 AngleTilt=150 ColorMult=300
  CometFreq=2000'
strip comets-frequency 400 "$comets" 'frequency 400' CometFreq=400 'frequency 2000' '' \
  '2000, persistence 0.9999' CometCPersist=0.9999
strip comets-orbit 400 "$comets" 'orbital speed 0' CometOrbit=0 'orbital speed 100' '' \
  'orbital speed 1000' CometOrbit=1000
strip comets-emit 400 "$comets" 'emit speed 0' CometSpeed=0 'emit speed 500' CometSpeed=500 \
  'emit speed 5000' CometSpeed=5000
strip comets-wind 400 "$comets" 'solar wind 0' CometSWind=0 'solar wind 1000' CometSWind=1000 \
  'solar wind 5000' CometSWind=5000
strip comets-star-persistence 400 "$comets" 'star persistence 0.5' CometSPersist=0.5 '0.95' '' \
  '0.99' CometSPersist=0.99
strip color-channels 200 "$quiet AngleTilt=135 ColorMult=3600" 'all at 100, base 0' '' \
  'blue 0' HueBlu=0 'base 60' HueBase=60
strip color-blend 200 "$quiet AngleTilt=135 ColorMult=3600" 'blend 60' '' 'blend 20' HueBlend=20 \
  'blend 1' HueBlend=1

# ---- recipes of the styles ----------------------------------------------------------------------

body='Universe_Stars=5000 NovaFreq=0 PulsarFreq=0 CometFreq=0 NewFrames=4 HWheelInc=0'
strip style-standard 600 "$body" \
  Pinwheel 'Radius=300 Rotation=1500 Distance=400 RadSegs=5 RadFill=25 GHW_Ratio=0.15
    RadiusExp=0.8 HeightExp=2 AngleTilt=140 HueStart=210 ColorMult=1500' \
  Globe 'Radius=300 Rotation=300 Distance=550 RadSegs=24 RadFill=0 GHW_Ratio=1 RadiusExp=0.4
    HeightExp=0 AngleTilt=155 HueStart=160 ColorMult=900 Profile=2' \
  Target 'Radius=300 Rotation=400 Distance=450 RadBands=6 RadBFill=10 GHW_Ratio=0.02
    RadiusExp=1 HeightExp=1 AngleTilt=130 HueStart=0 ColorMult=2400'
strip standard-levels 200 "$quiet AngleTilt=135 Radius=150 Distance=900" '1 level' '' '2 levels' \
  StdLevels=2 '3 levels' StdLevels=3
strip ifs-point-angle 200 "$quiet FoldStyle=1 RadSegs=30 RadFill=93 RadiusExp=0.1 AngleTilt=135" \
  'angle 0' RadBands=0 'angle 3' RadBands=3 'angle 20' RadBands=20
frame="$quiet FoldStyle=2 RadSegs=6 RadFill=50 GHW_Ratio=1 Distance=550 AngleTilt=160"
strip wireframe-levels 200 "$frame" '1 level' RadBands=1 '2 levels' RadBands=2 '6 levels' RadBands=6
strip wireframe-scale 200 "$frame RadBands=2" 'scale 30' RadFill=30 'scale 80' RadFill=80 \
  'scale 100' RadFill=100
strip fractal-scale 200 "$quiet FoldStyle=3 RadSegs=4 GHW_Ratio=1 Distance=500 AngleTilt=165" \
  'scale 30' RadFill=30 'scale 50' RadFill=50 'scale 60' RadFill=60
ribbon="$quiet FoldStyle=4 ColorComp=5 ColorMult=1000 AngleTilt=150 HueStart=0 NewFreq=6000
  Distance=250 GHW_Ratio=0.8 CP_Steps=200 RadiusExp=1.5 HeightExp=0.5"
strip nebula-bias 300 "$ribbon" '1 point, span 100' '' '5 points, span 10' \
  'CP_B_Pts=5 CP_B_Exp=10' '20 points, span 10' 'CP_B_Pts=20 CP_B_Exp=10'
strip nebula-drift 300 "$ribbon" 'expansion 0, wind 0' 'RadiusExp=0 HeightExp=0' \
  'expansion 8, wind 0' 'RadiusExp=8 HeightExp=0' 'expansion 0, wind 5' 'RadiusExp=0 HeightExp=5'
emit="$quiet NewFreq=5000 AngleTilt=150 HueStart=200 Distance=1000 RadSegs=3 RadFill=20"
strip quasar-speed 300 "$emit FoldStyle=5 Rotation=1500" 'speed 0' QG_Force=0 'speed 1' QG_Force=1 \
  'speed 10' QG_Force=10
strip graviton-force 300 "$emit FoldStyle=6 RadiusExp=0.5" 'force 0' QG_Force=0 'force 1' \
  QG_Force=1 'force 20' QG_Force=20
wave="$quiet FoldStyle=7 NewFreq=5000 AngleTilt=155 HueStart=200 Distance=250 Radius=50 RadBFill=100
  RadiusExp=5 GHW_Ratio=1.5 ColorMult=0 RadSegs=12 RadFill=10 Rotation=0"
strip starwave-increment 300 "$wave" 'increment 1' RadiusExp=1 'increment 5' '' 'increment 15' \
  RadiusExp=15
strip starwave-persist 300 "$wave" 'persist 5' RadBFill=5 'persist 100' '' \
  'persist 999' RadBFill=999
strip style-ifs-point 400 "$body FoldStyle=1" \
  Spines 'Radius=250 Rotation=400 Distance=350 RadSegs=99 RadFill=99 RadBands=120 GHW_Ratio=0.75
    RadiusExp=0.3 HeightExp=0.6 AngleTilt=160 HueStart=330 ColorMult=900 Profile=2' \
  Grooves 'Radius=300 Rotation=0 Distance=400 RadSegs=14 RadFill=85 RadBands=0 GHW_Ratio=0
    RadiusExp=0 HeightExp=1 AngleTilt=130 HueStart=180 ColorMult=1800' \
  Whirlpool 'Radius=100 Rotation=1600 Distance=125 RadSegs=99 RadFill=99 RadBands=121
    GHW_Ratio=0.4 RadiusExp=0.5 HeightExp=1 AngleTilt=115 HueStart=40 ColorMult=1200'
strip style-ifs-wireframe 400 "$body FoldStyle=2 AngleTilt=160" \
  Octahedron 'Radius=500 Rotation=600 Distance=800 RadSegs=6 RadFill=50 RadBands=1 GHW_Ratio=1
    HueStart=150 ColorMult=1500' \
  'Cube of cubes' 'Radius=400 Rotation=600 Distance=1100 RadSegs=8 RadFill=35 RadBands=2
    GHW_Ratio=2 HueStart=20 ColorMult=1500' \
  Thorns 'Radius=500 Rotation=600 Distance=1400 RadSegs=6 RadFill=100 RadBands=1
    GHW_Ratio=1 HueStart=280 ColorMult=1500'
strip style-ifs-fractal 400 "$body FoldStyle=3" \
  Pyramid 'Radius=500 Rotation=400 Distance=800 RadSegs=4 RadFill=50 GHW_Ratio=1 AngleTilt=165
    HueStart=240 ColorMult=2000' \
  Snowflake 'Radius=500 Rotation=300 Distance=700 RadSegs=7 RadFill=66 GHW_Ratio=0.85
    AngleTilt=160 HueStart=180 ColorMult=800' \
  Crystal 'Radius=400 Rotation=300 Distance=1000 RadSegs=8 RadFill=60 GHW_Ratio=1.6 AngleTilt=150
    HueStart=30 ColorMult=1500'
strip style-nebula 500 "$body FoldStyle=4 ColorComp=5 AngleTilt=150 NewFrames=0" \
  'Silk loop' 'Radius=300 Rotation=500 Distance=220 CP_Points=8 CP_Steps=400 CP_B_Pts=1
    CP_B_Exp=100 CP_B_Spd=0 GHW_Ratio=0.8 RadiusExp=0.4 HeightExp=0.2 ColorMult=1000
    NewFreq=5000 HueStart=0' \
  'Five puffs' 'Radius=300 Rotation=500 Distance=350 CP_Points=10 CP_Steps=200 CP_B_Pts=5
    CP_B_Exp=5 CP_B_Spd=1 GHW_Ratio=0.8 RadiusExp=3 HeightExp=0.5 ColorMult=400 NewFreq=6000
    HueStart=180' \
  Smoke 'Radius=200 Rotation=0 Distance=400 CP_Points=4 CP_Steps=150 CP_B_Pts=1 CP_B_Exp=100
    CP_B_Spd=0 GHW_Ratio=1 RadiusExp=5 HeightExp=5 ColorMult=200 NewFreq=5000 HueStart=350
    CP_Close=0'
strip style-quasar 500 "$body FoldStyle=5 NewFreq=6000 NewFrames=0" \
  'Lawn sprinkler' 'Radius=100 Rotation=1500 Distance=400 RadSegs=3 RadFill=8 QG_Force=4
    GHW_Ratio=0.05 RadiusExp=0.1 HeightExp=1 AngleTilt=140 HueStart=200 ColorMult=600' \
  'Two jets' 'Radius=100 Rotation=500 Distance=500 RadSegs=1 RadFill=100 QG_Force=3 GHW_Ratio=1
    RadiusExp=4 HeightExp=0.5 AngleTilt=165 HueStart=240 ColorMult=1200 Profile=4' \
  Swirl 'Radius=100 Rotation=4000 Distance=500 RadSegs=2 RadFill=15 QG_Force=2 GHW_Ratio=1
    RadiusExp=0.3 HeightExp=0 AngleTilt=160 HueStart=20 ColorMult=600 Profile=2'
strip style-graviton 500 "$body FoldStyle=6 NewFrames=0" \
  'Six beams' 'Radius=300 Rotation=0 Distance=700 RadSegs=6 RadFill=5 QG_Force=5 GHW_Ratio=0.05
    RadiusExp=0.1 HeightExp=1 AngleTilt=140 HueStart=200 ColorMult=900 NewFreq=2500' \
  'Falling globe' 'Radius=400 Rotation=0 Distance=900 RadSegs=1 RadFill=100 QG_Force=1
    GHW_Ratio=1 RadiusExp=0.2 HeightExp=0.1 AngleTilt=160 HueStart=100 ColorMult=600 Profile=2
    NewFreq=3000' \
  'Flower wheel' 'Radius=300 Rotation=2500 Distance=450 RadSegs=8 RadFill=5 QG_Force=4 GHW_Ratio=0.1
    RadiusExp=0 HeightExp=1 AngleTilt=140 HueStart=320 ColorMult=600 NewFreq=5000'
strip style-starwave 400 "$body FoldStyle=7 NewFrames=0 AngleTilt=155" \
  Ripples 'Radius=60 Rotation=0 Distance=250 RadSegs=1 RadFill=100 RadBands=1 RadBFill=150
    GHW_Ratio=0.5 RadiusExp=5 ColorMult=3200 NewFreq=4000' \
  'Twelve fountains' 'Radius=60 Rotation=0 Distance=250 RadSegs=12 RadFill=15 RadBands=1
    RadBFill=200 GHW_Ratio=0.8 RadiusExp=8 ColorMult=2600 NewFreq=4000' \
  'Spiral tide' 'Radius=60 Rotation=2500 Distance=250 RadSegs=3 RadFill=30 RadBands=2 RadBFill=150
    GHW_Ratio=0.4 RadiusExp=5 ColorMult=1500 NewFreq=4000'

still='Universe_Stars=6000 NovaFreq=0 PulsarFreq=0 CometFreq=0 NewFrames=0 HWheelInc=0'
points lace IFS '1000 1000 1000 67 0 0 1' '400 400 1000 67 0 0 1' '1600 400 1000 67 0 0 1' \
  '400 1600 1000 67 0 0 1' '1600 1600 1000 67 0 0 1'
points snail IFS '1000 1000 1000 6 1 25 90' '1900 1000 1200 78 1 0 8' '1000 1700 1000 60 0 30 4'
points pyramid IFS '1000 100 1000 50 1 30 1' '1900 1600 1000 50 1 30 1' '550 1600 1780 50 1 30 1' \
  '550 1600 220 50 1 30 1'
strip style-user-ifs 200 "$still FoldStyle=8 Radius=500" \
  'Cross lace' '%lace Distance=600 Rotation=0 HueStart=180 ColorMult=900 AngleTilt=170' \
  Snail '%snail Distance=600 Rotation=300 HueStart=40 ColorMult=700 AngleTilt=50' \
  'Twisted pyramid' '%pyramid Distance=750 Rotation=600 HueStart=240 ColorMult=2000 AngleTilt=160'
points dioxide ATOMIC '6 1000 1000 1000 0 250 0' '8 1650 1000 1000 0 320 0' \
  '8 350 1000 1000 0 320 0'
points crystal ATOMIC '11 4 0 0 8 30 450' '17 3 0 0 8 110 450'
points cages ATOMIC '6 0 0 0 5 70 950' '8 0 0 0 4 50 550' '16 0 0 0 1 60 200'
molecule="$still FoldStyle=9 ColorComp=6 HueStart=0 Radius=500 AngleTilt=160"
strip style-molecule 200 "$molecule" \
  'Carbon dioxide' '%dioxide Distance=750 Rotation=300 ColorMult=1200' \
  Crystal '%crystal Distance=1100 Rotation=200 ColorMult=1200' \
  'Nested cages' '%cages Distance=750 Rotation=300 ColorMult=1200'
strip molecule-blending 200 "$molecule %cages Distance=750 Rotation=300" 'blending 0' ColorMult=0 \
  'blending 6000' ColorMult=6000 'blending 30000' ColorMult=30000
