#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2086,SC2154  # split words, variables of the helpers

setup() {
    load helpers
    make_tree
    mkdir -p "$tree/build/release"
}

@test "a till that does not start ends the faults with its own words, and nothing stays behind" {
    stub vendel 'echo "no luck" >&2; exit 3'
    mv "$stubs/vendel" "$tree/build/release/vendel"
    run "$tree/scripts/faults.sh" --built
    [ "$status" -eq 1 ]
    [[ "$output" == *"no luck"* ]]
    [ "${lines[-1]}" = "faults.sh: the till does not start, or strace cannot watch it" ]
    [ -z "$(ls "$TMPDIR")" ]
}

@test "a till that does nothing of what it is told is found out before it is disturbed" {
    stub vendel 'sqlite3 Vendel.db "create table if not exists Article (id integer primary key,
        article, prix); create table if not exists ArticleStock (id, article);
        create table if not exists DoseStock (id, composition, dose, unite);
        create table if not exists Historique (id, article, prix, date_heure);
        create table if not exists Ticket (id, article, prix)"'
    mv "$stubs/vendel" "$tree/build/release/vendel"
    run "$tree/scripts/faults.sh" --built --acts line
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = \
        'faults.sh: the act "line" does not go well even when nothing disturbs it' ]
    [[ "$output" == *"ticket 1 Café 1.5, 2 Thé 2.5, 0 ---- -0.5"* ]]
    [ -z "$(ls "$TMPDIR")" ]
}

@test "an unknown option, act or number ends with the usage" {
    for arguments in --kills "--acts sale" "--every 0" "--every x" "--sales"; do
        run "$tree/scripts/faults.sh" $arguments
        [ "$status" -eq 2 ]
        [[ "${lines[1]}" == "usage: scripts/faults.sh"* ]]
    done
}
