# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What the launcher's tests share: an installed tree whose program is a stand-in, a home and a
# clock of their own.

# install_tree DIRECTORY: the build as installed, with the till replaced by a stand-in that notes
# where it runs, then runs $TILL_DOES there.
install_tree() {
    cmake --install "$VENDEL_BUILD" --prefix "$1" >/dev/null
    program=$(find "$1" -path '*/vendel/vendel' -type f)
    cat >"$program" <<'STAND_IN'
#!/bin/sh
printf '%s\n' "$PWD" >>"$TILL_LOG"
printf '%s arguments\n' "$#" >>"$TILL_LOG"
eval "${TILL_DOES:-}"
STAND_IN
    chmod -R a+rX "$1"
}

# set_up_till [DIRECTORY]: a home, a fixed day and no display; "data" is the data directory, "launcher" the
# launcher installed there whose clock says $NOW.
set_up_till() {
    export HOME=$BATS_TEST_TMPDIR/home
    export TILL_LOG=$BATS_TEST_TMPDIR/till.log
    export NOW='2026-03-05 14:07:31'
    data=$HOME/.local/share/vendel
    installed=${1:-$BATS_FILE_TMPDIR/tree}/bin/vendel
    unset DISPLAY WAYLAND_DISPLAY XDG_DATA_HOME TILL_DOES
    mkdir -p "$HOME" "$BATS_TEST_TMPDIR/stand-ins"
    : >"$TILL_LOG"
    launcher=$BATS_TEST_TMPDIR/stand-ins/vendel
    stand_in vendel "LD_PRELOAD=$(find /usr/lib -name libfaketime.so.1)
        FAKETIME=\$NOW DONT_FAKE_MONOTONIC=1 FAKETIME_DONT_FAKE_MONOTONIC=1 NO_FAKE_STAT=1
        export LD_PRELOAD FAKETIME DONT_FAKE_MONOTONIC FAKETIME_DONT_FAKE_MONOTONIC NO_FAKE_STAT
        exec '$installed' \"\$@\""
    PATH=$BATS_TEST_TMPDIR/stand-ins:$PATH
}

# stand_in COMMAND SCRIPT: a command ahead of all others on the path.
stand_in() {
    printf '#!/bin/sh\n%s\n' "$2" >"$BATS_TEST_TMPDIR/stand-ins/$1"
    chmod +x "$BATS_TEST_TMPDIR/stand-ins/$1"
}

# as_user COMMAND...: runs it as somebody who may not write everywhere, owner of the test's files.
as_user() {
    if [ "$(id -u)" -ne 0 ]; then
        "$@"
        return
    fi
    chown -R nobody: "$BATS_TEST_TMPDIR"
    chmod a+x "$BATS_RUN_TMPDIR" "$BATS_FILE_TMPDIR" "$BATS_TEST_TMPDIR" \
        "$(dirname "$BATS_TEST_TMPDIR")" "$(dirname "$BATS_FILE_TMPDIR")"
    setpriv --reuid nobody --regid nogroup --clear-groups "$@"
}

# sample_shop DIRECTORY: the sample shop's database, made by the program's own schema; small enough to
# be copied often.
sample_shop() {
    "$VENDEL_BUILD/demo/vendel-demo" "$1" --days 35 >/dev/null
}

# sql FILE STATEMENT
sql() {
    sqlite3 -batch -init /dev/null "$1" "$2"
}

# open_till: starts the till in the background and waits until it runs; close_till ends it.
open_till() {
    TILL_DOES="exec sleep 60" "$launcher" "$@" 3>&- &
    till=$!
    until [ -s "$TILL_LOG" ]; do
        kill -0 "$till"
        sleep 0.01
    done
}

close_till() {
    kill -TERM "$till"
    wait "$till" 2>/dev/null || true
}

# kill_till: neither the launcher nor the till can do anything more.
kill_till() {
    local program
    program=$(pgrep -P "$till")
    kill -KILL "$till" "$program"
    wait "$till" 2>/dev/null || true
    while kill -0 "$program" 2>/dev/null; do sleep 0.01; done
}

# disturbed INJECTION PATH...: an strace command in front of the launcher, that makes the calls on these
# files of the data directory fail.
disturbed() {
    local injection=$1 path
    shift
    disturbance=(strace -f -qq -o /dev/null -e "trace=${injection%%:*}" -e "inject=$injection")
    for path in "$@"; do
        disturbance+=(-P "$path" -P "$data/$path")
    done
}

# damage FILE: overwrites the database's second half, where its rows are.
damage() {
    local half=$(($(stat -c %s "$1") / 2))
    head -c "$half" /dev/zero | tr '\0' '\377' |
        dd of="$1" bs=1 seek="$half" conv=notrunc status=none
}

# hold_database [STATEMENTS]: another program writes into the database until release_database.
hold_database() {
    coproc sqlite3 -batch -init /dev/null "$data/Vendel.db"
    printf '%s\n' 'pragma cache_size = 1;' 'begin exclusive;' "${1:-}" "select 'held';" >&"${COPROC[1]}"
    local said=
    until [ "$said" = held ]; do read -r said <&"${COPROC[0]}"; done
}

release_database() {
    local holder=$COPROC_PID
    kill -KILL "$holder"
    wait "$holder" 2>/dev/null || true
}
