#!/bin/sh
# Runs the built program from the welcome window to a page of options, on a virtual screen and with the keyboard only:
# real windows, real focus, real shortcuts.
#
# usage: xvfb-session.sh PROGRAM CROPS
set -eu

tools="xvfb-run xdotool"
# shellcheck source=tests/desktop/xvfb-home.sh
. "$(dirname "$0")/xvfb-home.sh"

saved=$VERDALIS_XVFB_HOME/farm/inputs.txt
"$1" --home "$VERDALIS_XVFB_HOME/farm" &
program=$!

fail() {
  echo "FAILED: $1" >&2
  kill "$program" 2>/dev/null || true
  exit 1
}

# Finds the window with a title and stores it in the variable `window`.
find_window() {
  title=$1
  window=$(xdotool search --onlyvisible --pid "$program" --name "^$1\$" 2>/dev/null | head -n 1)
  [ -n "$window" ]
}

# Looks for the window each time, because the first one found may be replaced.
has_focus() {
  find_window "$title" || return 1
  xdotool windowfocus "$window" 2>/dev/null || true # there is no window manager to set the focus
  [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]
}

# A checksum of the window's contents.
picture() {
  if command -v import >/dev/null; then
    import -window "$window" -depth 8 rgb:- 2>/dev/null | cksum
  else
    echo "no import"
  fi
}

# Whether two pictures in a row are equal: the program waits for the next key.
is_still() {
  first=$(picture)
  sleep 0.2
  [ "$first" = "$(picture)" ]
}

press() {
  xdotool key --delay 60 "$@"
  sleep 0.2
}

is_saved() {
  [ -s "$saved" ]
}

has_changed() {
  ! command -v import >/dev/null || [ "$before" != "$(picture)" ]
}

has_ended() {
  ! kill -0 "$program" 2>/dev/null
}

await "no welcome window" find_window "Welcome"
await "the welcome window takes no focus" has_focus
sleep 0.3
press space # the start button has the focus
await "no main window" find_window "Verdalis.*"
await "the main window takes no focus" has_focus
await "the main window does not come to rest" is_still

press alt+a # Total Acres
xdotool type --delay 60 100
press alt+i # Annual Gross Irrigation Amount
xdotool type --delay 60 12
press alt+r # Annual Rainfall
xdotool type --delay 60 16
press alt+7 # 75 - 25
press alt+u # Load Default Values
press alt+w # fallow for negative returns: on and off again, which leaves the focus before the crops
sleep 0.3
press alt+w
sleep 0.3
press Tab Tab Tab Tab Tab # past the "?" buttons of the columns to the first crop
press space
press Tab Tab Tab Tab # past its fields to the second crop
press space
await "the typed farm does not come to rest" is_still
before=$(picture)
press F5
await "no inputs were saved: the options did not come" is_saved
await "the window shows what it showed before" has_changed

expected=$(printf '1\n100\n12\n85\n16')
found=$(head -n 5 "$saved" | tr -d '\r')
[ "$found" = "$expected" ] || fail "saved inputs: $(echo "$found" | tr '\n' ' ')"
[ ! -n "${VERDALIS_XVFB_PICTURE:-}" ] || import -window "$window" "$VERDALIS_XVFB_PICTURE"

press ctrl+q
await "the program does not end" has_ended
status=0
wait "$program" || status=$?
[ $status -eq 0 ] || fail "the program ended with $status"
echo "passed"
