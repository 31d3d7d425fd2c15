# shellcheck shell=bash
# Functions shared by the scripts. The script that sources this file must set -euo pipefail.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
jobs=$(nproc)
error_lines="(: (fatal )?error: |: undefined reference|^CMake Error|^ERROR: |^SUMMARY: )"

# say TEXT...: writes a message to standard error. Standard output is for the programs that a script starts.
say() {
  echo "$*" >&2
}

# quietly LOG COMMAND...: runs a command and shows its output only if it fails.
quietly() {
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 </dev/null || status=$?
  if [[ $status -ne 0 ]]; then
    # The end of the output of a parallel build often does not contain the first errors.
    local first shown=30
    first=$(grep -n -m 1 -E "$error_lines" "$log" | cut -d : -f 1 || true)
    if [[ -n $first && $first -le $(($(wc -l <"$log") - shown)) ]]; then
      grep -m 10 -E "$error_lines" "$log" | cut -c 1-300 >&2
      say "..."
    fi
    tail -n "$shown" "$log" | cut -c 1-300 >&2
    say "failed ($status): $(printf '%q ' "$@")"
    say "The complete output is in $log"
  fi
  return "$status"
}

# configure PRESET FOLDER [CMAKE ARGUMENT...]: configures a preset in build/FOLDER.
configure() {
  local preset=$1 folder=$root/build/$2 fresh=()
  shift 2
  # CMake rejects a build folder from a copied or moved tree, because it contains the old path.
  if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  fi
  # CMake looks for presets in the current folder.
  (
    cd "$root" || exit
    quietly "$folder/configure.log" cmake "${fresh[@]}" --preset "$preset" -B "$folder" "$@"
  )
}

# cmake_value NAME: a value that CMakeLists.txt sets.
cmake_value() {
  sed -nE "s/^(project|set)\($1 (VERSION )?\"?([0-9.-]+)\"?.*/\3/p" "$root/CMakeLists.txt"
}

# compile FOLDER [TARGET]: builds a target, or all of them, in build/FOLDER.
compile() {
  quietly "$root/build/$1/build.log" cmake --build "$root/build/$1" --parallel "$jobs" --target "${2-all}"
}

# tracked PATTERN...: the files that git tracks or would add, NUL-terminated. Outside a git work tree, for example in an
# unpacked archive, all files except those in build/.
tracked() {
  local file
  if git -c safe.directory='*' -C "$root" rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git -c safe.directory='*' -C "$root" ls-files -z --cached --others --exclude-standard --deduplicate -- "$@"
  else
    local names=() pattern
    for pattern in "$@"; do
      names+=(-o -name "$pattern")
    done
    find "$root" -path "$root/build" -prune -o -type f \( "${names[@]:1}" \) -printf '%P\0'
  fi | while IFS= read -r -d '' file; do
    # Git still lists deleted files until the deletion is staged.
    if [[ -f $root/$file ]]; then
      printf '%s\0' "$root/$file"
    fi
  done
}
