#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the till and its back office, and starts one of them.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/run.sh [--demo] [--gestion]
  --demo      starts the till in a throw-away copy of the sample shop
  --gestion   starts the back office in place of the till
Missing Debian packages are installed with sudo."

demo=false
program="the till"
command=packaging/vendel
for argument in "$@"; do
    case $argument in
        --demo) demo=true ;;
        --gestion) program="the back office" && command=vendel-gestion ;;
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
say "Building the till and the back office (the first time takes a few minutes)"
build release vendel vendel-launcher vendel-dialogue vendel-artwork vendel-translation vendel-demo \
    vendel-gestion

if $demo; then
    XDG_DATA_HOME=$(mktemp -d)
    export XDG_DATA_HOME
    trap 'rm -rf -- "$XDG_DATA_HOME"' EXIT
    "$root/build/release/demo/vendel-demo" "$XDG_DATA_HOME/vendel" \
        || fail "the sample shop could not be made"
    say "Starting $program in a throw-away copy of the sample shop"
else
    say "Starting $program; its data is in ${XDG_DATA_HOME:-${HOME-}/.local/share}/vendel"
fi

# The launcher makes the data directory and looks after its files.
status=0
"$root/build/release/$command" || status=$?
# Qt aborts when the display refuses it.
[ $status -ne 134 ] || fail "$program was aborted; without a usable display, $no_display"
exit $status
