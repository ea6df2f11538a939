# Sets the machine up for building and playing. Sourced by ./run and ./test, which decide what they need.
#
# Every function is quiet when there is nothing to do, so that a prepared machine costs a few milliseconds.

BUILD_PACKAGES="g++ cmake ninja-build libsqlite3-dev"
DESKTOP_PACKAGES="qt6-base-dev qt6-svg-dev libx11-dev libxtst-dev fonts-dejavu-core"
VIRTUAL_DISPLAY_PACKAGES="xvfb xauth openbox"
# A Wayland compositor and the toolkit's part of it.
WAYLAND_PACKAGES="weston qt6-wayland"
TEST_PACKAGES="libgtest-dev libsm-dev libice-dev dbus-daemon"
# What looks at the installed program, as the desktop does.
PACKAGE_CHECKS="desktop-file-utils appstream lintian man-db xdotool"

say() { printf '%s\n' "$*" >&2; }

# Prints those of the given packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
    done
}

# Runs a command as root, through sudo where needed.
as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; elif command -v sudo >/dev/null; then sudo "$@"; else return 1; fi
}

# Installs what is missing of the given packages; fails, having said why, when something is still missing then.
install_packages() {
    local missing
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return 0
    if ! command -v apt-get >/dev/null; then
        say "Please install: $missing(this script knows apt only)."
        return 1
    fi
    say "Installing: $missing"
    local log
    log=$(mktemp)
    # shellcheck disable=SC2086
    if ! as_root env DEBIAN_FRONTEND=noninteractive sh -c \
        "(apt-get -o DPkg::Lock::Timeout=300 update && apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends $missing)" \
        >"$log" 2>&1; then
        tail -n 5 "$log" >&2
    fi
    rm -f "$log"
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return 0
    say "Could not install: $missing(no package registry in reach, or no right to install)."
    return 1
}

# Configures and builds one preset: configure_and_build PRESET [TARGET ...]
configure_and_build() {
    local preset=$1
    shift
    cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}
}

# Starts a virtual display with a window manager and sets DISPLAY: start_virtual_display WIDTHxHEIGHT
# The caller ends it with stop_virtual_display.
start_virtual_display() {
    local size=$1 number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$number_file" >/dev/null 2>&1 &
    XVFB_PID=$!
    local tries=0
    until [ -s "$number_file" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 100 ] || ! kill -0 "$XVFB_PID" 2>/dev/null; then
            say "The virtual display did not start."
            rm -f "$number_file"
            return 1
        fi
        sleep 0.1
    done
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    # A window that comes before the window manager gets neither a place nor the keyboard; the first start of one
    # on a fresh machine takes seconds.
    openbox --sm-disable --startup "rm -f '$number_file'" >/dev/null 2>&1 &
    OPENBOX_PID=$!
    tries=0
    while [ -e "$number_file" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 600 ] || ! kill -0 "$OPENBOX_PID" 2>/dev/null; then
            say "The window manager of the virtual display did not start."
            rm -f "$number_file"
            stop_virtual_display
            return 1
        fi
        sleep 0.1
    done
}

stop_virtual_display() {
    kill "${OPENBOX_PID:-}" "${XVFB_PID:-}" 2>/dev/null
    wait "${OPENBOX_PID:-}" "${XVFB_PID:-}" 2>/dev/null
    return 0
}
