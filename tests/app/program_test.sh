#!/bin/bash
# program_test.sh STARFOLDS STARFOLDS-RENDER: what the program says and how it ends where no window comes up.
set -u
program=$1
render=$2
faults=0
output=$(mktemp)
errors=$(mktemp)
XDG_CONFIG_HOME=$(mktemp -d) # nobody's settings
export XDG_CONFIG_HOME LANGUAGE=en
trap 'rm -rf "$output" "$errors" "$XDG_CONFIG_HOME"' EXIT

# expect CODE OUTPUT-PATTERN ERROR-PATTERN ARGUMENT...: an empty pattern wants silence.
expect() {
  local code=$1 said=$2 complained=$3 file pattern
  shift 3
  timeout 20 "$program" "$@" >"$output" 2>"$errors" </dev/null
  local got=$?
  # The toolkit complains where a bare test machine has no session.
  sed -i '/^QStandardPaths: /d' "$errors"
  if [ "$got" != "$code" ]; then
    echo "starfolds $*: exit code $got instead of $code" >&2
    faults=$((faults + 1))
  fi
  for file in "$output" "$errors"; do
    pattern=$said
    [ "$file" = "$errors" ] && pattern=$complained
    if { [ -z "$pattern" ] && [ -s "$file" ]; } ||
       { [ -n "$pattern" ] && ! grep -q -- "$pattern" "$file"; }; then
      echo "starfolds $*: wanted '$pattern', got:" >&2
      cat "$file" >&2
      faults=$((faults + 1))
    fi
  done
}

fail() {
  echo "$1" >&2
  faults=$((faults + 1))
}

# wait_until COMMAND...: until it succeeds, for at most thirty seconds.
wait_until() {
  for _ in $(seq 1 600); do
    "$@" && return
    sleep 0.05
  done
  return 1
}

# Before that a signal ends the process with another exit code.
catches_signals() {
  local caught
  caught=$(sed -n 's/^SigCgt:\t/0x/p' "/proc/$1/status")
  [ $((${caught:-0} & 0x4000)) != 0 ] # SIGTERM
}

unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen
# runs ARGUMENT...: stays until it is told to end, and says nothing.
runs() {
  timeout -k 60 -s TERM 2 "$program" "$@" 2>"$errors" </dev/null
  local got=$?
  sed -i '/^QStandardPaths: /d; /^This plugin does not support/d' "$errors"
  if [ "$got" != 124 ] || [ -s "$errors" ]; then
    echo "starfolds $*: exit code $got, and:" >&2
    cat "$errors" >&2
    faults=$((faults + 1))
  fi
}
# A template that cannot be read is a typing error, and changes nothing.
head -c 100000000 /dev/zero >"$XDG_CONFIG_HOME/huge.sfd"
mkfifo "$XDG_CONFIG_HOME/pipe.sfd"
expect 2 '' 'cannot read ".*huge.sfd": File too large' "$XDG_CONFIG_HOME/huge.sfd"
expect 2 '' 'cannot read ".*pipe.sfd": Not a plain file' "$XDG_CONFIG_HOME/pipe.sfd"
if [ -e "$XDG_CONFIG_HOME/Tessellane" ]; then
  echo "a template that cannot be read has changed the settings" >&2
  faults=$((faults + 1))
fi
# One that can be read is shown, and its universe is stored.
template="$XDG_CONFIG_HOME/a universe.sfd"
"$render" --theme 3 --set Universe_Stars=1234 --save "$template"
# What was stored before is kept beside the settings, unless it came with the program.
for said in 'To get the factory settings back' 'kept in ".*/Tessellane/former-settings-1.sfd"'; do
  "$program" "$template" >"$output" 2>"$errors" &
  wait_until grep -q "$said" "$output" || fail "the program says nothing of '$said'"
  kill -TERM $!
  wait $! || fail "after a template: exit code $?"
done
XDG_CONFIG_HOME=/dev/null expect 2 '' 'cannot store the universe of' "$template"
"$render" --stored --save "$XDG_CONFIG_HOME/stored.sfd"
if ! grep -q '^Universe_Stars=1234' "$XDG_CONFIG_HOME/stored.sfd"; then
  echo "the template's universe is not stored" >&2
  faults=$((faults + 1))
fi

# A window shows one with its bodies, whatever its name is, and leaves the stored settings alone.
odd="$XDG_CONFIG_HOME/it's \"100%\" \$odd.sfd"
"$render" --set Universe_Stars=77 --set Starfold0/_UniFoldName=Odd --save "$odd"
runs --window "$odd"
"$render" --stored --save "$XDG_CONFIG_HOME/stored.sfd"
if ! grep -q '^Universe_Stars=1234' "$XDG_CONFIG_HOME/stored.sfd" ||
   grep -q Odd "$XDG_CONFIG_HOME/stored.sfd"; then
  echo "a template that a window shows has changed the settings" >&2
  faults=$((faults + 1))
fi
# The program's name decides, too: an .exe without an .scr beside it runs as the application, whose
# window takes the signal; with one beside it the switch counts again.
folder=$(mktemp -d)
cp "$program" "$folder/stars.exe"
timeout -s TERM 1 "$folder/stars.exe" /A 12345 2>"$errors"
if [ $? != 124 ]; then
  echo "stars.exe did not run as the application" >&2
  faults=$((faults + 1))
fi
touch "$folder/stars.scr"
timeout -s TERM 20 "$folder/stars.exe" /A 12345 2>"$errors"
if [ $? != 0 ]; then
  echo "stars.exe with stars.scr beside it did not look at its switch" >&2
  faults=$((faults + 1))
fi
rm -r "$folder"

# Of several savers at once on one display, one stays. When it is killed the next one may run.
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
# expect_one PROCESS...: waits until all the others have gone, and sets `one`.
expect_one() {
  local process
  for _ in $(seq 1 600); do
    one=
    for process in "$@"; do
      case $(ps -o stat= -p "$process") in
        '' | Z*) ;;
        *) one="$one$process " ;;
      esac
    done
    [ "$(wc -w <<<"$one")" -gt 1 ] || break
    sleep 0.05
  done
  if [ "$(wc -w <<<"$one")" != 1 ]; then
    echo "savers that stay: '$one'" >&2
    faults=$((faults + 1))
  fi
}
savers=
for _ in 1 2 3 4 5 6; do
  "$program" --saver &
  savers="$savers $!"
done
expect_one $savers
kill -9 $one
wait $one 2>/dev/null
"$program" --saver &
saver=$!
wait_until catches_signals $saver || fail "the saver after a killed one does not start"
sleep 0.5
expect_one $saver
kill -TERM $saver
wait $saver || { echo "the saver after a killed one: exit code $?" >&2; faults=$((faults + 1)); }
rm -r "$XDG_RUNTIME_DIR"

[ "$faults" = 0 ] || exit 1
