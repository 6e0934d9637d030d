#!/usr/bin/env bash
# Makes the pictures of the help: docs/help/pictures/*@2x.png, at twice their shown density.
# Usage: docs/help/pictures.sh RENDER DIALOG_PICTURES   (the paths of the two programs)
set -euo pipefail
render=$(realpath "$1")
dialogs=$(realpath "$2")
mkdir -p "$(dirname "${BASH_SOURCE[0]}")/pictures"
folder=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# keep NAME PICTURE [OPTION]...: stores a picture with few colours, as a small file.
keep() {
  local name=$1 picture=$2
  shift 2
  convert "$picture" "$@" +dither -colors 64 -strip "png8:$folder/$name@2x.png"
}

# frame FILE SIZE NUMBER OPTION...: writes one frame of a run.
frame() {
  local file=$1 size=$2 number=$3
  shift 3
  rm -rf one
  "$render" --size "$size" --scale 2 --frames "$number" --first "$number" --png one "$@"
  mv one/*.png "$file"
}

# body FILE SIZE NUMBER PROFILE SECTION SETTING...: writes one frame of a single body. The section
# contains the rows that no option sets: its name, then one row per line. In a template the first
# section of a name counts.
body() {
  local file=$1 size=$2 number=$3 profile=$4 section=$5 setting options=()
  shift 5
  for setting in "$@"; do options+=(--set "Starfold$profile/Starfold_$setting"); done
  "$render" --save settings.sfd "${options[@]}"
  {
    if [[ -n $section ]]; then
      printf '[UniFold%d\\%s\n' "$profile" "$section" | sed 's/$/\r/'
    fi
    cat settings.sfd
  } >body.sfd
  frame "$file" "$size" "$number" --template body.sfd --profile "$profile"
}

# row NAME FILE...: joins pictures side by side, with a line between them.
row() {
  local name=$1
  shift
  montage "$@" -tile "${tiles:-x1}" -geometry +4+4 -background '#808080' row.png
  keep "$name" row.png -shave 4x4
}

# Views of a universe.
frame starfold.png 560x315 870
keep starfold starfold.png
for length in 0.5 1 2; do frame "$length.png" 192x144 870 --set "FocalLength=$length"; done
row focal-length 0.5.png 1.png 2.png
for body in 0 4 9; do frame "$body.png" 192x144 300 --composite "$body"; done
row composites 0.png 4.png 9.png
for factor in 1 5; do
  for seed in 1 2 3; do
    frame "$factor-$seed.png" 144x108 120 --profile 4 --seed "$seed" \
      --set Adv_Randomize=1 --set "Adv_RandomMag=$factor" --set Starfold4/Starfold_Distance=1500
  done
done
tiles=3x row random 1-{1,2,3}.png 5-{1,2,3}.png

# The levels of a disc: one, three, with interleaved tilts, and thin bands.
levels=(Radius=300 Distance=1200 StdLevels=3 StdLevDRad=300)
body 1.png 192x144 200 0 '' Radius=300 Distance=1200
body 2.png 192x144 200 0 '' "${levels[@]}"
body 3.png 192x144 200 0 '' "${levels[@]}" AngleTInc=1 StdLevB_A0=1
row levels 1.png 2.png 3.png
body disc.png 400x300 200 0 '' "${levels[@]}" AngleTInc=1 StdLevB_A0=1 StdLevHSca=0 RadBFill=30
keep levels-disc disc.png

# A fern: its stem, with one leaf, with both.
centre=$'IFS_CenterX=1000\nIFS_CenterY=1000\nIFS_CenterZ=1000'
stem='* 1030 2000 1000   15    2  356   80'
left='* 1000  440 1000   65    2   55   10'
right='* 1000  560 1000   65    2  305   10'
fern=(Radius=600 Rotation=500 Distance=1000 AngleTilt=0 AngleTInc=0)
body 2.png 192x144 20 40 $'IFS]\n'"$centre"$'\nIFS_P0='"$stem"$'\nIFS_P1='"$left" \
  "${fern[@]}" IFS_Points=2
body 3.png 192x144 20 40 \
  $'IFS]\n'"$centre"$'\nIFS_P0='"$stem"$'\nIFS_P1='"$left"$'\nIFS_P2='"$right" \
  "${fern[@]}" IFS_Points=3
row fern 2.png 3.png

# Water, and every structure of an atom.
centre=$'Atom_CenterX=1000\nAtom_CenterY=1100\nAtom_CenterZ=1000'
body water.png 400x300 40 42 $'ATOMIC]\n'"$centre"$'
Atom_P00=*    8 1000 1000 1000    0  200    0
Atom_P01=*    1 1280 1215 1000    0  120    0
Atom_P02=*    1  720 1215 1000    0  120    0' \
  Atoms=3 Radius=1500 Rotation=750 Distance=1000 AngleTilt=0 AngleTInc=0
keep water water.png
centre=$'Atom_CenterX=0\nAtom_CenterY=0\nAtom_CenterZ=0'
structures=()
for structure in {0..11}; do
  distance=1000 points=0 offset=25 tilt=20
  if ((structure == 0)); then offset=300; fi
  if ((structure > 5)); then distance=2000 points=5; fi
  if ((structure == 6 || structure == 7)); then tilt=50; fi
  if ((structure == 11)); then distance=3500; fi
  atom=$(printf '* %4d %4d %4d %4d %4d %4d %4d' 6 "$points" 0 0 "$structure" "$offset" 200)
  body "structure-$structure.png" 144x108 60 42 $'ATOMIC]\n'"$centre"$'\nAtom_P00='"$atom" \
    Atoms=1 Radius=2000 Rotation=300 "Distance=$distance" "AngleTilt=$tilt" AngleTInc=0 \
    CometFreq=0 NewFreq=0 NovaFreq=0 PulsarFreq=0
  structures+=("structure-$structure.png")
done
tiles=4x row structures "${structures[@]}"

# The dialogs, with few colours, which keeps the files small.
dialog() {
  local name=$1 picture=$2
  shift 2
  convert "shown/$picture.png" -filter box "$@" +repage +dither -colors 40 -strip \
    -define png:compression-filter=0 "png8:$folder/$name@2x.png"
}
QT_SCALE_FACTOR=2 "$dialogs" shown light 2>/dev/null
dialog dialog-universe light-universe-0 -resize 1100x
dialog dialog-types light-universe-0 -crop 730x985+0+30 -resize 520x
dialog dialog-starfold light-style-0 -resize 1100x
