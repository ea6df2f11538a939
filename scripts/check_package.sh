#!/usr/bin/env bash
# Checks what an installed program consists of: installs it into a temporary folder, has the desktop's own tools
# look at it, opens it from another folder, and builds the Debian package; that the build is the same everywhere, has
# the compiler's safeguards, and names one version. Needs a built `release` preset, a display
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
id=org.tarnwick.tarnwick
metainfo=$share/metainfo/$id.metainfo.xml
must "the desktop entry" desktop-file-validate "$share/applications/$id.desktop"
must "the description for software centres" appstreamcli validate --no-net --pedantic "$metainfo"
must "the description for software centres names another program" grep -q "<id>$id</id>" "$metainfo"
must "the description for software centres starts another program" grep -q ">$id.desktop</launchable>" "$metainfo"

# The version and the day of a release are the project's and the changelog's.
version=$(sed -n 's/^project(tarnwick VERSION \([^ ]*\) .*/\1/p' CMakeLists.txt)
day=$(date --utc --date="$(sed -n 's/^ -- .*>  //p' packaging/changelog.in | head -n 1)" +%Y-%m-%d)
must "the program is not version $version" test "$("$root/usr/games/tarnwick" --version)" = "tarnwick $version"
must "the newest entry of the changelog is not version $version" \
    test "$(zcat "$share/doc/tarnwick/changelog.gz" | sed -n '1s/^tarnwick (\(.*\)) .*/\1/p')" = "$version"
must "the newest release in $id.metainfo.xml is not version $version of $day" \
    test "$(grep -m 1 '<release ' "$metainfo" | xargs)" = "<release version=$version date=$day>"
must "the manual page is not that of version $version" \
    test "$(zcat "$share/man/man6/tarnwick.6.gz" | head -n 1)" = ".TH TARNWICK 6 $day \"Tarnwick $version\" \"Games\""
must "a file still has a placeholder" \
    test -z "$(zgrep -El '@[A-Za-z_]+@' "$metainfo" "$share"/doc/tarnwick/* "$share"/man/man6/*)"

# What is known to be dangerous is caught, by the loader and by what the compiler puts in.
program=$root/usr/games/tarnwick
must "the program is not linked at once" grep -q 'Flags: NOW PIE' <(readelf -dW "$program")
must "the program's tables stay writable" grep -q 'GNU_RELRO' <(readelf -lW "$program")
must "the program does not guard its stack" grep -q '__stack_chk_fail' <(readelf -W --dyn-syms "$program")
# Nothing in the program need show whether these are on.
flags=(-D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
[ "$(uname -m)" = x86_64 ] && flags+=(-fcf-protection)
for flag in "${flags[@]}"; do
    must "something is built without $flag" \
        test -z "$(grep '"command":' build/compile_commands.json | grep -v -- " $flag ")"
done

must "an installed file names the folder that it was built in" test -z "$(grep -rlF "$PWD" "$root/usr")"
must "the build depends on its folder or time" scripts/check_reproducible.sh --quick

LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$share/man/man6/tarnwick.6.gz" \
    >/dev/null 2>"$root/man"
must "the manual page" test ! -s "$root/man"
for option in $("$root/usr/games/tarnwick" --help | grep -o -- '--[a-z]*' | sort -u); do
    must "the manual page does not know $option" grep -q -- "${option//-/\\\\-}" packaging/tarnwick.6.in
done
for size in 16 22 24 32 48 64 128 256; do
    icon=$share/icons/hicolor/${size}x$size/apps/$id.png
    must "the icon of $size pixels" test "$(od -An -tu1 -j 18 -N 2 "$icon" | tr -d ' \n')" = \
        "$(printf '%d%d' $((size / 256)) $((size % 256)))"
done

# The help must be found wherever the program is started, and its window must be the one the desktop entry names.
(cd / && exec "$root/usr/games/tarnwick" --deal 1 --store "$root/store") &
game=$!
class=$(sed -n 's/^StartupWMClass=//p' "$share/applications/$id.desktop")
must "no window of the class '$class'" timeout 10 xdotool search --sync --onlyvisible --class "^$class\$"
xdotool key F1
must "the installed program does not find its help" timeout 10 xdotool search --sync --onlyvisible --name 'Help'
kill $game
wait $game 2>/dev/null

# Also from the hands of somebody whose files are for nobody else.
umask 077
must "the package cannot be built" cpack --config build/CPackConfig.cmake -B "$root/package"
must "lintian" lintian --allow-root --fail-on error,warning "$root"/package/*.deb
exit $failed
