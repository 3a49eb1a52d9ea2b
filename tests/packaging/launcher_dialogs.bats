#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: boxes, where there is a display.
# shellcheck disable=SC2154,SC2016

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/installed"
    sample_shop "$BATS_FILE_TMPDIR/shop"
}

# A display, a data directory that cannot be used, and a program of the test that shows the boxes.
setup() {
    cp -a "$BATS_FILE_TMPDIR/installed" "$BATS_TEST_TMPDIR/tree"
    set_up_till "$BATS_TEST_TMPDIR/tree"
    export SAID=$BATS_TEST_TMPDIR/said
    export DISPLAY=:0
    mkdir -p "$HOME/.local/share"
    touch "$data"
    sentence="Le dossier de données « $data » est inutilisable (ce n'est pas un dossier) ; les copies de la base sont dans « $data/copies »."
    dialogue 'printf "%s\n" "$@" >>"$SAID"'
}

# dialogue SCRIPT: what shows a box.
dialogue() {
    local program
    program=$(find "$BATS_TEST_TMPDIR/tree" -name vendel-dialogue)
    rm -f "$program"
    printf '#!/bin/sh\n%s\n' "$1" >"$program"
    chmod +x "$program"
}

# holds_lock: for scripts of dialogue: whether they inherited more than the standard descriptors.
holds_lock='for number in /proc/self/fd/*; do
    case $(readlink "$number") in *.verrou) echo "holds the lock" >>"$SAID" ;; esac
done'

