#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: the guide, opened in the desktop's browser.
# shellcheck disable=SC2154,SC2016

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
}

# A display, a browser and boxes of the test.
setup() {
    cp -a "$BATS_FILE_TMPDIR/tree" "$BATS_TEST_TMPDIR/tree"
    set_up_till "$BATS_TEST_TMPDIR/tree"
    guide=$(realpath "$BATS_TEST_TMPDIR/tree")/share/doc/vendel/guide.fr.html
    export OPENED=$BATS_TEST_TMPDIR/opened SAID=$BATS_TEST_TMPDIR/said DISPLAY=:0
    stand_in xdg-open 'printf "%s\n" "$@" >>"$OPENED"'
    dialogue=$(find "$BATS_TEST_TMPDIR/tree" -name vendel-dialogue)
    printf '#!/bin/sh\nprintf "%%s\\n" "$@" >>"$SAID"\n' >"$dialogue"
}

@test "the guide is opened by the desktop" {
    run "$launcher" --guide
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ "$(cat "$OPENED")" = "$guide" ]
    [ -f "$guide" ]
    [ ! -e "$SAID" ]
}

@test "on Wayland alone it is opened too" {
    unset DISPLAY
    WAYLAND_DISPLAY=wayland-0 run "$launcher" --guide
    [ "$status" -eq 0 ]
    [ "$(cat "$OPENED")" = "$guide" ]
}

@test "the guide needs no data folder and makes none" {
    run env -u HOME -u XDG_DATA_HOME "$launcher" --guide
    [ "$status" -eq 0 ]
    [ -s "$OPENED" ]
    "$launcher" --guide
    [ ! -e "$data" ]
    [ ! -s "$TILL_LOG" ]
}

@test "the guide can be read while the till is open" {
    open_till
    run "$launcher" --guide
    [ "$status" -eq 0 ]
    kill -0 "$till"
    close_till
    [ "$(cat "$OPENED")" = "$guide" ]
}

@test "a browser that stays is not waited for, and outlives the terminal" {
    stand_in xdg-open 'echo $$ >"$OPENED"; exec sleep 60'
    run "$launcher" --guide
    browser=$(cat "$OPENED")
    session=$(ps -o sid= -p "$browser" | tr -d ' ')
    kill "$browser"
    [ "$session" = "$browser" ]
    [ "$status" -eq 0 ]
    [ -z "$output" ]
}

@test "a browser writes nothing on the terminal, and its files are as its user wants them" {
    stand_in xdg-open 'echo noise; echo noise >&2; umask >"$OPENED"'
    umask 027
    run "$launcher" --guide
    [ -z "$output" ]
    [ "$(cat "$OPENED")" = 0027 ]
}

@test "without a display the file is named, for programs too" {
    unset DISPLAY
    run "$launcher" --guide
    [ "$status" -eq 0 ]
    [ "$output" = "$guide
Aucun navigateur ne s'est ouvert ; le guide est dans le fichier « $guide »." ]
    [ "$("$launcher" --guide 2>/dev/null)" = "$guide" ]
    [ ! -e "$OPENED" ]
}

@test "without a browser the file is named, in a box too" {
    stand_in xdg-open 'exit 3'
    run "$launcher" --guide --langue en
    [ "$status" -eq 0 ]
    [ "$output" = "$guide
No browser has opened; the guide is in the file \"$guide\"." ]
    [ "$(cat "$SAID")" = "--en
--avertissement
No browser has opened; the guide is in the file \"$guide\"." ]
}

@test "without xdg-open the file is named" {
    rm "$BATS_TEST_TMPDIR/stand-ins/xdg-open"
    PATH=$BATS_TEST_TMPDIR/stand-ins run "$launcher" --guide
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = "$guide" ]
}

@test "a guide that is missing is said" {
    rm "$guide"
    run "$launcher" --guide
    [ "$status" -eq 1 ]
    [ "$output" = "Le guide « $guide » manque : Vendel est à réinstaller." ]
    [ "$(head -n 1 "$SAID")" = --erreur ]
    [ ! -e "$OPENED" ]
}

@test "the build tree's launcher opens the guide that was built" {
    run "$VENDEL_BUILD/packaging/vendel" --guide
    [ "$status" -eq 0 ]
    [ "$(cat "$OPENED")" = "$(realpath "$VENDEL_BUILD")/packaging/guide/guide.fr.html" ]
    [ -f "$VENDEL_BUILD/packaging/guide/images/sale.png" ]
}
