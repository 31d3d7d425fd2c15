# shellcheck shell=sh disable=SC2154
# Read by the tests on a virtual screen, with the arguments PROGRAM CROPS and after they have named the tools they need in
# `tools`. Runs the test again on a virtual screen of its own, with a home folder that holds a farm folder with CROPS and is
# removed at the end: VERDALIS_XVFB_HOME. Returns only in that second run.

skipped=77
limit=300 # per step, in tenths of a second; enough for a slow machine

for tool in $tools; do
  if ! command -v "$tool" >/dev/null; then
    echo "skipped: $tool is missing"
    exit $skipped
  fi
done

if [ "${VERDALIS_XVFB_HOME:-}" = "" ]; then
  VERDALIS_XVFB_HOME=$(mktemp -d)
  export VERDALIS_XVFB_HOME
  trap 'rm -rf "$VERDALIS_XVFB_HOME"' EXIT
  mkdir -m 700 "$VERDALIS_XVFB_HOME/farm" "$VERDALIS_XVFB_HOME/config" "$VERDALIS_XVFB_HOME/run"
  cp -r "$2" "$VERDALIS_XVFB_HOME/farm/crops"
  status=0
  env HOME="$VERDALIS_XVFB_HOME" XDG_CONFIG_HOME="$VERDALIS_XVFB_HOME/config" \
    XDG_RUNTIME_DIR="$VERDALIS_XVFB_HOME/run" DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent" \
    QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 \
    xvfb-run -a -s "-screen 0 1280x1000x24" sh "$0" "$@" || status=$?
  exit $status
fi

# Repeats a check until it succeeds, or calls fail() with the text.
await() {
  what=$1
  shift
  tries=0
  until "$@"; do
    tries=$((tries + 1))
    [ $tries -lt $limit ] || fail "$what"
    sleep 0.1
  done
}
