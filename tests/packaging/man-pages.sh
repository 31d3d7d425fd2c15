#!/usr/bin/env bash
# man-pages.sh PROGRAM WINDOW SOURCE: the man pages describe every command and option that --help lists, and no other.
set -euo pipefail
program=$1
window=$2
source=$3
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/packaging/commands.sh
source "$here/commands.sh"

# described PAGE: the options that have an entry of their own.
described() {
  sed -nE '/^\.(TP|TQ)/ {n; s/\\-/-/g; s/^\.BR? (-[a-z] ", " )?(--[a-z0-9-]+)$/\2/p; s/^\.BI (--[a-z0-9-]+) .*/\1/p}' \
    "$1" | sort -u
}

failed=
# expect PAGE OPTIONS
expect() {
  local differences
  if ! differences=$(diff <(described "$1") <(sort -u <<<"$2")); then
    printf '%s: < is only described, > only listed by --help\n%s\n' "$1" "$differences" >&2
    failed=1
  fi
}

page=$source/packaging/man/verdalis-cli.1
mapfile -t all < <(commands "$program")
options=
for command in "${all[@]}"; do
  read -r -a words <<<"$command"
  options+=$(options_of "$program" "${words[@]}")$'\n'
  # Commands that only group others need no entry.
  if [[ -n $command ]] && ! printf '%s\n' "${all[@]}" | grep -q "^$command "; then
    if ! grep -qx "\.B $command" "$page"; then
      echo "$page: does not describe the command $command" >&2
      failed=1
    fi
  fi
done
expect "$page" "$(sed '/^$/d' <<<"$options")"
if [[ -x $window ]]; then
  expect "$source/packaging/man/verdalis.1" "$(QT_QPA_PLATFORM=offscreen options_of "$window")"
fi
[[ -z $failed ]]
