#!/bin/sh
# Types into the built program on a virtual screen and kills it, again and again. Each time the copy of the unsaved farm
# must be whole, hold what was typed before, and be taken by the next start, which offers it.
#
# usage: xvfb-kills.sh PROGRAM CROPS
set -eu

tools="xvfb-run xdotool flock"
# shellcheck source=tests/desktop/xvfb-home.sh
. "$(dirname "$0")/xvfb-home.sh"

rounds=10
program_file=$1
farm=$VERDALIS_XVFB_HOME/farm
copies=$farm/recovery
plan=$farm/plan.verdalis
printf '{\n  "format": "verdalis-farm",\n  "version": 1\n}\n' >"$plan"
programs=

fail() {
  echo "FAILED: $1" >&2
  for one in $programs; do kill -9 "$one" 2>/dev/null || true; done
  exit 1
}

# Starts the program with the farm; sets `program`.
start() {
  "$program_file" --home "$farm" "$plan" 2>/dev/null &
  program=$!
  programs="$programs $program"
  await "no main window" has_focus "$program"
}

# Moves the focus to the main window of a program; there is no window manager to do it.
has_focus() {
  window=$(xdotool search --all --onlyvisible --pid "$1" --name 'plan.*Verdalis' 2>/dev/null | head -n 1)
  [ -n "$window" ] || return 1
  xdotool windowfocus "$window" 2>/dev/null || true
  [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]
}

copy_files() {
  find "$copies" -name 'recovery-*.verdalis' ! -name '*.new.verdalis' 2>/dev/null
}

count_copies() {
  copy_files | wc -l
}

# Whether a copy holds acres that begin with these digits.
is_copied() {
  copy_files | xargs -r grep -l "\"txtArea\": \"$1" | grep -q .
}

# Types the first acres of a program and waits until they are copied.
type_first() {
  await "no focus" has_focus "$program"
  tries=0
  until is_copied "$1"; do
    tries=$((tries + 1))
    [ $tries -lt $limit ] || fail "the acres $1 are not copied"
    # A key before the window is ready may be lost.
    if [ $((tries % 20)) -eq 1 ]; then
      has_focus "$program" || true
      xdotool key --delay 60 alt+a
      xdotool type --delay 30 "$1"
    fi
    sleep 0.2
  done
}

all_are_whole() {
  for file in $(copy_files); do
    [ "$(head -n 1 "$file")" = "{" ] && [ "$(tail -n 1 "$file")" = "}" ] || fail "a damaged copy: $file"
  done
}

# Whether a running program has taken all copies: their lock files are held.
all_are_taken() {
  for file in $(copy_files); do
    lock=${file%.verdalis}.lock
    [ -e "$lock" ] || return 1
    ! flock -n "$lock" true || return 1
  done
}

has_ended() {
  ! kill -0 "$1" 2>/dev/null
}

end_by_force() {
  kill -9 "$1"
  wait "$1" 2>/dev/null || true
}

round=1
while [ $round -le $rounds ]; do
  start
  await "the copies of before are not offered" all_are_taken
  acres=$((100 + round))
  type_first $acres
  xdotool type --delay 30 123456789012345678901234567890 &
  typing=$!
  moment=$(($(od -An -N2 -tu2 /dev/urandom) % 1000))
  sleep "0.$(printf %03d $moment)"
  end_by_force "$program"
  kill "$typing" 2>/dev/null || true
  wait "$typing" 2>/dev/null || true
  all_are_whole
  is_copied $acres || fail "the acres $acres are lost"
  [ "$(count_copies)" -eq $round ] || fail "$(count_copies) copies after $round kills"
  round=$((round + 1))
done

# Two programs at once have a copy each.
start
first=$program
type_first 801
start
second=$program
type_first 802
is_copied 801 || fail "the second program has taken the copy of the first"
[ "$(count_copies)" -eq $((rounds + 2)) ] || fail "$(count_copies) copies with two programs"
end_by_force "$first"
end_by_force "$second"
all_are_whole

# A program that ends by itself, without changes, leaves the copies that nobody has answered.
start
await "the copies of before are not offered" all_are_taken
xdotool key --delay 60 ctrl+q
await "the program does not end" has_ended "$program"
status=0
wait "$program" || status=$?
[ $status -eq 0 ] || fail "the program ended with $status"
[ "$(count_copies)" -eq $((rounds + 2)) ] || fail "copies went without an answer"
echo "passed"
