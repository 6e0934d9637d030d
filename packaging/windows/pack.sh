#!/usr/bin/env bash
# pack.sh BUILD: makes the installer and the zip of BUILD, a build for Windows, in that folder. Needs
# NSIS, zip and ImageMagick, and prints the names of both files.
set -euo pipefail
build=$(readlink -f "$1")
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
root=$here/../..
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=starfolds-$version
stage=$build/package/$name

rm -rf "$build/package"
mkdir -p "$stage/templates"
cp "$build/src/app/starfolds.scr" "$build/src/render/starfolds-render.exe" "$stage/"
cp "$root"/templates/*.sfd "$stage/templates/"
# Windows' oldest editors show no other line ends.
sed 's/$/\r/' "$here/README.txt" >"$stage/README.txt"
sed 's/$/\r/' "$root/LICENSE" >"$stage/LICENSE.txt"

# The commands that remove the templates of this version, and none that the user has saved there.
for file in "$stage"/templates/*; do
  printf 'Delete "$Scenes\\%s"\n' "$(basename "$file")"
done >"$build/package/templates.nsh"

# Stars in their own size: a smaller picture would lose them.
convert "$root/docs/pictures/readme.png" -gravity center -crop 164x314+0+0 +repage \
  "BMP3:$build/package/side.bmp"

makensis -V2 -WX "-DVERSION=$version" "-DPACKAGE=$stage" "-DPARTS=$build/package" \
  "-DSETUP=$build/$name-setup.exe" "$here/installer.nsi" >&2
(cd "$build/package" && rm -f "$build/$name.zip" && zip -qrX9 "$build/$name.zip" "$name")
printf '%s\n' "$build/$name-setup.exe" "$build/$name.zip"
