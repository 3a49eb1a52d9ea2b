#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays a day in the shop with the real till on a virtual display, with real mouse clicks and keys and
# an emulated printer, and leaves pictures and the printed receipt in build/tour.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/tour.sh [--built] [--docs]
  --built  takes the release build as it is
  --docs   copies the pictures that the documents show to docs/images"

built=false
docs=false
for argument in "$@"; do
    case $argument in
        --built) built=true ;;
        --docs) docs=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done

build="$root/build/release"
out="$root/build/tour"
if ! $built; then
    "$root/scripts/install.sh" build run test
    say "Building the till and the emulated printer"
    configure release
    build release vendel vendel-gestion vendel-demo vendel-artwork emulated-printer escpos-page tour-eye
fi

. "$root/scripts/tour.d/lib.sh"
. "$root/scripts/tour.d/sales.sh"

if ! { mkdir -p "$out" && rm -f -- "$out"/*; } 2>/dev/null; then
    fail "cannot write into $out"
fi
start_display 1366x768 "980,95 1210,121"

for file in "$root"/scripts/tour.d/[0-9]*.sh; do
    station=$(basename "$file" .sh)
    say "$station"
    # shellcheck source=/dev/null
    . "$file"
done

if grep -E '^Errors ' "$out/till.log"; then
    fail "the till reported errors on the way"
fi
if $docs; then
    for shown in "$root"/docs/images/*.png; do
        install -m 644 "$out/${shown##*/}" "$shown"
    done
fi
say "The tour is over; its pictures are in $out"
