#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    load helpers
    make_tree
    all_installed
    stub cmake
    stub ctest
    source=$(cd "$BATS_TEST_DIRNAME/../.." && pwd)
    test_sh="$tree/scripts/test.sh"
}

# steps: the presets in the order in which they are configured, built and tested.
steps() {
    grep -oE '^(cmake --build|cmake|ctest) --preset [a-z0-9]+' "$calls" | tr '\n' ';'
}

@test "without an option the release is built and tested, and nothing else" {
    run "$test_sh"
    [ "$status" -eq 0 ]
    [ "$(steps)" = \
        "cmake --preset release;cmake --build --preset release;ctest --preset release;" ]
    not_called clang-tidy
    not_called qt6-base-dev
    not_called apt-get
    [ "${lines[-1]}" = \
        "The tests of the release passed; scripts/test.sh --all adds analysers, sanitizers and Qt 6" ]
}

@test "--all adds the analysers, the sanitizers and Qt 6, and installs what they need" {
    run "$test_sh" --all
    [ "$status" -eq 0 ]
    [ "$(steps)" = \
        "cmake --preset release;cmake --build --preset release;ctest --preset release;ctest --preset analysis;cmake --preset asan;cmake --build --preset asan;ctest --preset asan;cmake --preset qt6;cmake --build --preset qt6;ctest --preset qt6;" ]
    called clang-tidy
    called qt6-base-dev
    [ "${lines[-1]}" = "All tests passed" ]
}

@test "each phase says how long it took" {
    run "$test_sh"
    for phase in Installing Building Testing; do
        [ "$(grep -cE "^$phase took [0-9]+ min [0-9]+ s$" <<<"$output")" -eq 1 ]
    done
}

@test "failed tests of the release are reported after the others ran too" {
    stub ctest '[[ "$*" != *release* ]]'
    run "$test_sh" --all
    [ "$status" -eq 1 ]
    called "ctest --preset analysis"
    called "ctest --preset asan"
    called "ctest --preset qt6"
    [ "${lines[-1]}" = "test.sh: there are failed tests in: release" ]
}

@test "a build that fails ends the run" {
    stub cmake '[ "$1" != --build ]'
    run "$test_sh"
    [ "$status" -eq 1 ]
    not_called ctest
}

@test "an unknown option ends with the usage" {
    run "$test_sh" --quick
    [ "$status" -eq 2 ]
    [ "${lines[1]}" = "usage: scripts/test.sh [--all]" ]
}

@test "continuous integration runs everything" {
    run bash "$tree/.ci/run"
    [ "$status" -eq 0 ]
    called "ctest --preset qt6"
    [ "${lines[-1]}" = "All tests passed" ]
}

@test "the release preset leaves the analysers out, and a preset of their own runs only them" {
    [ "$VENDEL_BUILD" = "$source/build/release" ] || skip "only the release build has the analysers"
    rm "$stubs/ctest"
    cd "$source"
    [ "$(ctest --preset release -N | grep -c ' check-')" -eq 0 ]
    [ "$(ctest --preset analysis -N | grep -oE 'check-[a-z]+$' | sort | tr '\n' ' ')" = \
        "check-clazy check-cppcheck check-format check-shell check-tidy " ]
    for long in tour licence faults launcher_every_fault Central_sender_killed_often \
        Central_server_killed_often Central_upgrade_takes_its_time; do
        [ "$(ctest --preset release -N | grep -c ": $long\$")" -eq 0 ]
        [ "$(ctest --preset analysis -N | grep -c ": $long\$")" -eq 1 ]
    done
    [ "$(ctest --preset analysis -N | grep -c '^ *Test *#')" -eq 13 ]
}
