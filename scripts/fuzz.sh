#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every fuzz target for SECONDS, one after the other. What is found stays in build/fuzz/found;
# the corpus in build/fuzz/corpus grows from run to run.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/fuzz.sh SECONDS"
case ${1-} in
    -h | --help) say "$usage" && exit ;;
    "" | *[!0-9]*) say "$usage" >&2 && exit 2 ;;
esac
seconds=$1

"$root/scripts/install.sh" build test fuzz
configure fuzz
build fuzz fuzz_targets

cd "$root/build/fuzz"
mkdir -p found
export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1
failed=()
for seeds in "$root"/tests/fuzz/corpus/*; do
    name=${seeds##*/}
    mkdir -p "corpus/$name"
    say "$name for $seconds s (log: build/fuzz/$name.log)"
    "fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -artifact_prefix="found/$name-" \
        "corpus/$name" "$seeds" >"$name.log" 2>&1 || failed+=("$name")
    grep -aE '^Done|^SUMMARY' "$name.log" || true
done
[ ${#failed[@]} -eq 0 ] || fail "there are findings in: ${failed[*]}; see build/fuzz/found"
say "Nothing found"
