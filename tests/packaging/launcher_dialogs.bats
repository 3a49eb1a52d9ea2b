#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: dialogs, where there is a display.
# shellcheck disable=SC2154,SC2016

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
}

# A display, a data directory that cannot be used, and no dialog tool but those of the test.
setup() {
    set_up_till
    export SAID=$BATS_TEST_TMPDIR/said
    export DISPLAY=:0
    mkdir -p "$HOME/.local/share" "$BATS_TEST_TMPDIR/tools"
    touch "$data"
    sentence="Le dossier de données « $data » est inutilisable (ce n'est pas un dossier) ; les copies de la base sont dans « $data/copies »."
    local tool
    for tool in awk cat chmod cp cut date dirname du env flock grep head locale ln mkdir mv readlink rm sed sh sleep \
        sort sqlite3 sync touch tr; do
        ln -s "$(command -v "$tool")" "$BATS_TEST_TMPDIR/tools"
    done
    PATH=$BATS_TEST_TMPDIR/stand-ins:$BATS_TEST_TMPDIR/tools
}

# dialog TOOL: one that notes its arguments, input and character set.
dialog() {
    stand_in "$1" 'printf "%s\n" "$0" "$@" >"$SAID"; locale charmap >>"$SAID"'
}

# letters: standard input without its blanks, of either kind, and line breaks.
letters() {
    sed 's/[  ]//g' | tr -d '\n'
}

# dialog_says TEXT: whether the dialog was given the text, in lines that fit the screen.
dialog_says() {
    letters <"$SAID" | grep -qF -- "$(letters <<<"$1")"
    ! grep -qE '.{72}' "$SAID" || return 1
}

@test "zenity shows what is wrong, as plain text" {
    dialog zenity
    dialog kdialog
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
    grep -qx -- --error "$SAID"
    grep -qx -- --no-markup "$SAID"
    dialog_says "--text=$sentence"
}

@test "kdialog does where there is no zenity" {
    dialog kdialog
    dialog xmessage
    run "$launcher"
    grep -qx -- --error "$SAID"
    dialog_says "$sentence"
}

@test "xmessage does where there is neither" {
    dialog xmessage
    run "$launcher"
    dialog_says "$sentence"
}

@test "on Wayland alone there is a dialog too" {
    unset DISPLAY
    export WAYLAND_DISPLAY=wayland-0
    dialog zenity
    run "$launcher"
    [ -s "$SAID" ]
}

@test "without a display there is no dialog" {
    unset DISPLAY
    dialog zenity
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
    [ ! -e "$SAID" ]
}

@test "without a dialog tool the sentence is printed" {
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$sentence" ]
}

@test "a locale without accents gets one that has them" {
    dialog zenity
    LC_ALL=C run "$launcher"
    grep -qx UTF-8 "$SAID"
}

@test "a long path breaks between letters" {
    dialog xmessage
    XDG_DATA_HOME=$HOME/$(printf 'é%.0s' {1..99}) run "$launcher"
    [ "$status" -eq 0 ]
    touch "$HOME/$(printf 'é%.0s' {1..98})"
    XDG_DATA_HOME=$HOME/$(printf 'é%.0s' {1..98}) run "$launcher"
    [ "$status" -eq 1 ]
    ! grep -qE '.{72}' "$SAID" || return 1
    PATH=/usr/bin iconv -f UTF-8 -t UTF-8 "$SAID" >/dev/null
}

@test "a warning is answered before the till starts" {
    rm "$data"
    mkdir "$data"
    touch "$data/copies"
    "$BATS_TEST_TMPDIR/tools/sqlite3" "$data/Vendel.db" "create table Article (x); create table ArticleStock (x); create table Historique (x); create table DoseStock (x); create table Config (param, valeur); create table Ticket (x); insert into Config values ('TVA', 20), ('Epson TM-T20II', 0)"
    stand_in zenity 'cat "$TILL_LOG" >"$SAID"; printf "%s\n" "$1" >>"$SAID"
[ ! -e /proc/self/fd/9 ] || echo "holds the lock" >>"$SAID"'
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$(cat "$SAID")" = --warning ]
    [ -s "$TILL_LOG" ]
}

@test "a database that is set aside asks for no answer" {
    rm "$data"
    mkdir "$data"
    : >"$data/Vendel.db"
    dialog zenity
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -n "$output" ]
    [ ! -e "$SAID" ]
}

@test "a second till is told so while the first keeps its lock" {
    rm "$data"
    dialog zenity
    open_till
    run "$launcher"
    close_till
    [ "$status" -eq 1 ]
    dialog_says "--text=La caisse est déjà ouverte sur les données de « $data »."
}

@test "a message that waits for its answer holds no lock" {
    rm "$data"
    mkdir -p "$data/Vendel.db"
    stand_in zenity "flock -n '$data/.verrou' sh -c 'echo free' >\"\$SAID\""
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
        sqlite3 "$data/copies/Vendel-2026-03-$day.db" "create table Article (x); create table ArticleStock (x); create table Historique (x); create table DoseStock (x); create table Config (x); create table Ticket (x); insert into Config values ('$day')"
    done
}

@test "zenity lets a copy be chosen and says that it is back" {
    copies_of_two_days
    stand_in zenity 'printf "%s\n" "$@" >>"$SAID"
[ ! -e /proc/self/fd/9 ] || echo "holds the lock" >>"$SAID"
if [ "$1" = --list ]; then cat >>"$SAID"; echo 2026-03-03; fi'
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ "$(sqlite3 "$data/Vendel.db" 'select x from Config')" = 03 ]
    grep -qx 2026-03-04 "$SAID"
    ! grep -qx 'holds the lock' "$SAID" || return 1
    dialog_says "--text=La copie « 2026-03-03 » est remise en place."
}

@test "on a terminal no dialog says that a copy is back" {
    copies_of_two_days
    dialog zenity
    run "$(PATH=/usr/bin:/bin command -v script)" -qec "'$launcher' --restaurer 2026-03-03" /dev/null
    [[ "$output" == *'La copie « 2026-03-03 » est remise en place.'* ]]
    [ ! -e "$SAID" ]
}

@test "kdialog lets a copy be chosen" {
    copies_of_two_days
    stand_in kdialog 'case $3 in --menu) [ ! -e /proc/self/fd/9 ] && echo 2026-03-04 ;; esac'
    "$launcher" --restaurer </dev/null
    [ "$(sqlite3 "$data/Vendel.db" 'select x from Config')" = 04 ]
}

@test "a dialog that is closed changes nothing" {
    copies_of_two_days
    stand_in zenity 'exit 1'
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ ! -e "$data/Vendel.db" ]
}

@test "xmessage shows the copies and how to name one" {
    copies_of_two_days
    dialog xmessage
    "$launcher" --restaurer </dev/null
    grep -q 2026-03-03 "$SAID"
    grep -qx 'vendel --restaurer COPIE' "$SAID"
}
