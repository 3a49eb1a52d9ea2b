# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What the tests share that see the till on a screen of their own, with a window manager or without.

# open_screen: a screen without a window manager, and nothing on it yet.
open_screen() {
    # One that began anew when its last client leaves would cut off whoever comes meanwhile.
    exec {screen}< <(exec Xvfb -displayfd 1 -screen 0 1366x768x24 -noreset -nolisten tcp 2>/dev/null 3>&-)
    xvfb=$!
    read -r number <&"$screen"
    export DISPLAY=:$number
    running=()
}

# close_screen: ends it, and all that runs in the background.
close_screen() {
    for process in "${running[@]}" "$xvfb"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
}

# background COMMAND...: runs until the test ends.
background() {
    "$@" >/dev/null 2>&1 3>&- &
    running=("$!" "${running[@]}")
}

# within COMMAND...: waits until it succeeds.
within() {
    local tries=0
    until "$@"; do
        [ $((++tries)) -lt 300 ]
        sleep 0.1
    done
}

manage_screen() {
    background openbox --sm-disable
    within is_managed
}

is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
is_shown() { xdotool search --onlyvisible --name "^$1\$" >/dev/null; }
is_gone() { ! is_shown "$1"; }
is_active() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; }
