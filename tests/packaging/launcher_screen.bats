#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: a second start, with the till itself on a screen with a window manager.
# shellcheck disable=SC2154

load support

setup_file() {
    cmake --install "$VENDEL_BUILD" --prefix "$BATS_FILE_TMPDIR/tree" >/dev/null
}

setup() {
    set_up_till
    # A clock that is set would set the till's own, too.
    launcher=$installed
    exec {screen}< <(exec Xvfb -displayfd 1 -screen 0 1366x768x24 -nolisten tcp 2>/dev/null 3>&-)
    xvfb=$!
    read -r number <&"$screen"
    export DISPLAY=:$number
    running=()
}

teardown() {
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

is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
is_shown() { xdotool search --onlyvisible --name "^$1\$" >/dev/null; }
is_gone() { ! is_shown "$1"; }
is_active() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; }

# till_behind_another: the till past its splash, and another program's window with the focus.
till_behind_another() {
    background "$launcher"
    within is_shown Vendel
    within is_shown Dialog
    within is_gone Dialog
    background xev -name Another
    within is_shown Another
    xdotool search --name '^Another$' windowactivate
    within is_active Another
}

@test "a second start brings the till to the front" {
    background openbox --sm-disable
    within is_managed
    till_behind_another
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    is_active Vendel
}

@test "a second start brings back a till that is minimized" {
    background openbox --sm-disable
    within is_managed
    till_behind_another
    xdotool windowminimize "$(xdotool search --onlyvisible --name '^Vendel$')"
    within is_gone Vendel
    run "$launcher"
    [ "$status" -eq 0 ]
    within is_shown Vendel
    is_active Vendel
}

@test "a second start that asks for a language is refused in the terminal and in a box" {
    background openbox --sm-disable
    within is_managed
    background "$launcher"
    within is_shown Vendel
    "$launcher" --langue en >"$BATS_TEST_TMPDIR/said" 2>&1 3>&- &
    second=$!
    within grep -q 'already open' "$BATS_TEST_TMPDIR/said"
    within is_active Vendel
    xdotool key --clearmodifiers Return
    run wait "$second"
}

@test "without a window manager a second start says that the till is open" {
    background "$launcher"
    within is_shown Vendel
    "$launcher" >"$BATS_TEST_TMPDIR/said" 2>&1 3>&- &
    running=("$!" "${running[@]}")
    within grep -qxF "La caisse est déjà ouverte sur les données de « $data »." "$BATS_TEST_TMPDIR/said"
}
