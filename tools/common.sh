# shellcheck shell=bash
# What the scripts share. To be sourced by one that has set -euo pipefail.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
jobs=$(nproc)
error_lines="(: (fatal )?error: |: undefined reference|^CMake Error|^ERROR: |^SUMMARY: )"

# say TEXT...: a word to whoever waits. Standard output is left to the program that a script starts.
say() {
  echo "$*" >&2
}

# quietly LOG COMMAND...: runs a command and shows what it wrote only when it fails.
quietly() {
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 </dev/null || status=$?
  if [[ $status -ne 0 ]]; then
    # The end of a parallel build often tells of something else than its first errors.
    local first shown=30
    first=$(grep -n -m 1 -E "$error_lines" "$log" | cut -d : -f 1 || true)
    if [[ -n $first && $first -le $(($(wc -l <"$log") - shown)) ]]; then
      grep -m 10 -E "$error_lines" "$log" | cut -c 1-300 >&2
      say "..."
    fi
    tail -n "$shown" "$log" | cut -c 1-300 >&2
    say "failed ($status): $(printf '%q ' "$@")"
    say "The whole output lies in $log"
  fi
  return "$status"
}

# configure PRESET FOLDER [CMAKE ARGUMENT...]: configures a preset in build/FOLDER.
configure() {
  local preset=$1 folder=$root/build/$2 fresh=()
  shift 2
  # A build folder that came along with a copied or moved tree still names its old place; CMake would refuse it.
  if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  fi
  # CMake looks for presets in the folder that it is called from.
  (
    cd "$root" || exit
    quietly "$folder/configure.log" cmake "${fresh[@]}" --preset "$preset" -B "$folder" "$@"
  )
}

# compile FOLDER [TARGET]: builds a target, or all of them, in build/FOLDER.
compile() {
  quietly "$root/build/$1/build.log" cmake --build "$root/build/$1" --parallel "$jobs" --target "${2-all}"
}

# tracked PATTERN...: the files that git knows or would add, each ended by a NUL. All files of the tree outside build/
# where this is no git work tree, as in an unpacked archive.
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
    # A file that was deleted without telling git is still in its list.
    if [[ -f $root/$file ]]; then
      printf '%s\0' "$root/$file"
    fi
  done
}
