#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Benchmarks against a minimal baseline, in one table. A limit that is missed is an error.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

all=(start launcher db menu articles sale receipt printer history stock backoffice book central)
usage="usage: scripts/bench.sh [--docs] [SUBJECT]...
  --docs  writes the table of all subjects, each as it was last measured, into docs/quality.md
  subjects: ${all[*]}"
subjects=()
docs=false
for argument in "$@"; do
    case $argument in
        --docs) docs=true ;;
        -h | --help) say "$usage" && exit ;;
        start | launcher | db | menu | articles | sale | receipt | printer | history | stock | backoffice | book | central) subjects+=("$argument") ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done
[ ${#subjects[@]} -gt 0 ] || subjects=("${all[@]}")

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

# rows SUBJECT...: the measurements, a line each, columns separated by tabs.
rows() { jq --slurp --raw-output --from-file "$root/bench/table.jq" "${@/%/.json}"; }

# page: the rows of standard input as docs/quality.md shows them.
page() {
    printf '| work | till ms | floor ms | ratio | memory, or how SQLite looks it up | limit |\n'
    printf '|---|---:|---:|---:|---|---|\n'
    sed 1d | sort -t $'\t' -k 1,1V | awk -F '\t' -v OFS=' | ' '{
        gsub("_", " ", $1)
        gsub("/", ", ", $1)
        for (column = 1; column <= 6; ++column) {
            if ($column == "-") { $column = "" }
        }
        print "| " $1, $2, $3, $4, $5, $6 " |"
    }' | sed -E 's/  +/ /g'
}

rows "${subjects[@]}" | column -t -s $'\t' -R 2,3,4 | tee table.txt
! grep -q ' missed$' table.txt || fail "a limit is missed"
if $docs; then
    for subject in "${all[@]}"; do
        [ -s "$subject.json" ] || fail "$subject has not been measured yet"
    done
    rows "${all[@]}" | page | write_figures benchmarks
fi
