#!/usr/bin/env bash
# Makes the templates of this folder, by changes to the factory settings. Bodies that are not named
# keep their factory settings, with weight 0.
# Usage: templates/make.sh PROGRAM [NAME]...   (the path of starfolds-render; these, or all)
set -euo pipefail
program=$(realpath "$1")
shift
cd "$(dirname "${BASH_SOURCE[0]}")"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# begin OPTION...: starts a universe from --theme or --factory, without bodies.
begin() {
  options=("$@" --set _UniFoldPct=0)
  points=''
  local number
  for number in {0..15}; do options+=(--set "CompFold$number/_CompFoldPct=0"); done
}

# settings PREFIX NAME=VALUE...: sets settings whose names share a prefix.
settings() {
  local prefix=$1 setting
  shift
  for setting in "$@"; do options+=(--set "$prefix$setting"); done
}

universe() { settings Universe_ "$@"; }

delay() { options+=(--set "Adv_TimeDelay=$1"); }

# body NUMBER WEIGHT NAME SETTING=VALUE...: sets a profile, starting from the factory's of that
# number. Settings that several bodies share are one text, which the shell splits into words.
body() {
  options+=(--set "Starfold$1/_UniFoldPct=$2" --set "Starfold$1/_UniFoldName=$3")
  settings "Starfold$1/Starfold_" "${@:4}"
}

# composite NUMBER WEIGHT NAME MEMBER...: sets a composite.
composite() {
  local number=$1 member=0 profile
  options+=(--set "CompFold$number/_CompFoldPct=$2" --set "CompFold$number/_CompFoldName=$3")
  shift 3
  options+=(--set "CompFold$number/CompFold_Count=$#")
  for profile in "$@"; do
    options+=(--set "CompFold$number/CompFold_Type$member=$profile")
    member=$((member + 1))
  done
}

# section NUMBER IFS|ATOMIC PREFIX KEY COUNTER ROW...: writes the rows of a sub-section, each of seven
# numbers. Coordinates are relative to the centre at 5000; 1000 is the radius of the body.
section() {
  local number=$1 prefix=$3 key=$4 row
  points+=$(printf '[UniFold%d\\%s]\r\n' "$number" "$2")$'\n'
  for row in X Y Z; do points+="${prefix}_Center$row=5000"$'\r\n'; done
  settings "Starfold$number/Starfold_" "$5=$(($# - 5))"
  shift 5
  local -i index=0
  local -a numbers
  for row in "$@"; do
    read -ra numbers <<<"$row"
    # shellcheck disable=SC2059
    points+=$(printf "$key=*%5d%5d%5d%5d%5d%5d%5d\r\n" "$index" "${numbers[@]}")$'\n'
    index+=1
  done
}

# ifs NUMBER 'X Y Z SCALE AXIS ANGLE SHARE'...: attractor points; SCALE percent of the way.
ifs() {
  local number=$1 row x y z rest
  local -a rows=()
  shift
  for row in "$@"; do
    read -r x y z rest <<<"$row"
    rows+=("$((5000 + x)) $((5000 + y)) $((5000 + z)) $rest")
  done
  section "$number" IFS IFS 'IFS_P%d' IFS_Points "${rows[@]}"
}

# atoms NUMBER 'ELEMENT X Y Z SIZE'...: single atoms, each a shell of stars around its place.
atoms() {
  local number=$1 row element x y z size
  local -a rows=()
  shift
  for row in "$@"; do
    read -r element x y z size <<<"$row"
    rows+=("$element $((5000 + x)) $((5000 + y)) $((5000 + z)) 0 $size 0")
  done
  section "$number" ATOMIC Atom 'Atom_P%02d' Atoms "${rows[@]}"
}

# lattice NUMBER 'ELEMENT STRUCTURE EDGE SIZE DISTANCE'...: shells (1 to 5) and crystals (6 to 11).
lattice() {
  local number=$1 row element structure edge size distance
  local -a rows=()
  shift
  for row in "$@"; do
    read -r element structure edge size distance <<<"$row"
    rows+=("$element $edge 0 0 $structure $size $distance")
  done
  section "$number" ATOMIC Atom 'Atom_P%02d' Atoms "${rows[@]}"
}

# finish NAME: writes NAME.sfd. No option sets the points of a body, but the reader uses the first
# section of a name: so the points are put before the settings, and the result is written again.
finish() {
  "$program" "${options[@]}" --save "$scratch/settings.sfd"
  printf '%s' "$points" | cat - "$scratch/settings.sfd" >"$scratch/whole.sfd"
  "$program" --template "$scratch/whole.sfd" --save "$1.sfd"
}

