#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: a second start, with the till itself on a screen with a window manager.
# shellcheck disable=SC2154

load support
load screen

setup_file() {
    cmake --install "$VENDEL_BUILD" --prefix "$BATS_FILE_TMPDIR/tree" >/dev/null
}

setup() {
    set_up_till
    # A clock that is set would set the till's own, too.
    launcher=$installed
    open_screen
}

teardown() {
    close_screen
}

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
    manage_screen
    till_behind_another
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    is_active Vendel
}

@test "a second start brings back a till that is minimized" {
    manage_screen
    till_behind_another
    xdotool windowminimize "$(xdotool search --onlyvisible --name '^Vendel$')"
    within is_gone Vendel
    run "$launcher"
    [ "$status" -eq 0 ]
    within is_shown Vendel
    is_active Vendel
}

@test "a second start that asks for a language is refused in the terminal and in a box" {
    manage_screen
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
