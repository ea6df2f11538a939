#!/usr/bin/env bash
# Checks what an installed program consists of: installs it into a temporary folder, has the desktop's own tools
# look at it, opens it from another folder, and builds the Debian package. Needs a built `release` preset, a display
# with a window manager, and the packages that scripts/setup.sh names for it.
set -u
cd "$(dirname "$0")/.." || exit 1

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
failed=0
# Runs a command that must succeed and, if it says anything about a mistake, show it: must WHAT COMMAND...
must() {
    local what=$1
    shift
    "$@" >"$root/log" 2>&1 && return
    echo "check_package: $what"
    cat "$root/log"
    failed=1
}

must "the program cannot be installed" env DESTDIR="$root" cmake --install build --prefix /usr
share=$root/usr/share
must "the desktop entry" desktop-file-validate "$share/applications/tarnwick.desktop"
must "the description for software centres" appstreamcli validate --no-net --pedantic "$share"/metainfo/*.xml

LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$share/man/man6/tarnwick.6.gz" \
    >/dev/null 2>"$root/man"
must "the manual page" test ! -s "$root/man"
for option in $("$root/usr/games/tarnwick" --help | grep -o -- '--[a-z]*' | sort -u); do
    must "the manual page does not know $option" grep -q -- "${option//-/\\\\-}" packaging/tarnwick.6
done
for size in 16 22 24 32 48 64 128 256; do
    icon=$share/icons/hicolor/${size}x$size/apps/tarnwick.png
    must "the icon of $size pixels" test "$(od -An -tu1 -j 18 -N 2 "$icon" | tr -d ' \n')" = \
        "$(printf '%d%d' $((size / 256)) $((size % 256)))"
done

# The help must be found wherever the program is started, and its window must be the one the desktop entry names.
(cd / && exec "$root/usr/games/tarnwick" --deal 1 --store "$root/store") &
game=$!
class=$(sed -n 's/^StartupWMClass=//p' "$share/applications/tarnwick.desktop")
must "no window of the class '$class'" timeout 10 xdotool search --sync --onlyvisible --class "^$class\$"
xdotool key F1
must "the installed program does not find its help" timeout 10 xdotool search --sync --onlyvisible --name 'Help'
kill $game
wait $game 2>/dev/null

must "the package cannot be built" cpack --config build/CPackConfig.cmake -B "$root/package"
must "lintian" lintian --allow-root --fail-on error,warning "$root"/package/*.deb
exit $failed
