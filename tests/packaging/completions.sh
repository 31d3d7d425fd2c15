#!/usr/bin/env bash
# completions.sh PROGRAM SOURCE: the completion of the shell offers every command and option that --help lists, and
# what some of them take.
set -euo pipefail
program=$1
source=$2
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/packaging/commands.sh
source "$here/commands.sh"
# shellcheck source=packaging/completions/verdalis-cli.bash
source "$source/packaging/completions/verdalis-cli.bash"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir farms
touch farms.csv smith.verdalis
compopt() { :; } # works only while the shell completes

# offered WORD...: what is offered for the last word.
offered() {
  COMP_WORDS=("$program" "$@")
  COMP_CWORD=$#
  COMPREPLY=()
  _verdalis_cli
  printf '%s\n' "${COMPREPLY[@]}" | sort
}

failed=
# expect WHAT WANTED OFFERED
expect() {
  if [[ $2 != "$3" ]]; then
    printf '%s: offered\n%s\ninstead of\n%s\n' "$1" "$3" "$2" >&2
    failed=1
  fi
}

mapfile -t all < <(commands "$program")
[[ ${#all[@]} -ge 12 ]] || failed=1
for command in "${all[@]}"; do
  read -r -a words <<<"$command"
  wanted=$(options_of "$program" "${words[@]}" | sort)
  [[ -n $wanted ]] || failed=1
  expect "options of '$command'" "$wanted" "$(offered "${words[@]}" --)"
done
expect "commands" "$(printf '%s\n' batch evaluate explore farm script trend)" "$(offered "")"
expect "questions" "$(printf '%s\n' inputs map seasons switch water)" "$(offered explore "")"
expect "a command" "explore" "$(offered ex)"
expect "formats" "$(printf '%s\n' csv json)" "$(offered batch --format "")"
expect "folders" "farms" "$(offered evaluate --home f)"
expect "files" "$(printf '%s\n' farms farms.csv)" "$(offered batch --mixes f)"
expect "a farm file" "smith.verdalis" "$(offered evaluate --farm s)"
expect "a name" "" "$(offered evaluate --crop "")"
expect "an unknown option" "" "$(offered evaluate --no/such "")"
[[ -z $failed ]]
