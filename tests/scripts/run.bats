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
    stub cmake 'mkdir -p build/release; : >build/release/build.ninja'
    make_build
    run_sh="$tree/scripts/run.sh"
    export XDG_DATA_HOME="$BATS_TEST_TMPDIR/data" HOME="$BATS_TEST_TMPDIR/home"
    unset WAYLAND_DISPLAY
    till_data="$XDG_DATA_HOME/vendel"
}

# make_build: what a build would have left, with a till that notes where it was started.
make_build() {
    mkdir -p "$tree/build/release/demo" "$tree/build/release/packaging"
    echo icon >"$tree/build/release/packaging/Vendel.png"
    echo picture >"$tree/build/release/packaging/AproposdeImage.png"
    mv "$(stub_at vendel 'pwd >>"$calls"; ls >>"$calls"; exit ${TILL_STATUS-0}')" \
        "$tree/build/release/vendel"
    mv "$(stub_at vendel-demo 'echo shop >"$1/Vendel.db"; echo entete >"$1/EnteteFormulaire.dat"')" \
        "$tree/build/release/demo/vendel-demo"
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
    [ "${lines[1]}" = "usage: scripts/run.sh [--demo]" ]
}

@test "help is no error" {
    run "$run_sh" --help
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = "usage: scripts/run.sh [--demo]" ]
}

@test "the till starts in a data directory that is made complete" {
    run "$run_sh"
    [ "$status" -eq 0 ]
    [ "$(grep -A 5 -x "$till_data" "$calls" | tr '\n' ' ')" = \
        "$till_data AproposdeImage.png EnteteFormulaire.dat PiedFormulaire.dat Vendel.png " ]
    [ ! -s "$till_data/EnteteFormulaire.dat" ]
    [ ! -s "$till_data/PiedFormulaire.dat" ]
    [ "$(<"$till_data/Vendel.png")" = icon ]
    [ "$(<"$till_data/AproposdeImage.png")" = picture ]
    not_called apt-get
}

@test "without XDG_DATA_HOME the data lies below the home directory" {
    unset XDG_DATA_HOME
    run "$run_sh"
    [ "$status" -eq 0 ]
    called "$HOME/.local/share/vendel"
}

@test "a second start overwrites nothing" {
    "$run_sh"
    for name in EnteteFormulaire.dat PiedFormulaire.dat Vendel.png AproposdeImage.png; do
        echo mine >"$till_data/$name"
    done
    rm "$till_data/PiedFormulaire.dat"
    run "$run_sh"
    [ "$status" -eq 0 ]
    for name in EnteteFormulaire.dat Vendel.png AproposdeImage.png; do
        [ "$(<"$till_data/$name")" = mine ]
    done
    [ -e "$till_data/PiedFormulaire.dat" ]
    [ ! -s "$till_data/PiedFormulaire.dat" ]
}

@test "a data directory that cannot be made is named" {
    : >"$XDG_DATA_HOME"
    run "$run_sh"
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "run.sh: cannot make the data directory $till_data" ]
    not_called "$till_data"
}

@test "the demo starts in a throw-away copy of the sample shop" {
    run "$run_sh" --demo
    [ "$status" -eq 0 ]
    called "$TMPDIR/"
    called "Vendel.db"
    called "Vendel.png"
    [ -z "$(ls "$TMPDIR")" ]
    [ ! -e "$till_data" ]
}

@test "the first build leaves the tests out, a prepared one is left as it is" {
    run "$run_sh"
    called "cmake --preset release -DVENDEL_TESTS=OFF"
    called "--target vendel vendel-artwork vendel-demo"
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

@test "the real till stands on the screen with the sample shop" {
    rm -r "$tree/build/release"
    ln -s "$VENDEL_BUILD" "$tree/build/release"
    "$run_sh" --demo >"$BATS_TEST_TMPDIR/output" 2>&1 3>&- &
    local runner=$! shop
    for _ in {1..200}; do
        xdotool search --onlyvisible --name '^Vendel$' 2>/dev/null && break
        sleep 0.1
    done
    xdotool search --onlyvisible --name '^Vendel$'
    shop=$(echo "$TMPDIR"/tmp.*)
    [ "$(sqlite3 "$shop/Vendel.db" "select valeur from Config where param = 'TVA'")" = 20 ]
    pkill -P "$runner" -x vendel
    wait "$runner" || true
    [ ! -e "$shop" ]
}
