#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: a dated copy of the database at each day's first start.
# shellcheck disable=SC2154,SC2030,SC2031

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
    sample_shop "$BATS_FILE_TMPDIR/shop"
}

setup() {
    set_up_till
    mkdir -p "$data"
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
}

warning() {
    echo "La copie du jour de la base n'a pas pu être faite dans « $data/copies »."
}

@test "the very first start has nothing to copy" {
    rm "$data/Vendel.db"
    "$launcher"
    [ ! -e "$data/copies" ]
}

@test "the day's first start keeps a copy" {
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ "$(ls "$data/copies")" = Vendel-2026-03-05.db ]
    [ "$(sql "$data/copies/Vendel-2026-03-05.db" .dump)" = "$(sql "$data/Vendel.db" .dump)" ]
}

@test "the copy is made before the till runs" {
    TILL_DOES='rm Vendel.db' "$launcher"
    [ -f "$data/copies/Vendel-2026-03-05.db" ]
}

@test "a later start of the day leaves the copy as it is" {
    "$launcher"
    sql "$data/Vendel.db" 'delete from Article'
    NOW='2026-03-05 23:59:59' "$launcher"
    [ "$(ls "$data/copies")" = "Vendel-2026-03-05-2359.db
Vendel-2026-03-05.db" ]
    [ "$(sql "$data/copies/Vendel-2026-03-05.db" 'select count(*) > 0 from Article')" = 1 ]
}

@test "the next day has a copy of its own" {
    "$launcher"
    NOW='2026-03-06 00:00:00' "$launcher"
    [ "$(ls "$data/copies")" = "Vendel-2026-03-05.db
Vendel-2026-03-06.db" ]
}

@test "the last 30 copies are kept, and nothing else goes" {
    mkdir "$data/copies"
    for day in $(seq -w 1 31); do
        echo january >"$data/copies/Vendel-2026-01-$day.db"
    done
    touch "$data/copies/Vendel-remplacee-2020-01-01-120000.db" "$data/copies/note.txt"
    "$launcher"
    [ "$(find "$data/copies" -name 'Vendel-2026-*' | wc -l)" -eq 30 ]
    [ ! -e "$data/copies/Vendel-2026-01-02.db" ]
    [ -e "$data/copies/Vendel-2026-01-03.db" ]
    [ -e "$data/copies/Vendel-2026-03-05.db" ]
    [ -e "$data/copies/Vendel-remplacee-2020-01-01-120000.db" ]
    [ -e "$data/copies/note.txt" ]
}

@test "what a killed start left of a copy is no obstacle" {
    mkdir "$data/copies"
    echo part >"$data/copies/.Vendel.neuf"
    echo journal >"$data/copies/.Vendel.neuf-journal"
    "$launcher"
    [ "$(ls -A "$data/copies")" = ".registre
Vendel-2026-03-05.db" ]
    [ "$(sql "$data/copies/Vendel-2026-03-05.db" 'pragma integrity_check')" = ok ]
}

@test "a change that was cut off is not in the copy" {
    cp "$data/Vendel.db" "$BATS_TEST_TMPDIR/before.db"
    hold_database 'delete from Historique;'
    release_database
    [ -s "$data/Vendel.db-journal" ]
    run cmp -s "$data/Vendel.db" "$BATS_TEST_TMPDIR/before.db"
    [ "$status" -eq 1 ]
    "$launcher"
    [ "$(sql "$data/copies/Vendel-2026-03-05.db" .dump)" = "$(sql "$BATS_TEST_TMPDIR/before.db" .dump)" ]
}

@test "a copy that finds no room is said and the till starts" {
    run sh -c 'trap "" XFSZ; ulimit -f 16; exec "$0"' "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "$(warning)" ]
    [ -z "$(ls -A "$data/copies")" ]
    [ -s "$TILL_LOG" ]
}

@test "a file in the place of the copies is said and the till starts" {
    touch "$data/copies"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "$(warning)" ]
    [ -s "$TILL_LOG" ]
}

@test "copies in a folder of somebody else are said and the till starts" {
    [ "$(id -u)" -eq 0 ] || skip "only root can give a folder to somebody else"
    mkdir -p "$data/copies"
    as_user true
    chown root: "$data/copies"
    chmod a+rwx "$data/copies"
    run setpriv --reuid nobody --regid nogroup --clear-groups "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "$(warning)" ]
    [ -s "$TILL_LOG" ]
    [ -z "$(ls -A "$data/copies")" ]
}

@test "copies that were made read-only are written again" {
    mkdir -p "$data/copies"
    chmod a-w "$data/copies"
    run as_user "$launcher"
    [ -z "$output" ]
    [ -f "$data/copies/Vendel-2026-03-05.db" ]
    [ "$(stat -c %a "$data/copies")" = 700 ]
}

@test "a copy that fails is no reason to call the database damaged" {
    for error in pwrite64:error=ENOSPC pwrite64:error=EIO openat:error=EACCES:when=2 \
        fsync:error=EIO renameat2:error=EROFS; do
        rm -rf "$data/copies"
        : >"$TILL_LOG"
        disturbed "$error" copies/.Vendel.neuf .Vendel.neuf
        run "${disturbance[@]}" "$launcher"
        [ "$status" -eq 0 ]
        [ -s "$TILL_LOG" ]
        [ "$output" = "$(warning)" ]
    done
}

@test "a database that was cut short is said" {
    truncate -s 8192 "$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 1 ]
    [[ "$output" == *'inutilisable (elle est endommagée)'* ]]
    [ ! -s "$TILL_LOG" ]
}

@test "a copy and its name are on the disk before the till starts" {
    strace -f -y -qq -o "$BATS_TEST_TMPDIR/calls" -e trace=fsync,renameat2,execve "$launcher"
    run sed -nE '/Vendel\.neuf>\) = 0$/s/.*/file/p; /renameat2.*Vendel-2026-03-05\.db/s/.*/name/p
        /fsync\([0-9]+<[^>]*\/copies>/s/.*/folder/p; /execve.*\/vendel\/vendel"/s/.*/till/p' \
        "$BATS_TEST_TMPDIR/calls"
    [ "${lines[*]:0:4}" = 'folder file name folder' ]
    [ "${lines[-1]}" = till ]
}

# second_place: a folder that copies go to as well.
second_place() {
    stick=$BATS_TEST_TMPDIR/stick
    mkdir "$stick"
    run "$launcher" --copies-vers "$stick"
    [ "$status" -eq 0 ]
    [ "$output" = "Chaque copie ira aussi dans « $stick »." ]
}

@test "a copy goes to the second place too" {
    second_place
    "$launcher"
    cmp "$data/copies/Vendel-2026-03-05.db" "$stick/Vendel-2026-03-05.db"
}

@test "a second place that is named from where one is is remembered from anywhere" {
    mkdir "$BATS_TEST_TMPDIR/stick"
    (cd "$BATS_TEST_TMPDIR" && "$launcher" --copies-vers stick)
    [ "$(head -n 1 "$data/copies-vers")" = "$BATS_TEST_TMPDIR/stick" ]
}

@test "a second place can be changed while the till is open" {
    open_till
    second_place
    close_till
    [ -f "$stick/Vendel-2026-03-05.db" ]
}

@test "a second place can be forgotten" {
    second_place
    run "$launcher" --copies-vers -
    [ "$status" -eq 0 ]
    [ "$output" = "Les copies n'iront plus ailleurs." ]
    "$launcher"
    [ -z "$(ls "$stick")" ]
}

@test "the till's own folder is no second place" {
    mkdir -p "$data/copies"
    for place in "$data" "$data/copies"; do
        run "$launcher" --copies-vers "$place"
        [ "$status" -eq 1 ]
        [ "$output" = "Le dossier « $place » est déjà celui de la caisse : une copie n'y serait pas à l'abri." ]
    done
    [ ! -e "$data/copies-vers" ]
}

@test "a second place that may not be written is refused" {
    mkdir "$BATS_TEST_TMPDIR/stick"
    as_user chmod a-w "$BATS_TEST_TMPDIR/stick"
    run as_user "$launcher" --copies-vers "$BATS_TEST_TMPDIR/stick"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier « $BATS_TEST_TMPDIR/stick » n'existe pas ou ne peut pas être écrit." ]
}

@test "a second place that is no folder is refused" {
    touch "$BATS_TEST_TMPDIR/file"
    for place in "$BATS_TEST_TMPDIR/nowhere" "$BATS_TEST_TMPDIR/file"; do
        run "$launcher" --langue en --copies-vers "$place"
        [ "$status" -eq 1 ]
        [ "$output" = "The folder \"$place\" does not exist or cannot be written." ]
    done
    [ ! -e "$data/copies-vers" ]
}

@test "a second place that is away for a week is said at each start" {
    second_place
    "$launcher"
    mv "$stick" "$stick.out"
    NOW='2026-03-11 09:00:00' run "$launcher"
    [ -z "$output" ]
    NOW='2026-03-12 09:00:00' run "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "Aucune copie n'a atteint « $stick » depuis le 2026-03-05 : branchez-y le support, ou choisissez un autre dossier avec « vendel --copies-vers DOSSIER »." ]
    # The folder that a stick is mounted on is not the stick.
    mkdir "$stick"
    NOW='2026-03-13 08:00:00' run "$launcher"
    [[ "$output" == "Aucune copie n'a atteint"* ]]
    rmdir "$stick"
    mv "$stick.out" "$stick"
    NOW='2026-03-13 09:00:00' "$launcher"
    NOW='2026-03-14 09:00:00' run "$launcher"
    [ -z "$output" ]
    [ -f "$stick/Vendel-2026-03-14.db" ]
}

@test "what was sold is copied when the till is closed" {
    "$launcher"
    TILL_DOES='sqlite3 Vendel.db "delete from Article"' "$launcher"
    [ "$(sql "$data/copies/Vendel-2026-03-05-1407.db" 'select count(*) from Article')" = 0 ]
    [ "$(sql "$data/copies/Vendel-2026-03-05.db" 'select count(*) > 0 from Article')" = 1 ]
}

@test "copies of the future do not push out todays" {
    mkdir "$data/copies"
    for day in $(seq -w 1 31); do
        echo future >"$data/copies/Vendel-2099-01-$day.db"
    done
    "$launcher"
    [ -f "$data/copies/Vendel-2026-03-05.db" ]
    NOW='2026-03-06 09:00:00' "$launcher"
    [ -f "$data/copies/Vendel-2026-03-05.db" ]
    [ -f "$data/copies/Vendel-2026-03-06.db" ]
}

@test "a disk that does not give the copy back says nothing against the database" {
    for number in 6 12 20; do
        rm -rf "$data/copies"
        : >"$TILL_LOG"
        disturbed "pread64:error=EIO:when=$number+" copies/.Vendel.neuf
        run "${disturbance[@]}" "$launcher"
        [ "$status" -eq 0 ]
        [ -s "$TILL_LOG" ]
        [ "$output" = "$(warning)" ]
    done
}

@test "a warning is in the log too, and a name with a line break is no second place" {
    touch "$data/copies"
    "$launcher" 2>/dev/null
    grep -qF "$(warning)" "$data/vendel.log"
    mkdir "$BATS_TEST_TMPDIR/two"$'\n'"lines"
    run "$launcher" --copies-vers "$BATS_TEST_TMPDIR/two"$'\n'"lines"
    [ "$status" -eq 1 ]
    [ ! -e "$data/copies-vers" ]
}

@test "a database that is gone is said when there are copies" {
    "$launcher"
    rm "$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "La base de données manque : la caisse en commence une vide. Les copies sont dans « $data/copies » et « vendel --restaurer » en remet une en place." ]
}
