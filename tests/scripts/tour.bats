#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    load helpers
    make_tree
    mkdir -p "$tree/build/release" "$tree/app" "$tree/forms"
}

left_over() { ps -o pid= -s "$1"; }

@test "a till that ends breaks the tour, and nothing stays behind" {
    stub vendel 'echo "no luck" >&2; exit 3'
    mv "$stubs/vendel" "$tree/build/release/vendel"
    run setsid --wait bash -c 'echo $$; "$0" --built' "$tree/scripts/tour.sh"
    [ "$status" -eq 1 ]
    [[ "$output" == *"no luck"* ]]
    [ "${lines[-1]}" = 'tour.sh: 10-first-start: window "FormVendel": the till has ended' ]
    [ -z "$(left_over "${lines[0]}")" ]
    [ -z "$(ls "$TMPDIR")" ]
    [ -s "$tree/build/tour/broken.png" ]
}

@test "an unknown option ends with the usage" {
    run "$tree/scripts/tour.sh" --fast
    [ "$status" -eq 2 ]
    [[ "${lines[1]}" == "usage: scripts/tour.sh"* ]]
}

@test "pictures that cannot be written end the tour with a clear line" {
    : >"$tree/build/tour"
    run "$tree/scripts/tour.sh" --built
    [ "$status" -eq 1 ]
    [ "$output" = "tour.sh: cannot write into $tree/build/tour" ]
    [ -z "$(ls "$TMPDIR")" ]
}
