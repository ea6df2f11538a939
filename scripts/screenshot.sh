#!/usr/bin/env bash
# Takes a picture of any window at any scale, font and colours: scripts/screenshot.sh settings settings.png --scale 1.5
# Without arguments it tells which windows and options there are. No display is needed.
set -eu
cd "$(dirname "$0")/.."
{ cmake --preset release && cmake --build --preset release --target screenshot; } >/dev/null
[ $# -gt 0 ] || set -- --help
exec build/screenshot "$@"
