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

# box_is_active: a box of the launcher has the focus; the till's window has the same name.
box_is_active() { xprop -id "$(xdotool getactivewindow)" WM_CLASS | grep -q vendel-dialogue; }

@test "a second start brings the till's settings to the front when they are open" {
    manage_screen
    background "$launcher"
    within is_shown Vendel
    within is_active Dialog
    xdotool key Escape
    within is_active Vendel
    xdotool key alt Down Return
    within is_active Config
    background xev -name Another
    within is_shown Another
    xdotool search --name '^Another$' windowactivate
    within is_active Another
    run "$launcher"
    [ "$status" -eq 0 ]
    within is_active Config
}

@test "a second start that asks for a language shows the till, and says in a box that it is open" {
    manage_screen
    till_behind_another
    "$launcher" --langue en >"$BATS_TEST_TMPDIR/said" 2>&1 3>&- &
    second=$!
    within grep -q 'already open' "$BATS_TEST_TMPDIR/said"
    within box_is_active
    xdotool key --clearmodifiers Return
    run wait "$second"
    within is_active Vendel
}

@test "without a window manager a second start says that the till is open" {
    background "$launcher"
    within is_shown Vendel
    "$launcher" >"$BATS_TEST_TMPDIR/said" 2>&1 3>&- &
    running=("$!" "${running[@]}")
    within grep -qxF "La caisse est déjà ouverte sur les données de « $data »." "$BATS_TEST_TMPDIR/said"
}
