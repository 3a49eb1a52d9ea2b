#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fuzzes every parser of external data for SECONDS, one after the other. Inputs that break one are
# kept in build/fuzz/found; the corpus in build/fuzz/corpus grows from run to run.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/fuzz.sh [--docs] SECONDS
  --docs  writes the table of the runs into docs/quality.md"
docs=false
seconds=""
for argument in "$@"; do
    case $argument in
        --docs) docs=true ;;
        -h | --help) say "$usage" && exit ;;
        *[!0-9]*) unknown_option "$usage" "$argument" ;;
        *) seconds=$argument ;;
    esac
done
[ -n "$seconds" ] || { say "$usage" >&2 && exit 2; }

"$root/scripts/install.sh" build test fuzz
configure fuzz
build fuzz fuzz_targets

cd "$root/build/fuzz"
mkdir -p found
export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1
failed=()
logs=()
for seeds in "$root"/tests/fuzz/corpus/*; do
    name=${seeds##*/}
    logs+=("$name.log")
    mkdir -p "corpus/$name"
    say "$name for $seconds s (log: build/fuzz/$name.log)"
    "fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -artifact_prefix="found/$name-" \
        "corpus/$name" "$seeds" >"$name.log" 2>&1 || failed+=("$name")
    grep -aE '^Done|^SUMMARY' "$name.log" || true
done
[ ${#failed[@]} -eq 0 ] || fail "there are findings in: ${failed[*]}; see build/fuzz/found"
say "Nothing found"

# table: each target and how often it ran.
table() {
    local log
    printf '| target | seconds | runs | found |\n|---|---:|---:|---|\n'
    for log in "${logs[@]}"; do
        sed -nE "s/^Done ([0-9]+) runs in ([0-9]+) second.*/| ${log%.log} | \2 | \1 | nothing |/p" "$log"
    done
}
if $docs; then
    table | write_figures fuzzing
fi
