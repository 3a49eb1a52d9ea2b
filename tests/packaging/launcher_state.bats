#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: the state of the shop.
# shellcheck disable=SC2154,SC2016,SC2030,SC2031

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
    sample_shop "$BATS_FILE_TMPDIR/shop"
}

# A shop with a copy, and a USB bus without a device.
setup() {
    set_up_till
    mkdir -p "$data"
    cp "$BATS_FILE_TMPDIR/shop/"* "$data"
    plug_in --no-device
    stand_in vendel "LD_PRELOAD='$(find /usr/lib -name libfaketime.so.1) libumockdev-preload.so.0'
        FAKETIME=\$NOW DONT_FAKE_MONOTONIC=1 FAKETIME_DONT_FAKE_MONOTONIC=1 NO_FAKE_STAT=1
        export LD_PRELOAD FAKETIME DONT_FAKE_MONOTONIC FAKETIME_DONT_FAKE_MONOTONIC NO_FAKE_STAT
        exec '$installed' \"\$@\""
    "$launcher"
    size=$(($(stat -c %s "$data/Vendel.db") / 1024))K
}

teardown() {
    unplug
}

# plug_in OPTION...: a USB bus of the test; unplug ends it.
plug_in() {
    coproc PRINTER { exec "$VENDEL_BUILD/tests/support/emulated-printer" --record /dev/null "$@" 3>&-; }
    read -r -u "${PRINTER[0]}" UMOCKDEV_DIR
    export UMOCKDEV_DIR
}

unplug() {
    local host=${PRINTER_PID:-}
    [ -n "$host" ] || return 0
    echo quit >&"${PRINTER[1]}"
    wait "$host" || true
}

# shop_files: everything in the data directory, with its rights, time and bytes.
shop_files() {
    find "$data" -type f -printf '%P %m %T@ ' -exec md5sum {} \; | sort
    find "$data" -type d -printf '%P %m\n' | sort
}

@test "a shop that is well is told in French, and nothing is changed" {
    before=$(shop_files)
    run "$launcher" --etat
    [ "$status" -eq 0 ]
    [ "$output" = "Vendel 1.0.0, la caisse est fermée
Dossier de données : « $data »
Base de données : $size, en bon état
Copies ici : 1, en dernier 2026-03-05 ($size)
Second endroit des copies : aucun
Ennuis dans le journal : aucun
Imprimante : absente du bus USB
Tout va bien." ]
    [ "$(shop_files)" = "$before" ]
}

@test "in English when it is remembered, or asked for this time" {
    run "$launcher" --etat --langue en
    [ "${lines[0]}" = 'Vendel 1.0.0, the till is closed' ]
    [ ! -e "$data/langue" ]
    "$launcher" --langue en
    run "$launcher" --etat
    [ "$status" -eq 0 ]
    [ "$output" = "Vendel 1.0.0, the till is closed
Data directory: \"$data\"
Database: $size, sound
Copies here: 1, the last 2026-03-05 ($size)
Second place of the copies: none
Trouble in the log: none
Printer: not on the USB bus
All is well." ]
}

@test "without a data directory none is made" {
    rm -r "$data"
    run "$launcher" --etat
    [ "$status" -eq 1 ]
    [ "${lines[1]}" = "Dossier de données : « $data » (il n'y a encore rien, la caisse n'a jamais démarré ici)" ]
    [ ! -e "$data" ]
}

@test "while the till is open it goes on" {
    : >"$TILL_LOG"
    open_till
    run "$launcher" --etat
    kill -0 "$till"
    close_till
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = 'Vendel 1.0.0, la caisse est ouverte' ]
    [ "${lines[2]}" = "Base de données : $size, en bon état" ]
}

@test "a damaged database is said" {
    damage "$data/Vendel.db"
    run "$launcher" --etat
    [ "$status" -eq 1 ]
    [ "${lines[2]}" = "Base de données : $size, inutilisable (elle est endommagée)" ]
    [ "${lines[-1]}" = 'À voir : la base de données.' ]
}

@test "what the till complained of today is said" {
    TILL_DOES='echo Write Error; printf "Errors \\033[31m\\n"' "$launcher"
    run "$launcher" --etat
    [ "$status" -eq 1 ]
    [ "${lines[5]}" = 'Derniers ennuis dans le journal :' ]
    [ "${lines[6]}" = '  2026-03-05 14:07:31 Write Error' ]
    [ "${lines[7]}" = '  2026-03-05 14:07:31 Errors ?[31m' ]
    NOW='2026-03-07 09:00:00' run "$launcher" --etat
    [ "$status" -eq 0 ]
    [ "${lines[6]}" = '  2026-03-05 14:07:31 Write Error' ]
}

@test "a second place that is away is said, and is trouble after a week" {
    mkdir "$BATS_TEST_TMPDIR/stick"
    "$launcher" --copies-vers "$BATS_TEST_TMPDIR/stick"
    "$launcher"
    run "$launcher" --etat
    [ "$status" -eq 0 ]
    [ "${lines[4]}" = "Second endroit des copies : « $BATS_TEST_TMPDIR/stick », atteint le 2026-03-05, dernière copie : 2026-03-05" ]
    rm -r "$BATS_TEST_TMPDIR/stick"
    NOW='2026-03-12 09:00:00' run "$launcher" --etat
    [ "$status" -eq 1 ]
    [ "${lines[4]}" = "Second endroit des copies : « $BATS_TEST_TMPDIR/stick », absent maintenant, atteint le 2026-03-05" ]
    [ "${lines[-1]}" = 'À voir : le second endroit.' ]
}

@test "a printer that is plugged in is found" {
    unplug
    plug_in
    run "$launcher" --etat
    [ "$status" -eq 0 ]
    [ "${lines[6]}" = 'Imprimante : branchée, et elle peut être ouverte' ]
}

@test "a printer that is missing is trouble where receipts are printed" {
    sql "$data/Vendel.db" "update Config set valeur = 1 where param like 'Epson%'"
    run "$launcher" --etat
    [ "$status" -eq 1 ]
    [ "${lines[6]}" = "Imprimante : absente du bus USB, et les tickets s'impriment sur papier" ]
}

@test "interrupted, it leaves nothing behind" {
    sql "$data/Vendel.db" "insert into Historique (id, article, prix) with recursive n(i) as (select 1
        union all select i + 1 from n where i < 500000) select i, 'Thé à la menthe', 1 from n"
    "$launcher" --etat >/dev/null 3>&- &
    asked=$!
    until compgen -G "$data/copies/.Vendel.etat-*" >/dev/null; do
        kill -0 "$asked"
        sleep 0.001
    done
    kill -TERM "$asked"
    status=0
    wait "$asked" || status=$?
    [ "$status" -eq 143 ]
    [ "$(ls -A "$data/copies")" = '.registre
Vendel-2026-03-05.db' ]
}

@test "what a killed look left is gone after the next start" {
    sh -c 'exit 0' &
    ended=$!
    wait "$ended"
    touch "$data/copies/.Vendel.etat-$ended-journal" "$data/.Vendel.etat-$ended"
    "$launcher"
    [ -z "$(find "$data" -name '.Vendel.etat*')" ]
}

@test "the help names it" {
    run "$launcher" --aide
    [[ "$output" == *"vendel --etat"* ]]
}
