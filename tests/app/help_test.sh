#!/bin/bash
# help_test.sh STARFOLDS: the help beside dialogs that wait, by hand. Needs a window manager.
set -u
program=$1
. "$(dirname "$0")/../desktop/screen_tools.sh"

# wait_for_window TITLE-PATTERN: prints its number.
wait_for_window() {
  local found
  for _ in $(seq 1 300); do
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
    [ -n "$found" ] && echo "$found" && return
    sleep 0.1
  done
  fault "there is no window '$1'"
}

# activate WINDOW: makes it the one that gets the keys. A new window is in the search before the
# window manager gives it the focus, and a key sent in between reaches no window.
activate() {
  for _ in $(seq 1 300); do
    xdotool windowactivate "$1" 2>/dev/null
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ] &&
      [ "$(xdotool getwindowfocus -f 2>/dev/null)" = "$1" ] && return
    sleep 0.1
  done
  fault "window $1 does not get the keys"
}

# expect_title WINDOW TITLE WHAT
expect_title() {
  for _ in $(seq 1 300); do
    [ "$(xdotool getwindowname "$1" 2>/dev/null)" = "$2" ] && return
    sleep 0.1
  done
  fault "$3: the help shows '$(xdotool getwindowname "$1")'"
}

# The welcome waits for its answer, and the help can be used meanwhile.
start "$program" --settings
welcome=$(wait_for_window '^Starfolds$')
activate "$welcome"
xdotool key F1
help=$(wait_for_window '^Starfolds Help')
expect_title "$help" 'Starfolds Help - Getting started' 'F1 on the welcome'
activate "$help"
xdotool key ctrl+f
xdotool type 'water molecule'
xdotool key Return
expect_title "$help" 'Starfolds Help - The molecule editor' 'search beside the welcome'
xdotool key alt+c
xdotool mousemove --window "$help" 120 72 click 1 # the second entry of the contents
expect_title "$help" 'Starfolds Help - The windows of the program' 'contents beside the welcome'
xdotool key alt+Left
expect_title "$help" 'Starfolds Help - The molecule editor' 'back'

# The properties behind it go on, and take the help with them.
activate "$welcome"
xdotool key Return
properties=$(wait_for_window '^Starfold Properties$')
activate "$properties"
xdotool key F1
expect_title "$help" 'Starfolds Help - The universe view' 'F1 on the list of types'
xdotool windowsize --sync "$help" 760 540
activate "$properties"
xdotool key alt+f key x
expect_end 'closing the properties with the help open'

# It comes back where it was.
start "$program" --settings
properties=$(wait_for_window '^Starfold Properties$')
activate "$properties"
xdotool key alt+h key c
help=$(wait_for_window '^Starfolds Help')
size=$(xdotool getwindowgeometry --shell "$help" | grep -E 'WIDTH|HEIGHT' | tr '\n' ' ')
[ "$size" = 'WIDTH=760 HEIGHT=540 ' ] || fault "the help comes back with $size"
activate "$help"
xdotool key Escape
activate "$properties"
xdotool key alt+f key x
expect_end 'closing the properties after the help'
exit "$faults"
