#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures the till's work beside the least that the same work costs, and prints one table.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/bench.sh [SUBJECT]...   (subjects: start db menu articles sale receipt printer history stock)"
subjects=()
for argument in "$@"; do
    case $argument in
        -h | --help) say "$usage" && exit ;;
        start | db | menu | articles | sale | receipt | printer | history | stock) subjects+=("$argument") ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done
[ ${#subjects[@]} -gt 0 ] || subjects=(start db menu articles sale receipt printer history stock)

"$root/scripts/install.sh" build run bench
say "Building the preset bench"
configure bench
build bench "${subjects[@]/#/bench_}"

results="$root/build/bench/results"
mkdir -p "$results"
cd "$results"
for subject in "${subjects[@]}"; do
    say "Measuring $subject"
    "$root/build/bench/bench/bench_$subject" --benchmark_repetitions=5 --benchmark_min_time=0.1 \
        --benchmark_enable_random_interleaving=true --benchmark_format=json \
        >"$subject.json" 2>"$subject.log" \
        || fail "the measurement failed, see build/bench/results/$subject.log"
done

jq --slurp --raw-output --from-file "$root/bench/table.jq" "${subjects[@]/%/.json}" \
    | column -t -s $'\t' -R 2,3,4 | tee table.txt
! grep -q ' missed$' table.txt || fail "a limit is missed"
