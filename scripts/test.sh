#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the release and runs its tests; with --all also what takes longer.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/test.sh [--all]
  --all   adds the analysers (clang-tidy, clazy, cppcheck, clang-format, shellcheck), the address and
          undefined-behaviour sanitizers, and Qt 6"

all=false
for argument in "$@"; do
    case $argument in
        --all) all=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done

# The tests of each preset in turn; "analysis" reads the sources that the release build compiles, and
# runs the tests of it that take minutes.
groups=(build run test)
presets=(release)
if $all; then
    groups+=(lint qt6 bench)
    presets+=(analysis asan qt6)
fi

# timed WHAT COMMAND...: says how long the command took.
timed() {
    local what=$1 begin=$SECONDS status=0
    shift
    "$@" || status=$?
    say "$what took $(((SECONDS - begin) / 60)) min $(((SECONDS - begin) % 60)) s"
    return $status
}

build_preset() { configure "$1" && build "$1" all; }

test_preset() { (cd "$root" && ctest --preset "$1" --output-junit "$root/build/test-$1.xml"); }

timed "Installing" "$root/scripts/install.sh" "${groups[@]}"
failed=()
for preset in "${presets[@]}"; do
    if [ "$preset" != analysis ]; then
        say "Building the preset $preset"
        timed "Building" build_preset "$preset"
    fi
    say "Testing the preset $preset"
    timed "Testing" test_preset "$preset" || failed+=("$preset")
done
[ ${#failed[@]} -eq 0 ] || fail "there are failed tests in: ${failed[*]}"
if $all; then
    say "All tests passed"
else
    say "The tests of the release passed; scripts/test.sh --all adds analysers, sanitizers and Qt 6"
fi
