#!/usr/bin/env bash
# Runs a command with Wine at hand: a prefix of its own and a virtual screen, both ended with the command.
#
#   with_wine.sh PREFIX COMMAND [ARGUMENT...]
#
# PREFIX is made when it is not there. Commands with the same prefix take turns; one that runs inside another
# shares its screen and Wine server, so that a whole test run starts them only once. Nothing outside PREFIX is
# written: the user's own prefix, folders and menus stay as they are. The command's status is the result.
set -euo pipefail

[ $# -ge 2 ] || {
    echo "usage: ${0##*/} PREFIX COMMAND [ARGUMENT...]" >&2
    exit 1
}
prefix=$(realpath -m -- "$1")
shift

[ "${ZK_WINE_SESSION:-}" != "$prefix" ] || exec "$@"

export ZK_WINE_SESSION=$prefix
export WINEPREFIX=$prefix/prefix
export HOME=$prefix/home # Wine links the folders of the user's home into a new prefix
export WINEARCH=win64 WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' # no downloads, no menu entries
mkdir -p -- "$HOME"

exec 8>"$prefix/lock"
flock 8

screen=
finish() {
    wineserver -k 8>&- 2>/dev/null || true # of this prefix only; there may be none
    wineserver -w 8>&- || true
    [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
}
trap finish EXIT

start_screen() {
    local number=$prefix/display
    : >"$number"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$number" >/dev/null 2>&1 8>&- &
    screen=$!
    local tries
    for ((tries = 0; tries < 300; tries++)); do
        [ ! -s "$number" ] || break
        kill -0 "$screen" 2>/dev/null || break
        sleep 0.1
    done
    [ -s "$number" ] || {
        echo "The virtual screen did not start." >&2
        exit 1
    }
    export DISPLAY=:$(<"$number")
    unset WAYLAND_DISPLAY XAUTHORITY
}

# A prefix counts as made when its last step is done; a broken-off one is made anew.
make_prefix() {
    [ ! -e "$prefix/made" ] || return 0
    rm -rf -- "$WINEPREFIX"
    wineboot --init >"$prefix/wineboot.log" 2>&1 8>&-
    # There is no window manager, so Wine draws the frames of windows itself.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >>"$prefix/wineboot.log" 2>&1 8>&-
    wineserver -w 8>&-
    touch -- "$prefix/made"
}

start_screen
make_prefix
status=0
"$@" 8>&- || status=$?
exit $status
