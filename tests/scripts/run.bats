#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup_file() {
    Xvfb -displayfd 3 -screen 0 1366x768x24 -noreset -nolisten tcp \
        3>"$BATS_FILE_TMPDIR/display" 2>/dev/null &
    echo $! >"$BATS_FILE_TMPDIR/display.pid"
    for _ in {1..300}; do
        [ ! -s "$BATS_FILE_TMPDIR/display" ] || break
        sleep 0.1
    done
    # Written at once, number and line feed.
    DISPLAY=":$(<"$BATS_FILE_TMPDIR/display")"
    export DISPLAY
}

teardown_file() {
    kill "$(<"$BATS_FILE_TMPDIR/display.pid")"
}

setup() {
    load helpers
    make_tree
    all_installed
    # Never an empty file in place of a real one, which a test may link to.
    stub cmake 'mkdir -p build/release; : >>build/release/build.ninja'
    make_build
    run_sh="$tree/scripts/run.sh"
    export XDG_DATA_HOME="$BATS_TEST_TMPDIR/data" HOME="$BATS_TEST_TMPDIR/home"
    unset WAYLAND_DISPLAY
    till_data="$XDG_DATA_HOME/vendel"
}

# make_build: what a build would have left, with a launcher that notes what it finds.
make_build() {
    mkdir -p "$tree/build/release/demo" "$tree/build/release/packaging"
    mv "$(stub_at vendel 'echo "data $XDG_DATA_HOME" >>"$calls"
        ls "$XDG_DATA_HOME/vendel" >>"$calls" 2>/dev/null
        exit ${TILL_STATUS-0}')" "$tree/build/release/packaging/vendel"
    mv "$(stub_at vendel-demo 'mkdir -p "$1"; echo shop >"$1/Vendel.db"')" \
        "$tree/build/release/demo/vendel-demo"
    mv "$(stub_at vendel-gestion 'echo "back office $XDG_DATA_HOME" >>"$calls"')" \
        "$tree/build/release/vendel-gestion"
}

stub_at() {
    stub "$@"
    echo "$stubs/$1"
}

@test "without a display one line names the tour, and nothing is built" {
    unset DISPLAY
    run "$run_sh"
    [ "$status" -eq 1 ]
    [ "$output" = "run.sh: there is no display here; scripts/tour.sh shows the till at work without a display" ]
    [ ! -s "$calls" ]
}

@test "a display that does not answer is named" {
    for display in :4711 localhost:4711 nonsense; do
        DISPLAY=$display run "$run_sh"
        [ "$status" -eq 1 ]
        [[ "$output" == "run.sh: the display $display does not answer; scripts/tour.sh"* ]]
        one_line
    done
    [ ! -s "$calls" ]
}

@test "an unknown option ends with the usage" {
    run "$run_sh" --fast
    [ "$status" -eq 2 ]
    [ "${lines[0]}" = 'run.sh: unknown option "--fast"' ]
    [ "${lines[1]}" = "usage: scripts/run.sh [--demo] [--gestion]" ]
}

@test "help is no error" {
    run "$run_sh" --help
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = "usage: scripts/run.sh [--demo] [--gestion]" ]
}

@test "the launcher starts the till in the user's data directory" {
    run "$run_sh"
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "Starting the till; its data is in $till_data" ]
    called "data $XDG_DATA_HOME"
    not_called apt-get
    not_called vendel-demo\ /
}

@test "without XDG_DATA_HOME the data is in the home directory" {
    unset XDG_DATA_HOME
    run "$run_sh"
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "Starting the till; its data is in $HOME/.local/share/vendel" ]
}

@test "the demo starts in a throw-away copy of the sample shop" {
    run "$run_sh" --demo
    [ "$status" -eq 0 ]
    called "data $TMPDIR/"
    called "Vendel.db"
    [ -z "$(ls "$TMPDIR")" ]
    [ ! -e "$till_data" ]
}

@test "the back office starts in place of the till, in the shop or in the sample shop" {
    run "$run_sh" --gestion
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "Starting the back office; its data is in $till_data" ]
    called "back office $XDG_DATA_HOME"
    not_called "data $XDG_DATA_HOME"
    run "$run_sh" --demo --gestion
    [ "${lines[-1]}" = "Starting the back office in a throw-away copy of the sample shop" ]
    called "back office $TMPDIR/"
    [ -z "$(ls "$TMPDIR")" ]
}

@test "the first build leaves the tests out, a prepared one is left as it is" {
    run "$run_sh"
    called "cmake --preset release -DVENDEL_TESTS=OFF"
    called "--target vendel vendel-launcher vendel-dialogue vendel-artwork vendel-translation vendel-demo vendel-gestion"
    : >"$calls"
    run "$run_sh"
    not_called "--preset release -D"
    called "cmake --build --preset release"
}

@test "a build that fails ends with the log's end and its name" {
    stub cmake 'echo "main.cpp:1: error"; [ "$1" != --build ]'
    run "$run_sh"
    [ "$status" -eq 1 ]
    [[ "$output" == *"main.cpp:1: error"* ]]
    [ "${lines[-1]}" = \
        "run.sh: the build of the preset release failed, see build/build-release.log" ]
}

@test "the till's exit status is passed on" {
    TILL_STATUS=3 run "$run_sh"
    [ "$status" -eq 3 ]
}

@test "an aborted till names the tour" {
    TILL_STATUS=134 run "$run_sh"
    [ "$status" -eq 1 ]
    [[ "${lines[-1]}" == "run.sh: the till was aborted"*"scripts/tour.sh"* ]]
}

# start_real OPTION...: the real till, started by the script, once its window is there.
start_real() {
    [ -L "$tree/build/release" ] || rm -r "$tree/build/release"
    ln -sfn "$VENDEL_BUILD" "$tree/build/release"
    "$run_sh" "$@" >"$BATS_TEST_TMPDIR/output" 2>&1 3>&- &
    runner=$!
    for _ in {1..300}; do
        ! xdotool search --onlyvisible --name '^Vendel$' 2>/dev/null || break
        sleep 0.1
    done
    xdotool search --onlyvisible --name '^Vendel$'
}

stop_real() {
    pkill -P "$runner" -x vendel
    wait "$runner" || true
}

@test "the real till appears on the screen with the sample shop" {
    start_real --demo
    local data
    data=$(echo "$TMPDIR"/tmp.*)
    [ "$(sqlite3 "$data/vendel/Vendel.db" "select valeur from Config where param = 'TVA'")" = 20 ]
    stop_real
    [ ! -e "$data" ]
}

@test "the real till makes its data directory, and a second start overwrites nothing" {
    start_real
    stop_real
    for name in EnteteFormulaire.dat PiedFormulaire.dat; do
        [ -e "$till_data/$name" ]
        [ ! -s "$till_data/$name" ]
    done
    cmp "$till_data/Vendel.png" "$VENDEL_BUILD/packaging/Vendel.png"
    cmp "$till_data/AproposdeImage.png" "$VENDEL_BUILD/packaging/AproposdeImage.png"
    [ "$(sqlite3 "$till_data/Vendel.db" "select count(*) from Config")" = 2 ]

    for name in EnteteFormulaire.dat Vendel.png AproposdeImage.png; do
        echo mine >"$till_data/$name"
    done
    rm "$till_data/PiedFormulaire.dat"
    start_real
    stop_real
    for name in EnteteFormulaire.dat Vendel.png AproposdeImage.png; do
        [ "$(<"$till_data/$name")" = mine ]
    done
    [ -e "$till_data/PiedFormulaire.dat" ]
}
