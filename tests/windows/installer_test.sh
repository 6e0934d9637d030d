#!/usr/bin/env bash
# installer_test.sh SETUP: installs and uninstalls under Wine without windows, for all users and for
# one, and fails if something is missing, or is left behind. Needs WINEPREFIX.
set -euo pipefail
setup=$1
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' LC_ALL=C.UTF-8
drive=$WINEPREFIX/drive_c
failures=0

fail() {
  printf 'installer_test: %s\n' "$*"
  failures=$((failures + 1))
}

keys=('HKCU\Software\Classes' 'HKLM\Software\Classes' 'HKCU\Control Panel\Desktop'
  'HKCU\Software\Microsoft\Windows\CurrentVersion' 'HKLM\Software\Microsoft\Windows\CurrentVersion')

# snapshot FILE: all files but temporary ones, and the parts of the registry that an installer uses.
snapshot() {
  local key
  (cd "$drive" && find . -ipath '*/temp' -prune -o -print | sort) >"$1"
  for key in "${keys[@]}"; do
    export_key "$key" >>"$1"
  done
}

# run NAME ARGUMENT...: a program of Windows, without input.
run() {
  timeout 300 wine "$@" </dev/null || fail "$1 gives $?: $*"
}

# export_key KEY: as text. The console's code page has not all letters.
export_key() {
  rm -f "$folder/key.reg"
  wine reg export "$1" "Z:${folder//\//\\}\\key.reg" /y >/dev/null 2>&1 </dev/null || fail "no $1"
  iconv -f UTF-16 -t UTF-8 "$folder/key.reg" | tr -d '\r'
}

# value KEY NAME: a text of the registry; for the one without a name, NAME is @.
value() {
  export_key "$1" | awk -v RS= 'NR == 2' |
    sed -n "s/^\"\\?$2\"\\?=\"\\(.*\\)\"\$/\\1/p" | sed 's/\\\(.\)/\1/g'
}

expect() {
  [[ $2 == "$3" ]] || fail "$1 is \"$2\", not \"$3\""
}

exists() {
  local file
  for file in "$@"; do [[ -e $drive/$file ]] || fail "$file is missing"; done
}

# gone WHAT COMMAND...: waits until the command fails.
gone() {
  local what=$1 i
  shift
  for ((i = 0; i < 600; i++)); do
    "$@" >/dev/null 2>&1 </dev/null || return 0
    sleep 0.1
  done
  fail "$what is still there"
}

# uninstall HIVE PROGRAM ARGUMENT...: the uninstaller runs as a copy of itself, and removes its entry
# of the registry when all files have gone but the settings.
uninstall() {
  local hive=$1
  shift
  run "$@" /S
  gone 'the program' \
    wine reg query "$hive\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Starfolds"
}

# trial MODE HIVE FOLDER SAVER TEMPLATES MENU ARGUMENT...: the paths are below C:.
trial() {
  local mode=$1 hive=$2 program=$3 saver=$4 templates=$5 menu=$6 type windows
  shift 6
  windows="C:\\${program//\//\\}"
  snapshot "$folder/before"
  run "$setup" /S "/$mode" "$@"
  exists "$program"/{starfolds.exe,starfolds-render.exe,README.txt,LICENSE.txt,uninstall.exe} \
    "$saver" "$templates/deep-field.sfd" \
    "$menu"/Starfolds/{Starfolds,Starfolds\ Settings,Choose\ the\ Screen\ Saver}.lnk
  cmp "$drive/$program/starfolds.exe" "$drive/$saver" || fail 'the saver is not the program'
  expect 'the renderer' "$(run "$windows\\starfolds-render.exe" --version | tr -d '\r')" \
    "$(run build/windows/src/render/starfolds-render.exe --version | tr -d '\r')"
  type=$(value "$hive\\Software\\Classes\\.sfd" @)
  expect 'the type' "$type" Tessellane.Starfolds.Template
  type="$hive\\Software\\Classes\\$type"
  expect 'a double click' "$(value "$type\\shell" @)" preview
  expect 'preview' "$(value "$type\\shell\\preview\\command" @)" \
    "\"$windows\\starfolds.exe\" --window \"%1\""
  expect 'open' "$(value "$type\\shell\\open\\command" @)" "\"C:\\${saver//\//\\}\" %L"
  expect 'the icon' "$(value "$type\\DefaultIcon" @)" "$windows\\starfolds.exe,0"

  : >"$drive/$templates/of-the-user.sfd"
  uninstall "$hive" "$windows\\uninstall.exe" "/$mode"
  exists "$templates/of-the-user.sfd"
  rm "$drive/$templates/of-the-user.sfd"
  rmdir -p --ignore-fail-on-non-empty "$drive/$templates"
  snapshot "$folder/after"
  diff "$folder/before" "$folder/after" || fail "$mode: this was left behind, or removed"
}

[[ -d $WINEPREFIX ]] || wineboot --init
# Every user of Windows has these, but not every one of Wine.
for key in "${keys[@]}" 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall'; do
  wine reg add "$key" /f >/dev/null </dev/null
done
user=users/$(wine cmd /c 'echo %USERNAME%' </dev/null | tr -d '\r')
settings="$drive/$user/AppData/Roaming/Tessellane"
others=("$drive/odd folder" "$drive/$user/AppData/Local/Programs") # folders with files of others
mkdir -p "$settings" "${others[@]}"
touch "${others[@]/%//of-another}"
: >"$settings/settings.db"

trial ALLUSERS HKLM 'Program Files/Starfolds' windows/system32/starfolds.scr \
  ProgramData/Tessellane/templates 'ProgramData/Microsoft/Windows/Start Menu/Programs'
trial CURRENTUSER HKCU "$user/AppData/Local/Programs/Starfolds" \
  "$user/AppData/Local/Programs/Starfolds/starfolds.scr" \
  "$user/AppData/Local/Programs/Starfolds/templates" \
  "$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"
trial CURRENTUSER HKCU 'odd folder/ä 日' 'odd folder/ä 日/starfolds.scr' 'odd folder/ä 日/templates' \
  "$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs" '/D=C:\odd' 'folder\ä' '日' # not quoted, as the installer needs it
rm "${others[@]/%//of-another}"

# The installer makes it the saver of the user, and the uninstaller takes that and the settings back.
desktop='HKCU\Control Panel\Desktop'
program="C:\\${user//\//\\}\\AppData\\Local\\Programs\\Starfolds"
wine reg delete "$desktop" /v SCRNSAVE.EXE /f >/dev/null 2>&1 </dev/null || true
run "$setup" /S /CURRENTUSER /SAVER
saver=$(value "$desktop" SCRNSAVE.EXE)
[[ ${saver,,} == c:\\*.scr ]] || fail "the saver is \"$saver\""
cmp "$(wine winepath -u "$saver" </dev/null | tr -d '\r')" build/windows/src/app/starfolds.scr ||
  fail 'the saver is another file'
: >"$settings/of-another"
uninstall HKCU "$program\\uninstall.exe" /CURRENTUSER /SETTINGS
gone 'the settings' test -e "$settings/settings.db"
expect 'the saver' "$(value "$desktop" SCRNSAVE.EXE)" ''
expect 'what is kept of the settings' "$(ls "$settings")" of-another
((failures == 0)) && echo 'installer_test: passed'
