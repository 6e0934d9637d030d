#!/bin/bash
# scale_test.sh STARFOLDS: at every scale the saver covers the whole screen, and a star is a block of
# pixels as large as the scale says. DISPLAY names a server of our own.
set -u
program=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"

# usual_area PICTURE: how many pixels most of the lit areas have. Most stars stand alone.
usual_area() {
  convert "$1" -grayscale brightness -threshold 0 -define connected-components:verbose=true \
    -connected-components 4 null: | awk '/gray\(255\)$/ { print $4 }' |
    sort -n | uniq -c | sort -rn | awk 'NR == 1 { print $2 }'
}

picture=$(mktemp --suffix .png)
xsetroot -solid '#ff00ff'
# A block is 1, 1 or 2, 1 or 2, and 2 pixels wide and high.
for scale_and_area in 1:1 1.25:1 1.5:2 2:4; do
  scale=${scale_and_area%:*}
  QT_SCALE_FACTOR=$scale start "$program" --saver --seed 5
  for _ in $(seq 1 100); do
    import -silent -window root "$picture"
    seen=$(convert "$picture" -fill black +opaque '#ff00ff' -format '%[fx:ceil(mean*w*h)]' info:)
    area=
    [ "$seen" = 0 ] && area=$(usual_area "$picture")
    [ "$area" = "${scale_and_area#*:}" ] && break
    sleep 0.3
  done
  xdotool key a
  expect_end "scale $scale"

  [ "$seen" = 0 ] || fault "scale $scale: the desktop can be seen"
  [ "$area" = "${scale_and_area#*:}" ] || fault "scale $scale: a star has $area pixels"
done
rm "$picture"

[ "$faults" = 0 ] || exit 1
