#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# emulated_till.sh DIRECTORY EMULATOR...: unpacks the package in the directory and starts its programs
# in the emulator, the till without a display.
set -euo pipefail

package=$(echo "$1"/vendel_*.deb)
emulated=("${@:2}")

fail() {
    printf 'failed: %s\n' "$*" >&2
    exit 1
}

work=$(mktemp -d)
till=
clean_up() {
    [ -z "$till" ] || kill "$till" 2>/dev/null || true
    wait || true
    rm -rf "$work"
}
trap clean_up EXIT

dpkg-deb -x "$package" "$work/tree"
version=$(dpkg-deb -f "$package" Version)
[ "$("${emulated[@]}" "$work/tree/usr/bin/vendel" --version)" = "Vendel ${version%-*}" ] \
    || fail "the launcher does not say its version"

program=$(find "$work/tree" -path '*/vendel/vendel' -type f)
mkdir "$work/shop"
cd "$work/shop"
cp "$work"/tree/usr/share/vendel/*.png .
touch EnteteFormulaire.dat PiedFormulaire.dat
"${emulated[@]}" "$program" >"$work/till.log" 2>&1 &
till=$!
until [ "$(sqlite3 -readonly Vendel.db 'select count(*) from Config' 2>/dev/null)" = 2 ]; do
    kill -0 "$till" 2>/dev/null || { cat "$work/till.log" && fail "the till ended by itself"; }
    sleep 0.1
done
! grep -i -e 'could not' -e 'cannot' "$work/till.log" || fail "the till complained"
