#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: a restoration that is killed, or refused a call, at every system call from the data
# directory's first on. It leaves the old database or the copy, sound, and loses nothing of the old one.
# shellcheck disable=SC2154

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
    sample_shop "$BATS_FILE_TMPDIR/shop"
    # A small shop needs few calls.
    sql "$BATS_FILE_TMPDIR/shop/Vendel.db" "delete from Historique where rowid > 40;
        delete from Ticket; delete from DoseStock; delete from ArticleStock; vacuum"
}

# The copy's only article costs 3, the present one's 5.
setup() {
    set_up_till
    base=$BATS_TEST_TMPDIR/base
    mkdir -p "$base/vendel/copies"
    shop_with_price 3 "$base/vendel/copies/Vendel-2026-03-03.db"
    shop_with_price 5 "$base/vendel/Vendel.db"
    data=$base/vendel
}

shop_with_price() {
    cp "$BATS_FILE_TMPDIR/shop/Vendel.db" "$2"
    sql "$2" "delete from Article; insert into Article (article, prix) values ('Thé', $1)"
}

# state FILE: whether a database is sound, and what its article costs.
state() {
    sqlite3 -batch -init /dev/null "$1" 'pragma integrity_check; select prix from Article;
        select count(*) from Historique' 2>&1 | tr '\n' ' '
}

# restore FOLDER [STRACE OPTION]...: in this data home.
restore() {
    local home=$1
    shift
    XDG_DATA_HOME=$home strace -f -qq -o "$home/calls" "$@" "$installed" --restaurer 2026-03-03 \
        >"$home/output" 2>&1 </dev/null
}

# calls: the name and the number of each call from the data directory's first on, but for those that
# cannot fail.
calls() {
    restore "$1"
    awk '!match($2, /^[a-z_0-9]+\(/) { next }
        { name = substr($2, 1, RLENGTH - 1); ++number[name] }
        /\/vendel"/ && /openat/ { begun = 1 }
        begun && name !~ /^(exit|exit_group|brk)$/ { print name, number[name] }' "$1/calls"
}

# complete FOLDER: gives a kept database the journal that was kept with it, as a restoration does.
complete() {
    local journal
    for journal in "$1"/vendel/copies/Vendel-remplacee-*.{journal,wal}; do
        [ ! -e "$journal" ] || mv "$journal" "${journal%.*}.db-${journal##*.}"
    done
}

# judge FOLDER OLD STATUS: whether a disturbed restoration left what it may leave. OLD is the old
# database's state. STATUS is its own, or "killed".
judge() {
    local home=$1 old=$2 status=$3 now new='ok 3 40 ' kept
    now=$(state "$home/vendel/Vendel.db")
    if [ "$now" = "$old" ]; then
        [ "$status" != 0 ]
        return
    fi
    [ "$now" = "$new" ] || return
    complete "$home"
    for kept in "$home"/vendel/copies/Vendel-remplacee-*.db; do
        [ "$(state "$kept")" = "$old" ] || return
    done
    # Done, but for the last call, which makes it outlast a power cut.
    [ "$status" = 0 ] || [ "$status" = killed ] || [ "$status" = 1 ]
}

# try_all OLD: every fault at every call, or at every FAULTS_EVERY-th.
try_all() {
    local home=$BATS_TEST_TMPDIR/home name number fault status tried=0 call=0 every=${FAULTS_EVERY:-1}
    cp -r "$base" "$BATS_TEST_TMPDIR/first"
    calls "$BATS_TEST_TMPDIR/first" >"$BATS_TEST_TMPDIR/all"
    while read -r name number; do
        [ $((call++ % every)) -eq 0 ] || continue
        for fault in signal=KILL error=EIO error=ENOSPC; do
            rm -rf "$home"
            cp -r "$base" "$home"
            status=0
            restore "$home" -e "trace=$name" -e "inject=$name:$fault:when=$number" || status=$?
            [ "$fault" != signal=KILL ] || status=killed
            judge "$home" "$1" "$status" || {
                echo "$name $number $fault: $status, $(state "$home/vendel/Vendel.db")"
                cat "$home/output"
                return 1
            }
            tried=$((tried + 1))
        done
    done <"$BATS_TEST_TMPDIR/all"
    echo "# $tried faults" >&3
    [ "$tried" -gt $((300 / every)) ]
}

@test "a sound database" {
    try_all 'ok 5 40 '
}

@test "a database with half a change and its journal" {
    hold_database 'update Article set prix = 99; update Historique set prix = 99;
        update Config set valeur = 99;'
    release_database
    [ -s "$data/Vendel.db-journal" ]
    try_all 'ok 5 40 '
}

@test "a database whose last change is in another tool's log" {
    hold_database 'rollback; pragma journal_mode = wal; update Article set prix = 6;'
    release_database
    [ -s "$data/Vendel.db-wal" ]
    try_all 'ok 6 40 '
}