# ---- the universes ------------------------------------------------------------------------------

deep-field() { # a few great galaxies, far apart, and long quiet ways between them
  begin --theme 3
  delay 33
  universe Stars=16000 Starfold=16 Expand=1300 ESteps=420 DstCen=60000 GSteps=240 GPCtrl=2 \
    GCCtrl=2 Profile=0 NewFreq=4000 NewPctStEx=80 HW_Start=400 HW_End=310 GVisit=1 AmStar=1500 \
    AmFrames=8 AmMaxExt=1500 AmCAge=0.05
  local galaxy='Radius=900 Distance=1300 NewFreq=1500 NewFrames=6 NewExtMult=300 NovaFreq=60
    NovaExtMult=2600 PulsarFreq=0 CometFreq=900 CometStars=100 CometOrbit=100 CometSpeed=80
    CometSWind=600'
  body 0 30 'Sombrero' $galaxy Rotation=700 GHW_Ratio=0.22 AngleTilt=168 HueStart=215 \
    ColorMult=1900 HueBase=35 HWC_Start=190 HWC_End=240
  body 40 40 'Grand Spiral' $galaxy Rotation=160 AngleTilt=140 AngleTInc=0 HueStart=200 \
    HWheelInc=0 ColorMult=1800 HueBase=35 HWC_Start=30 HWC_End=60
  ifs 40 '0 0 0 7 1 22 84' '1000 0 0 80 1 0 6' '-1000 0 0 80 1 0 6' '0 120 0 60 1 40 4'
  body 41 30 'Barred Spiral' $galaxy Rotation=120 AngleTilt=125 AngleTInc=0 HueStart=330 \
    HWheelInc=0 ColorMult=900 HueBase=40 HWC_Start=0 HWC_End=50
  ifs 41 '0 0 0 12 1 30 70' '1000 0 0 70 1 90 10' '-1000 0 0 70 1 90 10' '0 0 0 60 1 0 10'
  body 8 0 'Halo' $galaxy Rotation=300 GHW_Ratio=0.9 RadiusExp=0.8 HueStart=20 ColorMult=500 \
    HueBase=60
  composite 0 20 'Spiral in a Halo' 40 40 40 8
}

