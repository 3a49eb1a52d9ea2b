#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything and runs all tests: the release, then those of the
# code under the address and undefined-behaviour sanitizers, and with Qt 6.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/test.sh"
for argument in "$@"; do
    case $argument in
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done

"$root/scripts/install.sh" build run test lint qt6
failed=()
for preset in release asan qt6; do
    say "Building the preset $preset"
    configure "$preset"
    build "$preset" all
    say "Testing the preset $preset"
    (cd "$root" && ctest --preset "$preset" --output-junit "$root/build/test-$preset.xml") \
        || failed+=("$preset")
done
[ ${#failed[@]} -eq 0 ] || fail "there are failed tests in: ${failed[*]}"
say "All tests passed"
