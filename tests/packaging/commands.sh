# shellcheck shell=bash
# For the tests of what is written about the commands: the commands and options that --help lists.

# commands PROGRAM [COMMAND...]: the command and all below it, one per line.
commands() {
  local name
  echo "${@:2}"
  while read -r name; do
    commands "$@" "$name"
  done < <("$@" --help | sed -nE '/^Subcommands:/,$ s/^  ([a-z]+) .*/\1/p')
}

# options_of PROGRAM [COMMAND...]: its options, one per line.
options_of() {
  "$@" --help | sed -nE 's/^  (-[a-z], ?)*(--[a-z0-9-]+).*/\2/p'
}
