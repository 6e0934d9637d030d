#!/bin/bash
# completion_test.sh BASH_FOLDER ZSH_FOLDER: completes command lines in real shells with the generated
# scripts, of which there is one for each program in each folder.
set -u
bash_folder=$1
zsh_folder=$2
faults=0

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

# in_bash WORD...: prints what bash offers for the last word, one line each.
in_bash() {
  bash --norc -c '
    source /usr/share/bash-completion/bash_completion
    source "$1/$2"
    compopt() { :; } # for completions that a terminal started
    shift
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMP_LINE=$* COMP_POINT=${#COMP_LINE}
    "_${1//-/_}" "$1" "${!#}"
    printf "%s\n" "${COMPREPLY[@]}"' bash "$bash_folder" "$@"
}

# in_zsh LINE: prints what a terminal with zsh shows after LINE and the tab key.
in_zsh() {
  timeout 60 zsh -f -c '
    zmodload zsh/zpty
    zpty -b shell "TERM=dumb zsh -f -i"
    zpty -w shell "PROMPT=; fpath=($1 \$fpath); autoload -U compinit; compinit -u -D; echo rea\"\"dy"
    zpty -r -m shell output "*ready*"
    zpty -n -w shell "$2"$'"'\t'"'
    zpty -r -m shell output "*$3*" && print -r -- "$output"
    zpty -d shell' zsh "$zsh_folder" "$1" "$2"
}

folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
cd "$folder" && touch rings.sfd other.txt

while IFS='|' read -r line offered; do
  read -ra words <<<"$line"
  [[ $line != *' ' ]] || words+=('')
  found=$(in_bash "${words[@]}" | sort | paste -s -d ' ')
  [[ $found == "$offered" ]] || fault "bash: '$line' offers '$found', not '$offered'"
done <<'LINES'
starfolds --scr|--screens
starfolds --screens |all primary
starfolds --set Universe_Sta|Universe_Starfold= Universe_Stars=
starfolds --seed |
starfolds --window ri|rings.sfd
starfolds --comp|
starfolds-render --factory |0 1
starfolds-render --template |rings.sfd
LINES

while IFS='|' read -r line completed; do
  in_zsh "$line" "$completed" >/dev/null || fault "zsh: '$line' does not become '$completed'"
done <<'LINES'
starfolds --scr|--screens=
starfolds --screens=pr|--screens=primary
starfolds --window ri|rings.sfd
starfolds-render --set Universe_AmM|Universe_AmMaxExt=
LINES

[ "$faults" = 0 ] || exit 1
