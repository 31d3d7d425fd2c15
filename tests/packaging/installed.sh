#!/usr/bin/env bash
# installed.sh BUILD SOURCE CONFIGURATION: what cmake --install makes is a whole program, which may be moved: it finds
# its own crops, says nothing of the folders in which it was built, and its documents are well formed.
set -euo pipefail
build=$1
source=$2
configuration=$3
skipped=77
if [[ ! -x $build/desktop/verdalis || ! -x $build/cli/verdalis-cli || ! -e $build/packaging/changelog.gz ]]; then
  echo "not everything is built, so it cannot be installed"
  exit "$skipped"
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=
fail() {
  echo "$*" >&2
  failed=1
}

DESTDIR=$work/first cmake --install "$build" --prefix /opt/verdalis --strip >"$work/log"
mv "$work/first/opt/verdalis" "$work/moved here"
rm -rf "$work/first"
cd "$work/moved here"
export HOME=$work/home QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"
unset XDG_DATA_HOME XDG_STATE_HOME XDG_CONFIG_HOME

for file in bin/verdalis bin/verdalis-cli share/verdalis/crops/corn.txt share/verdalis/help/HTML/index.htm \
  share/verdalis/examples/high-plains/inputs.txt share/applications/verdalis.desktop \
  share/mime/packages/verdalis.xml share/icons/hicolor/scalable/apps/verdalis.svg \
  share/icons/hicolor/16x16/apps/verdalis.png share/icons/hicolor/256x256/apps/verdalis.png \
  share/man/man1/verdalis.1.gz share/man/man1/verdalis-cli.1.gz share/doc/verdalis/LICENSE \
  share/doc/verdalis/copyright share/doc/verdalis/changelog.gz share/bash-completion/completions/verdalis-cli; do
  [[ -s $file ]] || fail "$file is not installed"
done

# The program and its answers.
farm=(--inputs share/verdalis/examples/high-plains/inputs.txt --crop Corn --crop Wheat --keep 3)
bin/verdalis-cli evaluate "${farm[@]}" >"$work/answer" || fail "the installed program fails"
[[ -e $HOME/.local/share/verdalis/crops/corn.txt ]] || fail "the first start does not copy the crops"
"$build/cli/verdalis-cli" evaluate "${farm[@]}" --home "$source" >"$work/expected"
cmp "$work/answer" "$work/expected" || fail "the installed program gives another answer"
grep -q '^Option 1: net return' "$work/answer" || fail "there is no option"
bin/verdalis-cli --self-check || fail "the check of the machine fails"
[[ $(bin/verdalis --version) == "verdalis "* ]] || fail "the window does not start"

# Nothing of the machine that built it.
for program in bin/verdalis bin/verdalis-cli; do
  if command -v readelf >/dev/null; then
    ! readelf -d "$program" | grep -E 'RPATH|RUNPATH' || fail "$program looks for libraries in a folder of its own"
  fi
done
[[ ! -e bin/verdalis-source.txt ]] || fail "the place of the source tree is installed"
if [[ $configuration == *Rel* ]]; then # the sanitizers and the debugger want the paths
  ! grep -rlaF -e "$source" -e "$build" . || fail "these files name a folder of the machine that built them"
fi

# Documents, where the tools are installed.
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate share/applications/verdalis.desktop || fail "the entry of the desktop is faulty"
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net share/metainfo/*.metainfo.xml || fail "the description for software centres is faulty"
fi
if command -v man >/dev/null && command -v gunzip >/dev/null; then
  for page in share/man/man1/*.1.gz; do
    gunzip -c "$page" >"$work/page.1"
    faults=$(MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$work/page.1" 2>&1 >/dev/null)
    [[ -z $faults ]] || fail "$page: $faults"
  done
fi
[[ -z $failed ]]
