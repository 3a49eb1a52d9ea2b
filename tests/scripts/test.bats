#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    load helpers
    make_tree
    all_installed
    stub cmake
    stub ctest
    test_sh="$tree/scripts/test.sh"
}

@test "the release is built and tested, then the sanitizers, then Qt 6" {
    run "$test_sh"
    [ "$status" -eq 0 ]
    [ "$(grep -oE '^(cmake --build|cmake|ctest) --preset [a-z0-9]+' "$calls" | tr '\n' ';')" = \
        "cmake --preset release;cmake --build --preset release;ctest --preset release;cmake --preset asan;cmake --build --preset asan;ctest --preset asan;cmake --preset qt6;cmake --build --preset qt6;ctest --preset qt6;" ]
    [ "${lines[-1]}" = "All tests passed" ]
    not_called apt-get
}

@test "failed tests of the release are told after the others ran too" {
    stub ctest '[[ "$*" != *release* ]]'
    run "$test_sh"
    [ "$status" -eq 1 ]
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
    [ "${lines[1]}" = "usage: scripts/test.sh" ]
}

@test "continuous integration runs the same" {
    run bash "$tree/.ci/run"
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "All tests passed" ]
}
