#!/usr/bin/env bash
# package.sh MIRROR [--once | --check]: builds the Debian packages in a clean Debian 12 twice (once, not
# at all), checks them, and leaves them in build/package. MIRROR is the address of a Debian archive.
# Needs root, debootstrap and lintian.
#
# A room is a folder with a Debian system. base has the smallest one; the others are copies of it and
# kept for the next time, except for the one in which the packages are installed.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
mirror=$1
case ${2:-} in
  --once) times=1 ;;
  --check) times=0 ;;
  *) times=2 ;;
esac
suite=bookworm
rooms=$PWD/build/package
version=$(sed -n '1s/.*(\(.*\)).*/\1/p' debian/changelog)

say() { printf 'package: %s\n' "$*" >&2; }

fail() {
  say "$*"
  exit 1
}

# in_room ROOM COMMAND...: runs a command as root in a room. All its processes end with it.
in_room() {
  local room=$rooms/$1
  shift
  # shellcheck disable=SC2016 # the inner shell expands
  unshare --mount --pid --fork --kill-child bash -c '
    mount -t proc proc "$1/proc" && mount --rbind /dev "$1/dev" && mount -t tmpfs tmpfs "$1/tmp" &&
      exec chroot "$@"' bash "$room" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
    LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

make_base() {
  [[ ! -d $rooms/base ]] || return 0
  say "making a Debian $suite"
  rm -rf "$rooms/base.part"
  mkdir -p "$rooms"
  debootstrap --variant=minbase "$suite" "$rooms/base.part" "$mirror" >"$rooms/debootstrap.log"
  printf '#!/bin/sh\nexit 101\n' >"$rooms/base.part/usr/sbin/policy-rc.d" # starts no services
  chmod +x "$rooms/base.part/usr/sbin/policy-rc.d"
  mv "$rooms/base.part" "$rooms/base"
}

# make_room ROOM: a new copy of base.
make_room() {
  rm -rf "${rooms:?}/$1"
  cp -a "$rooms/base" "$rooms/$1"
  cp /etc/resolv.conf "$rooms/$1/etc/resolv.conf"
  mkdir "$rooms/$1/build"
  in_room "$1" apt-get -qq update
}

# Kept as long as the packages that it needs are the same.
make_build_room() {
  local kept=$rooms/builder/build/control
  if [[ -f $kept ]] && diff -q <(sed '/^$/q' debian/control) <(sed '/^$/q' "$kept") >/dev/null; then
    return
  fi
  say 'installing what the build needs'
  make_room builder
  cp debian/control "$rooms/builder/build/control.part"
  in_room builder apt-get -qq --yes install --no-install-recommends build-essential fakeroot >/dev/null
  mkdir -p "$rooms/builder/build/needs"
  cp -r debian "$rooms/builder/build/needs/debian"
  in_room builder apt-get -qq --yes build-dep --no-install-recommends /build/needs >/dev/null
  in_room builder useradd --create-home builder
  mv "$rooms/builder/build/control.part" "$rooms/builder/build/control"
}

# The files of the work tree, as they are now: the tree may change during the builds.
pack_source() {
  git ls-files -z --cached --others --exclude-standard |
    tar --create --null --files-from=- --ignore-failed-read --file="$rooms/source.tar" 2>/dev/null
}

# build_packages N: builds the packed source. What differs between two builds must not change
# the packages: the folder, the time zone, the permissions of new files, the number of jobs.
build_packages() {
  local folder=/build/$1 zones=(UTC Pacific/Chatham) masks=(022 002)
  local source=$folder/starfolds-$version
  say "build $1"
  rm -rf "$rooms/builder$folder"
  mkdir -p "$rooms/builder$source"
  tar --extract --file="$rooms/source.tar" --directory="$rooms/builder$source"
  in_room builder chown -R builder "$folder"
  # shellcheck disable=SC2016 # the inner shell expands
  in_room builder setpriv --reuid=builder --regid=builder --init-groups env HOME=/nonexistent \
    TZ="${zones[$1 - 1]}" sh -c 'umask "$1" && cd "$2" && exec dpkg-buildpackage -us -uc -j"$3"' \
    sh "${masks[$1 - 1]}" "$source" $(($(nproc) + $1 - 1)) >"$rooms/build-$1.log" 2>&1 || {
    tail -n 30 "$rooms/build-$1.log" >&2
    fail "the build failed; see $rooms/build-$1.log"
  }
}

compare_builds() {
  local package
  for package in "$rooms"/builder/build/1/*.deb; do
    cmp "$package" "$rooms/builder/build/2/$(basename "$package")" ||
      fail "$(basename "$package") has other bytes in the second build"
  done
  say 'both builds have the same bytes'
}

check_packages() {
  say 'lintian'
  lintian --allow-root --pedantic --fail-on=error,warning,pedantic "$rooms"/builder/build/1/*.changes
}

# Installs the saver alone in a Debian that has nothing but what it depends on, purges it, and
# compares the files. Logs and caches of the package manager are no part of it.
check_removal() {
  local room=installed package path list=(find / -xdev)
  for path in build proc tmp var/log var/cache var/lib/apt var/lib/dpkg; do
    list+=('!' -path "/$path/*")
  done
  say 'installing and purging'
  make_room "$room"
  cp "$rooms"/*.deb "$rooms/$room/build"
  package=$(cd "$rooms" && echo starfolds_*.deb)
  in_room "$room" apt-get -qq --yes satisfy \
    "xscreensaver, $(dpkg-deb -f "$rooms/$package" Depends)" >/dev/null
  in_room "$room" "${list[@]}" | sort >"$rooms/before"
  in_room "$room" apt-get -qq --yes install --no-install-recommends "/build/$package" >/dev/null
  in_room "$room" apt-get -qq --yes purge starfolds >/dev/null
  in_room "$room" "${list[@]}" | sort | diff "$rooms/before" - || fail 'purging leaves other files'
}

# Runs debian/tests in a Debian that has the packages and nothing else.
check_programs() {
  say 'autopkgtest'
  make_room installed
  cp -r debian "$rooms"/*.deb "$rooms/installed/build"
  in_room installed sh -c 'apt-get -qq --yes install /build/starfolds_*.deb' >/dev/null
  in_room installed apt-get -qq --yes install --no-install-recommends autopkgtest >/dev/null
  in_room installed sh -c 'mkdir /build/source && mv /build/debian /build/source/ &&
    autopkgtest --no-built-binaries /build/*.deb /build/source -- null'
}

make_base
pack_source
make_build_room
for ((i = 1; i <= times; ++i)); do build_packages "$i"; done
((times < 2)) || compare_builds
rm -f "$rooms"/*.deb
cp "$rooms"/builder/build/1/starfolds*.deb "$rooms"
check_packages
check_removal
check_programs
say "the packages are in $rooms"
