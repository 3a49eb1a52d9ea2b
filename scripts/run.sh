#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the till and starts it.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/run.sh [--demo]
  --demo   starts the till in a throw-away copy of the sample shop
Missing Debian packages are installed with sudo."

demo=false
for argument in "$@"; do
    case $argument in
        --demo) demo=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done

# Whether the X server that DISPLAY names is listening; needs no X program.
has_display() {
    [ -n "${WAYLAND_DISPLAY-}" ] && return
    local host=${DISPLAY%:*} number=${DISPLAY##*:}
    number=${number%%.*}
    [[ $number =~ ^[0-9]+$ ]] || return
    if [ -z "$host" ] || [ "$host" = unix ]; then
        [ -S "/tmp/.X11-unix/X$number" ] || grep -q "@/tmp/.X11-unix/X$number\$" /proc/net/unix
    else
        timeout 5 bash -c ": <>/dev/tcp/$host/$((6000 + number))" 2>/dev/null
    fi
}

no_display="scripts/tour.sh shows the till at work without a display"
[ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ] || fail "there is no display here; $no_display"
has_display || fail "the display $DISPLAY does not answer; $no_display"

"$root/scripts/install.sh" build run
if [ ! -e "$root/build/release/build.ninja" ]; then
    say "Preparing the build in build/release"
    configure release -DVENDEL_TESTS=OFF
fi
say "Building the till (the first time takes a few minutes)"
build release vendel vendel-launcher vendel-dialogue vendel-artwork vendel-translation vendel-demo

if $demo; then
    XDG_DATA_HOME=$(mktemp -d)
    export XDG_DATA_HOME
    trap 'rm -rf -- "$XDG_DATA_HOME"' EXIT
    "$root/build/release/demo/vendel-demo" "$XDG_DATA_HOME/vendel" \
        || fail "the sample shop could not be made"
    say "Starting the till in a throw-away copy of the sample shop"
else
    say "Starting the till; its data is in ${XDG_DATA_HOME:-${HOME-}/.local/share}/vendel"
fi

# The launcher makes the data directory and looks after its files.
status=0
"$root/build/release/packaging/vendel" || status=$?
# Qt aborts when the display refuses it.
[ $status -ne 134 ] || fail "the till was aborted; without a usable display, $no_display"
exit $status
