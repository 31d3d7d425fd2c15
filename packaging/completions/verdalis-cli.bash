# shellcheck shell=bash
# Completes the commands and options of verdalis-cli, and what they take. It reads them from --help, so that it knows
# those of the installed program.

_verdalis_cli() {
  local program=${COMP_WORDS[0]/#\~/$HOME} word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=() help value='' words=''
  COMPREPLY=()

  # The commands come first: one word, or two after explore.
  if [[ $COMP_CWORD -gt 1 && ${COMP_WORDS[1]} == [a-z]* ]]; then
    command=("${COMP_WORDS[1]}")
    if [[ $COMP_CWORD -gt 2 && ${COMP_WORDS[1]} == explore && ${COMP_WORDS[2]} == [a-z]* ]]; then
      command+=("${COMP_WORDS[2]}")
    fi
  fi
  help=$("$program" "${command[@]}" --help 2>/dev/null) || return

  # What the previous option takes: "  --format FORMAT:{table,csv,json}" or "  --home DIR  Folder ..."
  if [[ $previous =~ ^--[a-z0-9-]+$ ]]; then
    value=$(sed -nE "s/^  $previous ([^ ]+).*/\1/p" <<<"$help")
  fi
  if [[ -z $value && $help == *Positionals:* ]]; then
    value='FILE'
  fi
  if [[ $word == -* ]]; then
    words=$(sed -nE 's/^  (-[a-z],)?(--[a-z0-9-]+).*/\2/p' <<<"$help")
  elif [[ $value == *:'{'*'}' ]]; then
    words=${value##*\{}
    words=${words%\}}
    words=${words//,/ }
  elif [[ $value == DIR ]]; then
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
    return
  elif [[ $value == FILE* ]]; then
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
    return
  elif [[ -z $value ]]; then
    words=$(sed -nE '/^Subcommands:/,$ s/^  ([a-z]+) .*/\1/p' <<<"$help")
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -F _verdalis_cli verdalis-cli