molecule-garden() { # molecules in the colours of their elements
  begin --theme 5
  delay 33
  universe Stars=12000 Starfold=24 Expand=650 ESteps=260 GSteps=200 GPCtrl=2 GCCtrl=2 Profile=47 \
    NewFreq=5000 NewPctStEx=74 HW_Start=180 HW_End=60 GVisit=1 Recycle=12 AmStar=900 AmFrames=12
  local common='Radius=600 Distance=1500 Rotation=150 HWheelInc=0 HueStart=0 HueBase=15
    NewFreq=1500 NewFrames=3 NewExtMult=150 NovaFreq=40 NovaExtMult=1500 PulsarFreq=0 CometFreq=0
    FoldStyle=9 ColorComp=6 ColorMult=1200'
  body 42 10 'Water' $common AngleTilt=160 AngleTInc=0.25
  atoms 42 '8 0 -100 0 420' '1 -620 420 0 260' '1 620 420 0 260'
  body 43 10 'Methane' $common AngleTilt=150 AngleTInc=0.3
  atoms 43 '6 0 0 0 380' '1 480 480 480 230' '1 480 -480 -480 230' '1 -480 480 -480 230' \
    '1 -480 -480 480 230'
  body 44 12 'Benzene' $common AngleTilt=110 AngleTInc=0.2
  atoms 44 '6 520 0 0 220' '6 260 0 450 220' '6 -260 0 450 220' '6 -520 0 0 220' \
    '6 -260 0 -450 220' '6 260 0 -450 220' '1 960 0 0 130' '1 480 0 831 130' '1 -480 0 831 130' \
    '1 -960 0 0 130' '1 -480 0 -831 130' '1 480 0 -831 130'
  body 45 12 'Caffeine' $common AngleTilt=120 AngleTInc=0.15
  atoms 45 '7 -480 0 175 130' '6 -480 0 -175 120' '7 -175 0 -350 130' '6 128 0 -175 120' \
    '6 128 0 175 120' '6 -175 0 350 120' '7 460 0 283 130' '6 668 0 0 120' '7 460 0 -283 130' \
    '8 -175 0 660 150' '8 -750 0 -333 150' '6 -800 0 363 120' '6 -175 0 -718 120' \
    '6 575 0 638 120' '1 937 0 0 70' '1 -960 160 330 70' '1 -960 -160 330 70' '1 -820 0 560 70' \
    '1 -20 160 -850 70' '1 -20 -160 -850 70' '1 -380 0 -820 70' '1 450 160 830 70' \
    '1 450 -160 830 70' '1 780 0 720 70'
  body 46 8 'Salt Crystal' $common AngleTilt=155 AngleTInc=0.2
  lattice 46 '11 8 4 40 500' '17 8 3 90 500'
  body 47 8 'Nested Cages' $common AngleTilt=160 AngleTInc=0.4
  lattice 47 '6 5 0 60 950' '6 5 0 60 950' '8 4 0 40 400' '16 1 0 40 150'
  body 48 12 'Helix' $common Radius=700 AngleTilt=165 AngleTInc=359.9 Rotation=300
  local -a helix # two strands of eleven, and ten of a ladder's rungs between them
  mapfile -t helix < <(awk '
    function atom(element, step, turn, distance, size) {
      printf "%d %d %d %d %d\n", element, distance * cos(step * 0.62 + turn), (step - 5) * 190,
        distance * sin(step * 0.62 + turn), size
    }
    BEGIN {
      for (i = 0; i <= 10; ++i) { atom(8, i, 0, 420, 110); atom(16, i, 2.6, 420, 110) }
      for (i = 0; i <= 9; ++i) atom(7, i, 1.3, 110, 60)
    }')
  atoms 48 "${helix[@]}"
  body 49 0 'Ice' $common Radius=900 AngleTilt=160 AngleTInc=0.1 HueBase=40
  lattice 49 '1 8 5 20 450'
  composite 0 10 'Water in Ice' 42 49
}

ember-veils() { # ribbons and nebulae as of smoke over a fire
  begin --theme 1
  delay 40
  universe Stars=12000 Starfold=24 Expand=700 ESteps=280 GSteps=200 GPCtrl=2 GCCtrl=2 Profile=8 \
    NewFreq=4500 NewPctStEx=72 HW_Start=50 HW_End=0 Recycle=12 AmStar=900 AmFrames=10 \
    AmMaxExt=600
  local warm='HueRed=100 HueGrn=62 HueBlu=14 HueBase=6 HWheelInc=0 NewFrames=2 NovaFreq=20
    PulsarFreq=0 CometFreq=250 HWC_Start=0 HWC_End=50'
  body 22 20 'Ember Loop' $warm HueStart=350 ColorMult=160 Distance=320 NewFreq=5000
  body 23 20 'Crescent Smoke' $warm HueStart=355 ColorMult=150 NewFreq=7000
  body 25 15 'Five Flames' $warm HueStart=0 ColorMult=130 NewFreq=5000
  body 28 20 'Silk over Coals' $warm HueStart=350 ColorMult=150 NewFreq=4500
  body 27 10 'Spark Fountain' $warm HueStart=10 NewFreq=5000 CometFreq=2000
  body 30 0 'Ashes' $warm HueStart=0 ColorMult=600 NewFreq=3000
  composite 0 12 'Smoke and Ashes' 28 30
}

quiet-night() { # silver trails, hardly a flash
  begin --theme 2
  delay 45
  universe Stars=2500 Starfold=20 STrail=12 Expand=900 ESteps=400 Damping=0.02 GSteps=300 \
    GPCtrl=2 GCCtrl=2 Profile=0 NewFreq=900 NewPctStEx=80 HW_Start=210 HW_End=230 Recycle=10 \
    AmStar=800 AmFrames=0 AmCAge=0.04
  local calm='HueRed=60 HueGrn=75 HueBlu=100 HueBase=34 HueStart=212 ColorMult=300 HWheelInc=0
    NewFrames=0 NovaFreq=0 PulsarFreq=0 NewFreq=500 CometFreq=60 CometStars=50 HWC_Start=215
    HWC_End=235'
  body 0 30 'Moon Disk' $calm Radius=400 Distance=500 Rotation=1500 AngleTilt=150
  body 1 30 'Still Rings' $calm
  body 46 20 'Night Hoops' $calm Rotation=9000
  body 8 20 'Dew' $calm Rotation=3000
  body 9 20 'Lantern' $calm Rotation=2500
  composite 0 20 'Moon and Rings' 0 1
}

storm-front() { # quasars and pulsars
  begin --theme 7
  delay 30
  universe Stars=7500 Starfold=40 STrail=4 Expand=600 ESteps=240 Damping=0.0125 GSteps=100 \
    GPCtrl=2 GCCtrl=3 Profile=8 NewFreq=5000 NewPctStEx=70 HW_Start=260 HW_End=190 Recycle=16 \
    AmStar=1000 AmFrames=20 AmMaxExt=2000 'GS_Idx=51 3 32 31 30 51 3 31'
  local storm='HueStart=240 HWheelInc=0 ColorMult=600 HueBase=36 HWC_Start=180 HWC_End=285'
  body 29 20 'Jet' $storm PulsarFreq=500 PulsarShape=2 PulsarFrames=12 PulsarMaxExt=1200
  body 30 20 'Arc Burst' $storm PulsarFreq=400 PulsarShape=4 PulsarFrames=14 PulsarCycles=2 \
    PulsarMaxExt=1800
  body 2 20 'Cyclone' $storm Rotation=1500 PulsarFreq=500 PulsarShape=1 PulsarFrames=8 \
    PulsarCycles=4 PulsarMaxExt=9000 NovaFreq=400
  body 31 20 'Charged Cell' $storm PulsarFreq=500 PulsarShape=3 PulsarFrames=16 PulsarMaxExt=2600
  body 47 0 'Thunderhead' $storm Radius=320 Distance=200 PulsarFreq=60 PulsarShape=4
  composite 0 30 'Quasar in a Thunderhead' 30 47
}

fern-house() { # fractals that grow
  begin --theme 5
  delay 40
  universe Stars=14000 Starfold=20 Expand=750 ESteps=280 GSteps=220 GPCtrl=2 GCCtrl=2 Profile=41 \
    NewFreq=4500 NewPctStEx=88 HW_Start=90 HW_End=150 Recycle=10 GVisit=1 AmStar=900 AmFrames=6
  local plant='Radius=600 Distance=1000 Rotation=200 FoldStyle=8 AngleTilt=12 AngleTInc=0
    HWheelInc=0 HueBase=8 NewFreq=1800 NewFrames=3 NewExtMult=200 NovaFreq=30 NovaExtMult=1500
    PulsarFreq=0 CometFreq=0 ColorComp=3 HWC_Start=60 HWC_End=120'
  body 40 20 'Fern' $plant Rotation=0 HueStart=85 ColorMult=700
  ifs 40 '120 1000 0 14 2 356 80' '0 -560 0 65 2 58 10' '0 -420 0 65 2 302 10'
  body 41 20 'Fir' $plant HueStart=120 ColorMult=500
  ifs 41 '0 1000 0 16 1 50 60' '0 -560 0 62 2 70 10' '0 -560 0 62 2 290 10' '0 -420 0 62 0 70 10' \
    '0 -420 0 62 0 290 10'
  body 42 15 'Dragon' $plant HueStart=20 ColorMult=400 AngleTilt=70
  ifs 42 '-450 0 -100 29 1 45 50' '270 0 140 29 1 135 50'
  body 43 15 'Five-Petal Snow' $plant HueStart=150 ColorMult=600 AngleTilt=60
  ifs 43 '0 0 1000 62 1 0 20' '951 0 309 62 1 0 20' '588 0 -809 62 1 0 20' \
    '-588 0 -809 62 1 0 20' '-951 0 309 62 1 0 20'
  body 44 15 'Sea Snail' $plant HueStart=40 ColorMult=700 AngleTilt=50
  ifs 44 '0 0 0 8 1 30 88' '900 0 200 75 1 60 8' '0 900 0 50 0 30 4'
  body 36 0 'Bell Jar' Radius=560 Distance=1000 GHW_Ratio=1.1 RadSegs=12 HueStart=185 HWheelInc=0 \
    ColorMult=100 HueBase=35 NewFrames=3 NovaFreq=30 PulsarFreq=0 CometFreq=0
  composite 0 10 'Fern under Glass' 40 40 40 36
}

falling-together() { # small worlds that fall towards each other, pass and part again
  begin --theme 8
  delay 33
  universe Stars=12000 Starfold=9 Expand=800 ESteps=260 Damping=0.02 GravForce=50000 GSteps=160 \
    GPCtrl=3 GCCtrl=0 DstCen=6500 Tour=1 GVisit=1 Profile=8 NewFreq=2500 NewPctStEx=35 \
    HW_Start=20 HW_End=280 Recycle=6 AmStar=300 AmFrames=20 AmMaxExt=1500
  local world='HWheelInc=0 PulsarFreq=0 CometFreq=0 NewFrames=6 NovaFreq=200'
  body 5 20 'Sun of Rust' $world Radius=700 HueStart=5 ColorMult=500 Distance=2200
  body 47 20 'Water World' $world Radius=600 HueStart=190 ColorMult=400 Distance=2200
  body 11 20 'Ringed Giant' $world Radius=400 HueStart=25 ColorMult=400 Distance=2500
  body 9 20 'Violet Top' $world Radius=800 HueStart=270 ColorMult=500 Distance=2200
  body 8 20 'Moss Ball' $world Radius=600 HueStart=110 ColorMult=300 Distance=2200
}

night-express() { # through tunnels, never slowing down
  begin --theme 7
  delay 25
  universe Stars=7500 Starfold=60 STrail=4 Expand=900 ESteps=220 Damping=0.0125 GSteps=50 \
    GPCtrl=1 GCCtrl=3 Recycle=40 NewFreq=9000 NewPctStEx=95 HW_Start=60 HW_End=200 Profile=2 \
    AmStar=800 AmFrames=8 'GS_Idx=51 43 2 3 1 43 51 2 43 3 51 2'
  local tube='FoldStyle=0 Profile=6 RadiusExp=0.02 HeightExp=1 AngleTilt=90 AngleTInc=0 GHW_Ratio=5
    Radius=200 Distance=1100 NewFreq=9000 NewFrames=0 NovaFreq=15 PulsarFreq=0 CometFreq=100
    ColorComp=3 ColorMult=60 HWheelInc=0.1 HueBase=8'
  body 0 30 'Tunnel of Rails' $tube RadSegs=14 RadFill=3 Rotation=300 HueStart=160
  body 1 30 'Tunnel of Light' $tube RadSegs=3 RadFill=40 Rotation=2500 HueStart=280 RadBands=1 \
    RadBFill=100
  body 2 20 'Hyperbolic Gate' $tube Profile=4 RadiusExp=0.6 GHW_Ratio=3 HeightExp=0.02 RadSegs=12 \
    RadFill=5 Rotation=300 HueStart=40 ColorMult=300 Radius=400
  body 45 0 'Signals' $tube StdLevels=1 Radius=230 GHW_Ratio=0.02 HueStart=0 ColorMult=0 \
    HWheelInc=0
  body 42 25 'Lattice City' Radius=600 Distance=900 Rotation=0 AngleTilt=180 AngleTInc=0 \
    HueStart=200 HueBase=10 ColorMult=2000 HWheelInc=0.1 NewFreq=9000 NewFrames=0 NovaFreq=15 \
    PulsarFreq=0 CometFreq=0
  lattice 42 '14 8 8 5 350'
  composite 0 30 'Tunnel with Signals' 0 0 0 45
}

one-lotus() { # a single flower of light, seen for a long time
  begin --theme 4
  delay 50
  universe Stars=20000 Starfold=1 Expand=100 ESteps=80 Damping=0.04 DstCen=3000 GSteps=200 \
    GPCtrl=12 GCCtrl=0 Profile=47 Recycle=1 NewFreq=900 NewPctStEx=100 HW_Start=300 HW_End=330 \
    AmStar=60 AmFrames=60 AmPers=0.995
  local petal='FoldStyle=0 PulsarFreq=0 NovaFreq=10 NovaExtMult=1500 NewFrames=10 NewExtMult=150
    NewFreq=900 HWheelInc=0.004 HueBase=18 CometFreq=60 CometStars=40 AxisPlane=0 Rotation=150
    AngleTilt=150 AngleTInc=359.982 StdLevels=1 Distance=1400 Profile=5'
  body 45 0 'Outer Petals' $petal Radius=800 RadSegs=12 RadFill=45 GHW_Ratio=0.4 HeightExp=0.05 \
    RadiusExp=0.5 HueStart=300 ColorMult=500
  body 46 0 'Inner Petals' $petal Radius=500 RadSegs=8 RadFill=50 GHW_Ratio=0.8 HeightExp=0.05 \
    RadiusExp=0.5 HueStart=325 ColorMult=500
  body 47 0 'Stamens' $petal Radius=180 RadSegs=24 RadFill=5 GHW_Ratio=1.8 HeightExp=0.05 \
    RadiusExp=0.8 HueStart=45 ColorMult=200
  composite 0 10 'Lotus' 45 45 45 46 46 47
}

pocket-universe() { # few stars, but large ones: for old machines and small screens
  begin --theme 1
  delay 50
  universe Stars=1800 Starfold=12 Expand=350 ESteps=200 GSteps=140 NewFreq=1000 NewPctStEx=75 \
    HW_Start=120 HW_End=200 Recycle=8 GVisit=1 AmStar=300 AmFrames=30 Profile=50
  local toy='NewFreq=500 NewFrames=50 NewExtMult=500 NovaFreq=600 NovaExtMult=1200 PulsarFreq=0
    CometFreq=900 CometStars=30 HWheelInc=0'
  body 3 20 'Tin Starfish' $toy Distance=900 NewExtMult=900 HueStart=150
  body 16 20 'Sea Urchin' $toy HueStart=60
  body 20 20 'Paper Lantern' $toy NewExtMult=700 HueStart=20 ColorMult=500
  body 46 20 'Hoops' $toy NewExtMult=2200 HueStart=195
  body 17 20 'Catherine Wheel' $toy HueStart=320 HueRed=100 HueGrn=100 HueBlu=100
  composite 0 20 'Lantern with a Hoop' 20 46
}

slow-tide() { # waves that run out from springs of stars
  begin --theme 6
  delay 40
  universe Stars=12000 Starfold=24 Expand=700 ESteps=280 Damping=0.0125 GSteps=220 GPCtrl=2 \
    GCCtrl=2 DstCen=5000 Profile=8 NewFreq=5000 NewPctStEx=78 HW_Start=160 HW_End=220 Recycle=10 \
    GVisit=1 AmStar=900 AmFrames=15 AmMaxExt=800
  local sea='FoldStyle=7 ColorMult=100 HWheelInc=0 HueBase=10 PulsarFreq=0 NovaFreq=20 CometFreq=60
    NewFrames=0 HWC_Start=170 HWC_End=200'
  body 33 20 'Spring' $sea HueStart=175
  body 34 20 'Breakers' $sea HueStart=195 RadSegs=1 RadFill=100 RadBands=1 RadBFill=200 Radius=40 \
    RadiusExp=5 GHW_Ratio=0.5 NewFreq=4000
  body 35 20 'Three Currents' $sea HueStart=150 RadSegs=3 RadFill=25 Rotation=900 RadBands=3
  body 28 15 'Kelp' HueRed=20 HueStart=100 ColorMult=120 PulsarFreq=0 HWheelInc=0
  composite 0 15 'Kelp in the Current' 28 35
}

clockwork() { # brass wheels and gyroscopes
  begin --theme 5
  delay 33
  universe Stars=12000 Starfold=24 Expand=900 ESteps=250 GSteps=200 GPCtrl=2 GCCtrl=2 Profile=20 \
    NewFreq=5000 NewPctStEx=88 HW_Start=50 HW_End=30 Recycle=12 AmStar=400 AmFrames=10 \
    AmMaxExt=700
  local brass='HueRed=100 HueGrn=82 HueBlu=34 HueBase=6 HWheelInc=0 NewFreq=1500 NewFrames=2
    NovaFreq=20 PulsarFreq=0 CometFreq=0 ColorComp=3'
  body 45 20 'Gyroscope' $brass Radius=300 StdLevels=6 StdLevDRad=90 StdLevB_A0=1 StdLevB_A1=1 \
    AngleTInc=1.2 HueStart=20 ColorMult=400 Distance=1300
  body 12 20 'Crown Wheel' $brass Radius=600 Distance=1000 RadSegs=36 RadFill=45 RadBands=4 \
    RadBFill=30 StdLevels=1 GHW_Ratio=0.05 HueStart=35 ColorMult=200 Rotation=800 AngleTilt=130 \
    AngleTInc=0 RadiusExp=0.7
  body 11 20 'Counter Wheels' $brass RadSegs=24 RadFill=50 StdLevels=4 StdLevDRad=220 \
    StdLevB_A0=1 AngleTInc=0.4 Radius=200 Distance=1400 RadiusExp=0.05 GHW_Ratio=0.1 HueStart=28 \
    ColorMult=200
  body 20 20 'Caged Jewel' $brass HueStart=40 ColorMult=200
  body 36 10 'Bell' $brass HueStart=30
  composite 0 20 'Gyroscope with a Jewel' 45 20
}

universes=(deep-field molecule-garden ember-veils quiet-night storm-front fern-house
  falling-together night-express one-lotus pocket-universe slow-tide clockwork)
(($# > 0)) || set -- "${universes[@]}"
for name in "$@"; do
  "$name"
  finish "$name"
done
