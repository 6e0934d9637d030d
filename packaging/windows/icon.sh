#!/usr/bin/env bash
# icon.sh SVG FILE: draws the icon for Windows from the SVG that packaging/icon.sh makes. Needs
# ImageMagick.
set -euo pipefail
svg=$1
file=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

# The commands that draw the icon with 16 units for one of the SVG. A disc has a diameter of at
# least 1.3 pixels of the icon: smaller ones are only a grey veil in a small icon.
drawing() {
  local pixels=$1
  echo "fill '#03030c' roundrectangle 0,0 1023,1023 192,192"
  sed -n 's/^<circle cx="\(.*\)" cy="\(.*\)" r="\(.*\)" fill="\(.*\)".*/\1 \2 \3 \4/p' "$svg" |
    awk -v pixels="$pixels" '{
      radius = $3 * pixels / 64 < 0.65 ? 0.65 * 64 / pixels : $3
      printf "fill \047%s\047 circle %g,%g %g,%g\n", $4, 16*$1, 16*$2, 16*($1+radius), 16*$2
    }'
}

pictures=()
for pixels in 16 20 24 32 40 48 64 256; do
  convert -size 1024x1024 xc:none -draw "$(drawing "$pixels")" -filter Box \
    -resize "${pixels}x$pixels" -depth 8 -strip "$folder/$pixels.png"
  pictures+=("$folder/$pixels.png")
done
convert "${pictures[@]}" "$file"
