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

@test "a till that is looked at does not wait for the disk" {
    "$VENDEL_BUILD/demo/vendel-demo" "$BATS_TEST_TMPDIR/shop"
    cd "$BATS_TEST_TMPDIR/shop"
    strace -I 2 -f -o ../syncs -e trace=fsync,fdatasync -E QT_QPA_PLATFORM=offscreen \
        -E VENDEL_TOUR_EYE="$BATS_TEST_TMPDIR/eye" \
        -E LD_PRELOAD="$VENDEL_BUILD/tests/scripts/libtour-eye.so" "$VENDEL_BUILD/vendel" 3>&- &
    until grep -q "^window.FormVendel" "$BATS_TEST_TMPDIR/eye" 2>/dev/null; do
        kill -0 $!
        sleep 0.05
    done
    kill $!
    wait $! || true
    [ "$(grep -c sync ../syncs)" -eq 0 ]
}
