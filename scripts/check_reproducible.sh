#!/usr/bin/env bash
# Checks that one source gives the same bytes wherever and whenever it is built.
#   scripts/check_reproducible.sh           builds program and package in two folders (minutes)
#   scripts/check_reproducible.sh --quick   compares some files of the built `release` preset with those compiled in
#                                           another folder, and two packages made of it
set -u
cd "$(dirname "$0")/.." || exit 1

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failed=0
unset SOURCE_DATE_EPOCH

# Runs a command that must succeed, and shows what it says if it does not.
must() {
    "$@" >"$scratch/log" 2>&1 && return
    tail -n 30 "$scratch/log"
    exit 1
}

# Copies the source, as young as now, and configures it as the release preset: copy_source FOLDER
copy_source() {
    mkdir -p "$1"
    tar -c --exclude='./build*' --exclude=./.git . | tar -xm -C "$1"
    (cd "$1" && must cmake --preset release -DTARNWICK_TESTS=OFF -DTARNWICK_ADDRESS="$address")
}

# Compares two files: same ONE OTHER
same() {
    cmp "$1" "$2" && return
    echo "check_reproducible: $(basename "$1") depends on where or when it is built"
    failed=1
}

# Makes the package of a build folder into another one.
pack() { must cpack --config "$1/CPackConfig.cmake" -B "$2"; }

address=$(sed -n 's/^TARNWICK_ADDRESS:STRING=//p' build/CMakeCache.txt 2>/dev/null)
address=${address:-tarnwick.example}
if [ "${1:-}" = --quick ]; then
    copy_source "$scratch/elsewhere"
    # One with the core's precompiled headers, one with the toolkit's, and the drawings.
    objects=(CMakeFiles/tarnwick_core.dir/windows/frmcards.cpp.o
        desktop/CMakeFiles/tarnwick_desktop.dir/dialogs/help_window.cpp.o
        desktop/CMakeFiles/tarnwick_desktop.dir/qrc_art.cpp.o)
    must cmake --build "$scratch/elsewhere/build" --target "${objects[@]}"
    for object in "${objects[@]}"; do same "build/$object" "$scratch/elsewhere/build/$object"; done
    pack build "$scratch/one"
    TZ=Asia/Tokyo LC_ALL=C pack build "$scratch/two"
    same "$scratch"/one/*.deb "$scratch"/two/*.deb
else
    copy_source "$scratch/one"
    copy_source "$scratch/another folder/for it"
    must cmake --build "$scratch/one/build"
    (umask 077 && cd "$scratch/another folder/for it" && TZ=Asia/Tokyo LC_ALL=C must cmake --build build) || exit 1
    same "$scratch/one/build/tarnwick" "$scratch/another folder/for it/build/tarnwick"
    pack "$scratch/one/build" "$scratch/one"
    TZ=Asia/Tokyo LC_ALL=C pack "$scratch/another folder/for it/build" "$scratch"
    same "$scratch"/one/*.deb "$scratch"/*.deb
fi
exit $failed
