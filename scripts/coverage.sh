#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the tests of the code and tells how many of the till's lines and functions they ran; less
# than LEAST per cent of the lines is an error. Each line stands in build/coverage/lines.html.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/coverage.sh [LEAST]   (97 per cent, unless told otherwise)"
case ${1-} in
    -h | --help) say "$usage" && exit ;;
    *[!0-9]*) unknown_option "$usage" "$1" ;;
esac
least=${1:-97}

"$root/scripts/install.sh" build run test coverage
say "Building the preset coverage"
configure coverage
build coverage all
find "$root/build/coverage" -name '*.gcda' -delete
say "Testing the preset coverage"
(cd "$root" && ctest --preset coverage --quiet) || fail "there are failed tests"

folders=(app forms common db Print)
cd "$root/build/coverage"
gcovr --root "$root" "${folders[@]/#/--filter=$root/}" --exclude-throw-branches \
    --exclude-unreachable-branches --print-summary --fail-under-line "$least" \
    --html-details lines.html --txt lines.txt . \
    || fail "less than $least per cent of the lines were run, see build/coverage/lines.txt"
