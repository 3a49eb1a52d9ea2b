#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    load helpers
    make_tree
    install="$tree/scripts/install.sh"
}

cmake_is_missing() {
    stub dpkg-query 'shift 3; for package; do
        [ "$package" = cmake ] && { echo "cmake not-installed"; continue; }
        echo "$package installed"
    done; exit 1'
}

@test "nothing is called and nothing is said when all is there" {
    all_installed
    run "$install" build run test lint
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    not_called apt-get
}

@test "only what is missing is installed, after the package list is renewed" {
    cmake_is_missing
    stub id 'echo 0'
    stub apt-get 'echo "frontend $DEBIAN_FRONTEND" >>"$calls"'
    run "$install" build
    [ "$status" -eq 0 ]
    [ "$output" = "Installing cmake (log: build/install.log)" ]
    [ "$(grep -c apt-get "$calls")" -eq 2 ]
    grep apt-get "$calls" | head -n 1 | grep -q ' update$'
    grep apt-get "$calls" | tail -n 1 | grep -q -- ' install --no-install-recommends cmake$'
    called "frontend noninteractive"
}

@test "a package that was never heard of counts as missing" {
    stub dpkg-query 'shift 3; for package; do
        [ "$package" = cmake ] || echo "$package installed"
    done; exit 1'
    stub id 'echo 0'
    stub apt-get
    run "$install" build
    [ "$status" -eq 0 ]
    called "install --no-install-recommends cmake"
}

@test "a package list that cannot be renewed does not matter when the packages come" {
    cmake_is_missing
    stub id 'echo 0'
    stub apt-get '[[ " $* " != *" update "* ]]'
    run "$install" build
    [ "$status" -eq 0 ]
}

@test "an apt-get that fails ends in its own words and one clear line" {
    cmake_is_missing
    stub id 'echo 0'
    stub apt-get 'echo "E: Unable to fetch some archives"; exit 100'
    run "$install" build
    [ "$status" -eq 1 ]
    [[ "$output" == *"E: Unable to fetch some archives"* ]]
    [ "${lines[-1]}" = \
        "install.sh: apt-get could not install the packages: no network, or no permission?" ]
}

@test "an ordinary user installs through sudo" {
    cmake_is_missing
    stub id 'echo 1000'
    stub sudo 'exec "$@"'
    stub apt-get
    run "$install" build
    [ "$status" -eq 0 ]
    called "sudo env DEBIAN_FRONTEND=noninteractive apt-get"
}

@test "an ordinary user without sudo is told what is missing" {
    cmake_is_missing
    stub id 'echo 1000'
    stub apt-get
    only_with
    run "$install" build
    [ "$status" -eq 1 ]
    [ "$output" = "install.sh: neither root nor sudo is there to install: cmake" ]
    not_called apt-get
}

@test "a machine without dpkg is told all packages" {
    only_with
    run "$install" lint
    [ "$status" -eq 1 ]
    [[ "$output" == *"no dpkg"*"clang-format"*"shellcheck"* ]]
    one_line
}

@test "a tree that cannot be written to is named" {
    cmake_is_missing
    stub id 'echo 0'
    stub apt-get
    : >"$tree/build"
    run "$install" build
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "install.sh: cannot write into $tree/build: no permission or no room" ]
}

@test "the packages of a group can be listed" {
    run "$install" --list run
    [ "$status" -eq 0 ]
    [[ "$output" == *"fonts-crosextra-carlito"* ]]
    [[ "$output" != *"cmake"* ]]
}

@test "an unknown group, an unknown option and no group end with the usage" {
    for arguments in tests --all ""; do
        run "$install" $arguments
        [ "$status" -eq 2 ]
        [[ "$output" == *"usage: scripts/install.sh"* ]]
    done
}