@test "a box shows what is wrong" {
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
    [ "$(cat "$SAID")" = "--erreur
$sentence" ]
}

@test "in English the box is English" {
    run "$launcher" --langue en
    [ "$(head -n 2 "$SAID")" = "--en
--erreur" ]
    grep -qF 'it is not a directory' "$SAID"
}

@test "a till as large as the screen is made for the screen of each start" {
    rm "$data"
    export TILL_DOES='echo "factor $QT_SCALE_FACTOR"'
    dialogue 'echo "$*" >>"$SAID"; echo 1920 1040'
    run "$launcher" --taille ecran
    [ "$output" = 'factor 1.55' ]
    dialogue 'echo "$*" >>"$SAID"; echo 1366 768'
    run "$launcher"
    [ "$output" = 'factor 1.15' ]
    [ "$(cat "$SAID")" = "--ecran
--ecran" ]
    run "$launcher" --taille 150
    [ "$output" = 'factor 1.50' ]
    [ "$(wc -l <"$SAID")" -eq 2 ]
}

@test "on Wayland alone there is a box too" {
    unset DISPLAY
    export WAYLAND_DISPLAY=wayland-0
    run "$launcher"
    [ -s "$SAID" ]
}

@test "without a display there is no box" {
    unset DISPLAY
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
    [ ! -e "$SAID" ]
}

@test "without the program that shows boxes the sentence is printed" {
    find "$BATS_TEST_TMPDIR/tree" -name vendel-dialogue -delete
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
}

@test "a box that fails changes nothing" {
    dialogue 'echo trouble >&2; kill -SEGV $$'
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
}

# shop_without_copies: a data directory in which no copy can be made.
shop_without_copies() {
    rm -f "$data"
    mkdir "$data"
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    touch "$data/copies"
}

@test "a warning is answered before the till starts" {
    shop_without_copies
    dialogue 'cat "$TILL_LOG" >"$SAID"; printf "%s\n" "$1" >>"$SAID"'"
$holds_lock"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$(cat "$SAID")" = --avertissement ]
    [ -s "$TILL_LOG" ]
}

@test "a database that is set aside asks for no answer" {
    rm "$data"
    mkdir "$data"
    : >"$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -n "$output" ]
    [ ! -e "$SAID" ]
}

@test "a second till is told so while the first keeps its lock" {
    rm "$data"
    dialogue '[ "$1" != --montrer ] || exit 1; printf "%s\n" "$@" >>"$SAID"'
    open_till
    run "$launcher"
    close_till
    [ "$status" -eq 1 ]
    grep -qxF "La caisse est déjà ouverte sur les données de « $data »." "$SAID"
}

@test "a second start shows the first one's till, and says nothing" {
    rm "$data"
    open_till
    run "$launcher"
    program=$(pgrep -P "$till")
    close_till
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ "$(cat "$SAID")" = "--montrer
$program" ]
}

@test "a second start that asks for what the till has shows it, and says nothing" {
    rm "$data"
    open_till --langue en --taille 150
    for options in '--langue en' '--taille 150' '--taille 150 --langue en'; do
        # shellcheck disable=SC2086
        run "$launcher" $options
        [ "$status" -eq 0 ]
        [ -z "$output" ]
    done
    close_till
    [ "$(grep -c montrer "$SAID")" -eq 3 ]
}

@test "a second start that asks for something else shows the till, and says that it is open" {
    rm "$data"
    open_till --langue en
    for options in '--langue fr' '--taille 150' '--langue en --taille 150'; do
        : >"$SAID"
        # shellcheck disable=SC2086
        run "$launcher" $options
        [ "$status" -eq 1 ]
        grep -qx -- --montrer "$SAID"
        grep -qx -- --erreur "$SAID"
    done
    close_till
    [ "$(cat "$data/langue")" = en ]
    [ ! -e "$data/taille" ]
}

@test "a list of copies that waits for its answer keeps no till from starting" {
    rm "$data"
    mkdir -p "$data/copies"
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data/copies/Vendel-2026-03-01.db"
    dialogue "flock -n '$data/.verrou' sh -c 'echo free' >>\"\$SAID\"; exit 1"
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ "$(cat "$SAID")" = free ]
}

@test "a program for boxes that hangs does not hold up a start" {
    rm "$data"
    dialogue '[ "$1" = --ecran ] && exec sleep 60; exit 1'
    run timeout 30 "$launcher" --taille ecran
    [ "$status" -eq 0 ]
}

@test "a message that waits for its answer holds no lock" {
    rm "$data"
    mkdir -p "$data/Vendel.db"
    dialogue "flock -n '$data/.verrou' sh -c 'echo free' >\"\$SAID\""
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$(cat "$SAID")" = free ]
}

# copies_of_two_days: in a data directory without a database.
copies_of_two_days() {
    rm "$data"
    mkdir -p "$data/copies"
    local day
    for day in 03 04; do
        cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data/copies/Vendel-2026-03-$day.db"
        sql "$data/copies/Vendel-2026-03-$day.db" "update Config set valeur = $day where param = 'TVA'"
    done
}

rate() {
    sql "$data/Vendel.db" "select valeur from Config where param = 'TVA'"
}

@test "a copy is chosen in a box, which another says is back" {
    copies_of_two_days
    dialogue 'printf "%s\n" "$@" >>"$SAID"
if [ "$1" = --copies ]; then cut -f 1 >>"$SAID"; echo 2026-03-03; fi'"
$holds_lock"
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ "$(rate)" = 3 ]
    [ "$(cat "$SAID")" = "--copies
Quelle copie de la base remettre en place ?
2026-03-04
2026-03-03
--note
La copie « 2026-03-03 » est remise en place." ]
}

@test "on a terminal no box says that a copy is back" {
    copies_of_two_days
    run script -qec "'$launcher' --restaurer 2026-03-03" /dev/null
    [[ "$output" == *'La copie « 2026-03-03 » est remise en place.'* ]]
    [ ! -e "$SAID" ]
}

@test "a box that is closed changes nothing" {
    copies_of_two_days
    dialogue 'exit 1'
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ ! -e "$data/Vendel.db" ]
}

@test "copies that no box can show are printed" {
    copies_of_two_days
    dialogue 'kill -ABRT $$'
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ "$(cut -f 1 <<<"$output")" = "2026-03-04
2026-03-03" ]
    [ ! -e "$data/Vendel.db" ]
}

@test "the launcher itself loads no Qt" {
    run ldd "$installed"
    [ "$status" -eq 0 ]
    [[ "$output" != *libQt* ]]
}
