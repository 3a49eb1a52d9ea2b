#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: putting a copy of the database back.
# shellcheck disable=SC2154

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
    sample_shop "$BATS_FILE_TMPDIR/shop"
}

# The shop of 3 March, 4 March and now: they differ in the price of the only article.
setup() {
    set_up_till
    mkdir -p "$data/copies"
    price 3 "$data/copies/Vendel-2026-03-03.db"
    price 4 "$data/copies/Vendel-2026-03-04.db"
    price 5 "$data/Vendel.db"
}

price() {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$2"
    sql "$2" "delete from Article; insert into Article (article, prix) values ('Thé', $1)"
}

price_in() {
    sql "$1" 'select prix from Article'
}

# nothingElse: the data directory has the shop and its copies, and no trace of an attempt.
nothingElse() {
    [ "$(ls -A "$data")" = ".verrou
Vendel.db
copies" ]
}

@test "the named copy is put back and the replaced database kept" {
    run "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 0 ]
    [ "$output" = "La copie « 2026-03-03 » est remise en place ; la base remplacée est gardée dans « $data/copies/Vendel-remplacee-2026-03-05-140731.db »." ]
    [ "$(price_in "$data/Vendel.db")" = 3 ]
    [ "$(price_in "$data/copies/Vendel-remplacee-2026-03-05-140731.db")" = 5 ]
    [ "$(price_in "$data/copies/Vendel-2026-03-03.db")" = 3 ]
}

@test "restoring starts no till and leaves nothing behind" {
    "$launcher" --restaurer 2026-03-03
    [ ! -s "$TILL_LOG" ]
    nothingElse
}

@test "copy and replaced database keep their dates and are their user's alone" {
    chmod 640 "$data/copies/Vendel-2026-03-03.db"
    touch -d '2026-03-03 09:00:00' "$data/copies/Vendel-2026-03-03.db"
    chmod 600 "$data/Vendel.db"
    touch -d '2026-03-05 12:00:00' "$data/Vendel.db"
    "$launcher" --restaurer 2026-03-03
    [ "$(stat -c '%a %y' "$data/Vendel.db")" = '600 2026-03-03 09:00:00.000000000 +0100' ]
    [ "$(stat -c '%a %y' "$data/copies/Vendel-remplacee-2026-03-05-140731.db")" = '600 2026-03-05 12:00:00.000000000 +0100' ]
}

@test "a copy is on the disk before it takes the database's place" {
    strace -f -y -qq -o "$BATS_TEST_TMPDIR/calls" -e trace=fsync,renameat "$launcher" --restaurer 2026-03-03
    run sed -nE '/fsync.*Vendel\.db\.neuf>/s/.*/file/p; /renameat\(.*"Vendel\.db"/s/.*/name/p
        /fsync\([0-9]+<[^>]*share\/vendel>/s/.*/folder/p' "$BATS_TEST_TMPDIR/calls"
    [ "${lines[*]: -3}" = 'file name folder' ]
}

@test "two restorations of one second keep both databases" {
    "$launcher" --restaurer 2026-03-03
    "$launcher" --restaurer 2026-03-04
    [ "$(price_in "$data/copies/Vendel-remplacee-2026-03-05-140731.db")" = 5 ]
    [ "$(price_in "$data/copies/Vendel-remplacee-2026-03-05-140731-2.db")" = 3 ]
}

@test "a restoration can be taken back" {
    "$launcher" --restaurer 2026-03-03
    "$launcher" --restaurer remplacee-2026-03-05-140731
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "without a terminal and a display the copies are listed, newest first" {
    "$launcher" --restaurer 2026-03-03
    run "$launcher" --restaurer </dev/null
    [ "$status" -eq 0 ]
    [ "$(cut -f 1 <<<"$output")" = "2026-03-04
2026-03-03
remplacee-2026-03-05-140731" ]
}

# on_terminal INPUT: restores with a terminal as standard input.
on_terminal() {
    run script -qec "'$launcher' --restaurer" /dev/null <<<"$1"
}

@test "on a terminal a number chooses" {
    on_terminal 2
    [ "$status" -eq 0 ]
    [[ "$output" == *"Quelle copie de la base remettre en place ?"* ]]
    [ "$(price_in "$data/Vendel.db")" = 3 ]
}

@test "on a terminal a name chooses" {
    on_terminal 2026-03-04
    [ "$(price_in "$data/Vendel.db")" = 4 ]
}

@test "on a terminal an empty line changes nothing" {
    on_terminal ''
    [ "$status" -eq 0 ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "on a terminal a number without a copy is answered, and asked for again" {
    on_terminal $'3\n0\nabc\n2'
    [ "$status" -eq 0 ]
    for typed in 3 0 abc; do
        [[ "$output" == *"« $typed » n'est pas dans la liste : tapez un numéro, ou Entrée pour ne rien changer."* ]]
    done
    [ "$(price_in "$data/Vendel.db")" = 3 ]
}

@test "a copy that is not there is refused" {
    run "$launcher" --restaurer 2026-03-02
    [ "$status" -eq 1 ]
    [ "$output" = "Il n'y a pas de copie « 2026-03-02 » dans « $data/copies »." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "only copies are put back, not any file" {
    mkdir "$data/copies/Vendel-x"
    price 9 "$data/copies/elsewhere.db"
    run "$launcher" --restaurer x/../elsewhere
    [ "$status" -eq 1 ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "without copies it says so" {
    rm -r "$data/copies"
    run "$launcher" --restaurer
    [ "$status" -eq 1 ]
    [ "$output" = "Il n'y a aucune copie de la base dans « $data/copies »." ]
}

@test "a damaged copy is refused" {
    damage "$data/copies/Vendel-2026-03-03.db"
    run "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 1 ]
    [ "$output" = "La copie « 2026-03-03 » est endommagée ; la base n'a pas été changée." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
    nothingElse
}

@test "a copy without the till's tables is refused" {
    sql "$data/copies/Vendel-2026-03-02.db" 'create table Article (x)'
    run "$launcher" --restaurer 2026-03-02
    [ "$status" -eq 1 ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "nothing is restored under an open till" {
    open_till
    run "$launcher" --restaurer 2026-03-03
    close_till
    [ "$status" -eq 1 ]
    [ "$output" = "La caisse est déjà ouverte sur les données de « $data »." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
}

@test "the journal of a change that was cut off goes with the replaced database" {
    hold_database 'delete from Historique;'
    release_database
    [ -s "$data/Vendel.db-journal" ]
    "$launcher" --restaurer 2026-03-03
    [ ! -e "$data/Vendel.db-journal" ]
    [ "$(sql "$data/Vendel.db" 'pragma integrity_check')" = ok ]
    [ "$(price_in "$data/Vendel.db")" = 3 ]
    "$launcher" --restaurer remplacee-2026-03-05-140731
    [ "$(price_in "$data/Vendel.db")" = 5 ]
    [ "$(sql "$data/Vendel.db" 'select count(*) > 0 from Historique')" = 1 ]
    [ "$(sql "$data/Vendel.db" 'pragma integrity_check')" = ok ]
}

@test "a copy takes the place of what is no database" {
    rm "$data/Vendel.db"
    mkdir "$data/Vendel.db"
    "$launcher" --restaurer 2026-03-03
    [ "$(price_in "$data/Vendel.db")" = 3 ]
    [ -d "$data/copies/Vendel-remplacee-2026-03-05-140731.db" ]
}

@test "a copy takes the place of a database that is gone" {
    rm "$data/Vendel.db"
    run "$launcher" --restaurer 2026-03-03
    [ "$output" = "La copie « 2026-03-03 » est remise en place." ]
    [ "$(price_in "$data/Vendel.db")" = 3 ]
}

@test "a database that is elsewhere stays there" {
    mkdir "$BATS_TEST_TMPDIR/elsewhere"
    mv "$data/Vendel.db" "$BATS_TEST_TMPDIR/elsewhere/shop.db"
    ln -s "$BATS_TEST_TMPDIR/elsewhere/shop.db" "$data/Vendel.db"
    "$launcher" --restaurer 2026-03-03
    [ -L "$data/Vendel.db" ]
    [ "$(price_in "$BATS_TEST_TMPDIR/elsewhere/shop.db")" = 3 ]
}

@test "nothing is restored to a place that is gone" {
    rm "$data/Vendel.db"
    ln -s "$BATS_TEST_TMPDIR/stick/shop.db" "$data/Vendel.db"
    run "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 1 ]
    [ "$output" = "La base de données « $data/Vendel.db » est inutilisable (ce n'est pas un fichier) ; les copies sont dans « $data/copies » et « vendel --restaurer » en remet une en place." ]
    nothingElse
}

@test "a database that cannot be put in its place is said" {
    disturbed renameat:error=EIO Vendel.db
    run "${disturbance[@]}" "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (rien ne peut y être écrit) ; les copies de la base sont dans « $data/copies »." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
    nothingElse
}

@test "a replaced database that cannot be kept stays in its place" {
    disturbed write:error=ENOSPC copies/.Vendel.neuf
    run "${disturbance[@]}" "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (la base à remplacer ne peut pas y être gardée) ; les copies de la base sont dans « $data/copies »." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
    [ "$(ls -A "$data" "$data/copies")" = "$data:
.verrou
Vendel.db
copies

$data/copies:
Vendel-2026-03-03.db
Vendel-2026-03-04.db" ]
}

@test "without room nothing is changed" {
    run sh -c 'trap "" XFSZ; ulimit -f 16; exec "$0" --restaurer 2026-03-03' "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (rien ne peut y être écrit) ; les copies de la base sont dans « $data/copies »." ]
    [ "$(price_in "$data/Vendel.db")" = 5 ]
    nothingElse
}

@test "in English it is said in English" {
    run "$launcher" --langue en --restaurer 2026-03-03
    [ "$output" = "The copy \"2026-03-03\" is back in place; the replaced database is kept in \"$data/copies/Vendel-remplacee-2026-03-05-140731.db\"." ]
}

@test "a database on a bad sector is kept unread, and the copy takes its place" {
    cp "$data/Vendel.db" "$BATS_TEST_TMPDIR/before"
    disturbed read,pread64:error=EIO Vendel.db "$data/Vendel.db"
    run "${disturbance[@]}" "$launcher" --restaurer 2026-03-03
    [ "$status" -eq 0 ]
    [ "$(price_in "$data/Vendel.db")" = 3 ]
    cmp "$data/copies/Vendel-remplacee-2026-03-05-140731.db" "$BATS_TEST_TMPDIR/before"
}

@test "a journal that somebody put beside a replaced database is not taken" {
    hold_database 'update Article set prix = 99; update Historique set prix = 99;'
    release_database
    [ -s "$data/Vendel.db-journal" ]
    cp "$data/Vendel.db" "$data/copies/Vendel-remplacee-2026-01-01-120000.db"
    cp "$data/Vendel.db-journal" "$data/copies/Vendel-remplacee-2026-01-01-120000.journal"
    rm "$data/Vendel.db-journal" "$data/Vendel.db"
    run "$launcher" --restaurer remplacee-2026-01-01-120000
    # With the journal, the price would be 5 again.
    [ ! -e "$data/Vendel.db" ] || [ "$(price_in "$data/Vendel.db")" = 99 ]
}
