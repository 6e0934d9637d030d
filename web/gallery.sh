#!/usr/bin/env bash
# Renders the pictures of the page's gallery: each profile and composite of both factory sets, the
# universe themes and the shipped templates; and writes the list of them. Does nothing if the
# folder was made by the same renderer, templates and scripts.
# Usage: web/gallery.sh PROGRAM FOLDER   (the path of starfolds-render; the folder to write)
set -euo pipefail
program=$(realpath "$1")
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
templates=$here/../templates
mkdir -p "$2"
folder=$(realpath "$2")

stamp=$(cat "$program" "$here"/gallery.sh "$here"/gallery.mjs "$templates"/* \
  "$here/../docs/help/universe-view.md" | sha256sum | cut -d ' ' -f 1)
[[ $(cat "$folder/stamp" 2>/dev/null) != "$stamp" ]] || exit 0
rm -rf "${folder:?}"/*
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# picture ID FRAME OPTION...: writes one frame as FOLDER/ID-HASH.webp. The hash of the contents in
# the name lets browsers keep pictures forever.
picture() {
  local id=$1 frame=$2 file
  shift 2
  "$program" --size 384x216 --frames "$frame" --first "$frame" --png "$scratch/$id" "$@"
  cwebp -quiet -lossless -m 6 "$scratch/$id"/frame-*.png -o "$scratch/$id.webp"
  file=$id-$(sha256sum "$scratch/$id.webp" | cut -c 1-10).webp
  mv "$scratch/$id.webp" "$folder/$file"
  rm -r "${scratch:?}/$id"
}

# bodies SET KIND: pictures of all profiles or composites of a set.
bodies() {
  local set=$1 kind=$2 number
  grep "^$kind " "$scratch/set$set.list" | grep -v ' Undefined$' |
    while read -r _ number _; do
      picture "set$set-$kind$number" 300 --factory "$set" "--$kind" "$number" \
        --set Universe_STrail=1 --set Universe_Stars=5000 </dev/null
    done
}

# A theme's first visit, near the core.
themes() {
  local theme blast steps points
  for theme in 1 2 3 4 5 6 7 8; do
    "$program" --theme "$theme" --save "$scratch/theme$theme.sfd"
    value() { sed -n "s/^Universe_$1=\([0-9]*\).*/\1/p" "$scratch/theme$theme.sfd"; }
    blast=$(value ESteps) steps=$(value GSteps)
    points=$(($(value GPCtrl) + $(value GCCtrl)))
    picture "theme$theme" $((blast + steps * points - steps / 2)) --theme "$theme"
  done
}

# template NAME FRAME: a picture of a template, and its file.
template() {
  picture "template-$1" "$2" --seed 4 --template "$templates/$1.sfd"
  cp "$templates/$1.sfd" "$folder/"
}

for set in 0 1; do
  "$program" --factory "$set" --list --hash >"$scratch/set$set.list"
  "$program" --factory "$set" --save "$scratch/set$set.sfd"
  bodies "$set" profile
  bodies "$set" composite
done
themes
template clockwork 744
template deep-field 3128
template ember-veils 2386
template falling-together 1580
template fern-house 1820
template molecule-garden 2568
template night-express 804
template one-lotus 2126
template pocket-universe 2204
template quiet-night 3842
template slow-tide 1820
template storm-front 2072

node "$here/gallery.mjs" "$scratch" "$templates" "$here/../docs/help/universe-view.md" "$folder"
printf '%s\n' "$stamp" >"$folder/stamp"
