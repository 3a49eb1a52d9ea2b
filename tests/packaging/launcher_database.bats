#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: a database that cannot be used, and one that a first start did not finish.
# shellcheck disable=SC2154

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
    sample_shop "$BATS_FILE_TMPDIR/shop"
}

setup() {
    set_up_till
    mkdir -p "$data"
}

# unusable REASON: the one sentence about the database.
unusable() {
    echo "La base de données « $data/Vendel.db » est inutilisable ($1) ; les copies sont dans « $data/copies » et « vendel --restaurer » en remet une en place."
}

# first_statements COUNT: leaves the database as a first start does that is cut off after so many
# of its nine statements.
first_statements() {
    head -n "$1" <<'SCHEMA' | sqlite3 -batch -init /dev/null "$data/Vendel.db"
create table Article (id integer primary key autoincrement not null, article text collate nocase not null, prix numeric not null);
create table ArticleStock (id integer primary key not null, article text collate nocase not null);
create table Historique (id integer not null, article text collate nocase not null, prix numeric not null, date_heure text not null default(strftime('%Y-%m-%d %H:%M:%f','now','localtime')));
create table DoseStock (idlig integer primary key not null, id integer not null, composition text collate nocase not null, dose numeric not null, unite text not null, constraint fk_dosestock foreign key (id) references ArticleStock (id) on delete cascade);
create table Config (id integer primary key not null, param text collate nocase not null, valeur numeric not null);
create table Ticket (idlig integer primary key not null, id integer not null, article text collate nocase not null, prix numeric not null);
create index date_heure_index on Historique (date_heure);
insert into Config (param,valeur) values ('TVA',0);
insert into Config (param,valeur) values ('Epson TM-T20II',0);
SCHEMA
}

@test "a shop's database is not touched" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    cmp "$data/Vendel.db" "$BATS_FILE_TMPDIR/shop/Vendel.db"
}

@test "a database of zero bytes is set aside" {
    : >"$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$output" = "Une base de données inachevée et vide est mise de côté : « $data/copies/Vendel-inachevee-2026-03-05-140731.db »." ]
    [ ! -e "$data/Vendel.db" ]
    [ -e "$data/copies/Vendel-inachevee-2026-03-05-140731.db" ]
    [ -s "$TILL_LOG" ]
}

@test "a first start cut off after any of its first eight statements is set aside" {
    for count in 1 2 3 4 5 6 7 8; do
        rm -rf "$data"
        mkdir "$data"
        first_statements "$count"
        "$launcher"
        [ ! -e "$data/Vendel.db" ]
        [ -f "$data/copies/Vendel-inachevee-2026-03-05-140731.db" ]
    done
}

@test "a finished first start stays" {
    first_statements 9
    run "$launcher"
    [ -z "$output" ]
    [ -f "$data/Vendel.db" ]
}

@test "an unfinished database with a row in it is not set aside" {
    first_statements 1
    sql "$data/Vendel.db" "insert into Article (article, prix) values ('Thé', 2)"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "il lui manque des tables")" ]
    [ "$(sql "$data/Vendel.db" 'select article from Article')" = Thé ]
    [ ! -s "$TILL_LOG" ]
}

@test "a rate that was set makes a database worth keeping" {
    first_statements 8
    sql "$data/Vendel.db" "update Config set valeur = 20"
    run "$launcher"
    [ "$status" -eq 0 ]
    [ "$(sql "$data/Vendel.db" 'select valeur from Config')" = 20 ]
}

@test "somebody else's table with a row in it is not set aside" {
    sql "$data/Vendel.db" "create table \"a \"\"b'\" (x); insert into \"a \"\"b'\" values (1)"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "il lui manque des tables")" ]
}

@test "the till makes a new database after one was set aside" {
    first_statements 3
    TILL_DOES='sqlite3 Vendel.db "create table Made (x)"' "$launcher"
    [ "$(sql "$data/Vendel.db" 'select name from sqlite_master')" = Made ]
}

@test "two unfinished databases of one second are both kept" {
    mkdir "$data/copies"
    echo earlier >"$data/copies/Vendel-inachevee-2026-03-05-140731.db"
    first_statements 1
    "$launcher"
    [ "$(cat "$data/copies/Vendel-inachevee-2026-03-05-140731.db")" = earlier ]
    [ "$(sql "$data/copies/Vendel-inachevee-2026-03-05-140731-2.db" 'select name from sqlite_master where type = "table"' | head -n 1)" = Article ]
    [ ! -e "$data/Vendel.db" ]
}

@test "an unfinished database that cannot be moved is said" {
    touch "$data/copies"
    first_statements 1
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (rien ne peut y être déplacé) ; les copies de la base sont dans « $data/copies »." ]
    [ ! -s "$TILL_LOG" ]
}

