#!/bin/bash
# install_test.sh CMAKE BUILD: installs the build as a package would, below a folder of its own, and
# looks at it with the eyes of those who use it there.
set -u
cmake=$1
build=$2
faults=0
root=$(mktemp -d)
trap 'rm -r "$root"' EXIT

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

DESTDIR=$root "$cmake" --install "$build" --prefix /usr >/dev/null || exit 1
share=$root/usr/share

for file in "$share/applications/starfolds.desktop" \
            "$share/applications/screensavers/starfolds.desktop" \
            "$root/etc/xdg/autostart/starfolds-idle.desktop"; do
  desktop-file-validate "$file" || fault "$file is not valid"
  icon=$(sed -n 's/^Icon=//p' "$file")
  [ -s "$share/icons/hicolor/scalable/apps/$icon.svg" ] || fault "$file: there is no icon '$icon'"
  # The program, in whatever folder the file looks for it.
  for program in $(sed -n 's/^\(Try\)\?Exec=\([^ ]*\).*/\2/p' "$file"); do
    [ "${program#/}" = "$program" ] && program=/usr/bin/$program
    "$root$program" --version >/dev/null || fault "$file: $program does not run"
  done
done

# MATE and Xfce take savers with these two lines alone, and start none but from such a folder.
saver=$share/applications/screensavers/starfolds.desktop
for line in 'Categories=Screensaver;' 'OnlyShowIn=MATE;XFCE;' \
            'Exec=/usr/libexec/xscreensaver/starfolds --root'; do
  grep -qxF "$line" "$saver" || fault "the saver's desktop file lacks $line"
done
[ -s "$share/xscreensaver/config/starfolds.xml" ] || fault "XScreenSaver's settings are missing"

# Of the two that start the idle service, the unit acts where systemd runs the session.
unit=$root/usr/lib/systemd/user/graphical-session.target.wants/starfolds-idle.service
grep -qxF 'ExecStart=/usr/bin/starfolds-idle' "$unit" || fault "the unit of the idle service is missing"
grep -qxF 'X-systemd-skip=true' "$root/etc/xdg/autostart/starfolds-idle.desktop" ||
  fault "the idle service is started twice"

# Files of templates have a type, which the program opens; its own lie where it looks for them.
type=application/x-starfolds-template
update-mime-database "$share/mime" 2>/dev/null
grep -qxF "50:$type:*.sfd" "$share/mime/globs2" || fault "no file is a template"
for line in "MimeType=$type;" 'Exec=starfolds --window %f'; do
  grep -qxF "$line" "$share/applications/starfolds.desktop" || fault "the desktop file lacks $line"
done
[ -s "$root/usr/bin/../share/starfolds/templates/one-lotus.sfd" ] || fault "there are no templates"

appstreamcli validate --no-net --pedantic "$share"/metainfo/*.xml || fault 'the metadata are not valid'
for icon in "$share"/icons/hicolor/*x*/apps/starfolds.png; do
  size=$(identify -format '%wx%h' "$icon")
  [[ $icon == */"$size"/apps/* ]] || fault "$icon is $size"
done
for program in "$root"/usr/bin/*; do
  page=$share/man/man1/$(basename "$program").1
  mandoc -T lint "$page" || fault "$page is not valid"
done

[ "$faults" = 0 ] || exit 1
