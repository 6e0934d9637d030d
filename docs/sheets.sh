#!/usr/bin/env bash
# Renders the contact sheets of the factory settings into docs/pictures/sheets/: every profile and
# composite of both sets at three moments, and the eight universe themes; and six frames of each
# template into docs/pictures/templates/.
# Usage: docs/sheets.sh PROGRAM   (the path of starfolds-render)
set -euo pipefail
program=$(realpath "$1")
mkdir -p "$(dirname "${BASH_SOURCE[0]}")/pictures/sheets"
mkdir -p "$(dirname "${BASH_SOURCE[0]}")/pictures/templates"
cd "$(dirname "${BASH_SOURCE[0]}")/pictures/sheets"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# picture SIZE FILE FRAME OPTION...: writes one frame.
picture() {
  local size=$1 file=$2 frame=$3
  shift 3
  "$program" --size "$size" --frames "$frame" --first "$frame" --png "$scratch/frame" "$@"
  mv "$scratch"/frame/frame-*.png "$file"
}

# tile FILE FRAME OPTION...: writes one frame as a tile.
tile() { picture 384x216 "$@"; }

# moment FILE FRAME OPTION...: writes one frame of a body, half as wide as a tile.
moment() { picture 192x108 "$@" --seed 5; }

# sheet FILE COLUMNS: assembles all tiles in the order of their names, each above its caption.
sheet() {
  local file=$1 columns=$2 arguments=() picture label
  for picture in "$scratch"/tiles/*.png; do
    label=$(basename "$picture" .png)
    arguments+=(-label "${label#*_}" "$picture")
  done
  montage -background '#303030' -fill '#d0d0d0' -pointsize 13 "${arguments[@]}" \
    -tile "${columns}x" -geometry +3+3 "$scratch/sheet.png"
  # In a step of its own: montage reduces the tiles one by one, and PNG8 then all colours to 256
  # fixed ones.
  convert "$scratch/sheet.png" +dither -colors 255 -strip "png8:$file"
  rm -r "$scratch/tiles"
}

# bodies SET KIND VISIT: makes a sheet of all profiles or composites of a set, three moments of each:
# alone at the frames 250 and 800, and at the frame VISIT of a universe that visits it first.
# Undefined ones repeat the first one.
bodies() {
  local set=$1 kind=$2 visit=$3 number name frame first=1
  [ "$kind" = profile ] || first=51 # in the list of bodies to visit, composites follow 50 profiles
  mkdir -p "$scratch/tiles" "$scratch/moments"
  "$program" --factory "$set" --list --hash | sed -n "s/^$kind //p" | grep -v ' Undefined$' |
    while read -r number name; do
      for frame in 250 800; do
        moment "$scratch/moments/$frame.png" "$frame" --factory "$set" "--$kind" "$number" \
          --set Universe_STrail=1 --set Universe_Stars=5000
      done
      moment "$scratch/moments/visit.png" "$visit" --factory "$set" \
        --set Universe_GS_Idx=$((10#$number + first))
      montage -background '#303030' "$scratch"/moments/{250,800,visit}.png -tile 3x \
        -geometry +1+0 "$(printf '%s/tiles/%02d_%s %s.png' "$scratch" "$number" "$number" \
          "${name//\// }")"
    done
  sheet "set$set-${kind}s.png" 2
}

# themes: shows blast, end of the blast, a visit and the pull-out of each theme. The frame numbers
# follow from its steps: a visit has steps times control points, and the pull-out follows the last.
themes() {
  local theme blast steps approach closein visit
  local -a step=(0 160 100 250 300 160 250 75 300) points=(0 2 2 1 3 2 1 1 1)
  local -a core=(0 3 4 4 0 2 4 1 0) expand=(0 300 300 500 1 300 300 250 300)
  mkdir -p "$scratch/tiles"
  for theme in 1 2 3 4 5 6 7 8; do
    blast=${expand[theme]} steps=${step[theme]} approach=${points[theme]} closein=${core[theme]}
    visit=$((steps * (approach + closein)))
    tile "$scratch/tiles/${theme}1_theme $theme: blast.png" $((blast / 30 + 2)) --theme "$theme"
    tile "$scratch/tiles/${theme}2_theme $theme: settling.png" $((blast / 2 + 12)) --theme "$theme"
    tile "$scratch/tiles/${theme}3_theme $theme: visit.png" \
      $((blast + visit - steps / 2)) --theme "$theme"
    tile "$scratch/tiles/${theme}4_theme $theme: pull-out.png" \
      $((blast + visit + steps * approach / 5)) --theme "$theme" --set Universe_Recycle=1
  done
  sheet themes.png 4
}

# template NAME FRAME...: makes a sheet of selected frames of one universe of a template.
template() {
  local name=$1 frame
  shift
  mkdir -p "$scratch/tiles"
  for frame in "$@"; do
    tile "$(printf '%s/tiles/%05d.png' "$scratch" "$frame")" "$frame" --seed 4 \
      --template "../../../templates/$name.sfd"
  done
  montage -background '#303030' "$scratch"/tiles/*.png -tile 3x -geometry +3+3 -strip \
    -colors 255 "PNG8:../templates/$name.png"
  rm -r "$scratch/tiles"
}

# At these frames of its visit the body fills the view, and the camera has not yet passed it. The
# second set's is later because its tour has 250 frames for each control step, not 160.
for kind in profile composite; do
  bodies 0 "$kind" 820
  bodies 1 "$kind" 1000
done
themes

template clockwork 201 744 1649 2554 3278 4183
template deep-field 242 1130 2240 3128 4016 4904
template ember-veils 384 748 1658 2386 3296 4752
template falling-together 140 620 980 1580 2300 3140
template fern-house 220 1020 1820 2820 3620 5420
template molecule-garden 748 1658 2568 3296 4206 4934
template night-express 69 363 559 804 951 1343
template one-lotus 182 506 1154 2126 3098 4394
template pocket-universe 332 644 1268 2204 2672 3452
template quiet-night 20 1112 2750 3842 4934 7391
template slow-tide 420 1020 1820 2620 3620 4620
template storm-front 248 476 1046 1616 2072 3098