@test "a file that is no database is said" {
    printf 'not a database, and long enough that SQLite reads its header %0100d' 0 >"$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "ce n'est pas une base de données")" ]
    [ ! -s "$TILL_LOG" ]
}

@test "a directory in the database's place is said" {
    mkdir "$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "ce n'est pas un fichier")" ]
}

@test "a database that was read-only, from a CD, can be sold with" {
    for rights in 444 222; do
        cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
        chmod "$rights" "$data/Vendel.db"
        run as_user "$launcher"
        [ "$status" -eq 0 ]
        [ -z "$output" ]
        [ "$(stat -c %a "$data/Vendel.db")" = 600 ]
    done
}

@test "a database of another user is said" {
    [ "$(id -u)" -eq 0 ] || skip "only root can give a file to somebody else"
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    as_user true
    chown root: "$data/Vendel.db"
    run setpriv --reuid nobody --regid nogroup --clear-groups "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "elle ne peut pas être lue et écrite")" ]
}

@test "a link to a database that is gone is said, and no new one is made" {
    ln -s "$BATS_TEST_TMPDIR/stick/shop.db" "$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "ce n'est pas un fichier")" ]
    [ ! -s "$TILL_LOG" ]
}

@test "a damaged database is said at the day's first start" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    damage "$data/Vendel.db"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "elle est endommagée")" ]
    [ -z "$(ls -A "$data/copies")" ]
    [ ! -s "$TILL_LOG" ]
}

@test "a database whose index does not fit its rows is said" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    sql "$data/Vendel.db" "pragma writable_schema = on;
        delete from sqlite_master where name = 'date_heure_index';
        update sqlite_master set rootpage = (select rootpage from sqlite_master where name = 'Config')
            where name = 'Ticket'"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "elle est endommagée")" ]
    [ -z "$(ls -A "$data/copies")" ]
}

@test "a database that another program is using is reported" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    hold_database
    run "$launcher"
    release_database
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "un autre programme l'occupe")" ]
}

@test "a database that another program holds for a moment is waited for" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    hold_database
    local holder=$COPROC_PID
    (
        until grep -q Vendel.db <(readlink "/proc/$(pgrep -xf "$installed")"/fd/* 2>/dev/null); do
            sleep 0.01
        done
        kill -KILL "$holder"
    ) 3>&- &
    run "$launcher"
    wait
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ -s "$TILL_LOG" ]
}

@test "in English it is said in English" {
    mkdir "$data/Vendel.db"
    run "$launcher" --langue en
    [ "$output" = "The database \"$data/Vendel.db\" cannot be used (it is not a file); the copies are in \"$data/copies\" and \"vendel --restaurer\" puts one back." ]
}

@test "a database with something other than the till's tables is said, and runs nothing" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    sql "$data/Vendel.db" "create trigger theirs after insert on Historique begin
        update Historique set prix = 0; end"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "elle contient autre chose que les tables de la caisse")" ]
    [ ! -s "$TILL_LOG" ]
}

@test "a rule that calls a program runs nothing" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    sql "$data/Vendel.db" "pragma ignore_check_constraints = on; drop table Ticket;
        create table Ticket (idlig integer primary key not null, id integer not null,
            article text collate nocase not null, prix numeric not null
            check (edit('x', 'touch $BATS_TEST_TMPDIR/ran') is not null))" || true
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "elle contient autre chose que les tables de la caisse")" ]
    [ ! -e "$BATS_TEST_TMPDIR/ran" ]
}

@test "a journal that names another file deletes nothing" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    echo precious >"$data/x"
    {
        printf '\xd9\xd5\x05\xf9\x20\xa1\x63\xd7'
        head -c 504 /dev/zero
        printf '\x40\x00\x00\x01x\x00\x00\x00\x01\x00\x00\x00\x78\xd9\xd5\x05\xf9\x20\xa1\x63\xd7'
    } >"$data/Vendel.db-journal"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "$(unusable "son journal n'est pas celui de la caisse")" ]
    [ "$(cat "$data/x")" = precious ]
}

@test "another tool's log is brought in before the till starts" {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$data"
    hold_database "rollback; pragma journal_mode = wal; delete from Ticket;
        update Config set valeur = 17 where param = 'TVA';"
    release_database
    [ -s "$data/Vendel.db-wal" ]
    run "$launcher"
    [ "$status" -eq 0 ]
    [ ! -e "$data/Vendel.db-wal" ]
    [ "$(sql "$data/Vendel.db" "pragma journal_mode; select valeur from Config where param = 'TVA'")" = "delete
17" ]
}
