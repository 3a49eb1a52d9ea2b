#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2154  # stubs, variables of the helpers
# The figures in docs/quality.md are written by the scripts that measure them.

setup() {
    load helpers
    make_tree
    all_installed
    stub cmake
    source=$(cd "$BATS_TEST_DIRNAME/../.." && pwd)
    page="$tree/docs/quality.md"
    mkdir -p "$tree/docs" "$tree/bench"
    cp "$source/bench/table.jq" "$tree/bench"
    for name in benchmarks fuzzing coverage; do
        printf '%s\n' "before $name" "<!-- $name, written by a script -->" "old" \
            "<!-- end of $name -->" "after $name"
    done >"$page"
}

# figures NAME: what is between the marks, without empty lines.
figures() {
    sed -n "/^<!-- $1, written by/,/^<!-- end of $1 -->/p" "$page" | sed '1d;$d' | grep -v '^$'
}

# others_are_kept NAME: all that is not between the marks of NAME is as it was.
others_are_kept() {
    local name
    for name in benchmarks fuzzing coverage; do
        grep -qx "before $name" "$page"
        grep -qx "after $name" "$page"
        [ "$name" = "$1" ] || [ "$(figures "$name")" = old ]
    done
}

measured="^Taken on [0-9]+ [A-Z][a-z]+ [0-9]{4} with [0-9]+ cores \(.*\), [0-9]+ GB of memory and .+\.$"

# make_benchmark SUBJECT WORK TILL FLOOR: a program that reports these milliseconds.
make_benchmark() {
    mkdir -p "$tree/build/bench/bench"
    {
        echo '#!/bin/sh'
        printf "cat <<'END'\n"
        printf '{"benchmarks": [
            {"run_type": "iteration", "run_name": "%s/program", "cpu_time": %s, "time_unit": "ms",
             "limit": 1.3},
            {"run_type": "iteration", "run_name": "%s/floor", "cpu_time": %s, "time_unit": "ms",
             "limit": 1.3}]}\nEND\n' "$2" "$3" "$2" "$4"
    } >"$tree/build/bench/bench/bench_$1"
    chmod +x "$tree/build/bench/bench/bench_$1"
}

make_benchmarks() {
    local subject
    for subject in start launcher db menu articles receipt printer history stock backoffice book central; do
        make_benchmark "$subject" "work_of_$subject" 2 2
    done
    make_benchmark sale payment_of_20_lines 5.5 5
}

@test "the benchmarks are one table, a limit beside each" {
    make_benchmarks
    make_benchmark articles article_editor/100 1.25 1
    run "$tree/scripts/bench.sh" --docs
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = 'docs/quality.md has the new figures of "benchmarks"' ]
    [ "$(figures benchmarks | sed -n 1,4p)" = \
        "| work | till ms | floor ms | ratio | memory, or how SQLite looks it up | limit |
|---|---:|---:|---:|---|---|
| article editor, 100 | 1.25 | 1 | 1.25 | | ratio 1.3 |
| payment of 20 lines | 5.5 | 5 | 1.1 | | ratio 1.3 |" ]
    [ "$(figures benchmarks | grep -c '^| work of ')" -eq 11 ]
    [[ "$(figures benchmarks | tail -n 1)" =~ $measured ]]
    others_are_kept benchmarks
}

@test "a subject measured by itself replaces its row only" {
    make_benchmarks
    "$tree/scripts/bench.sh"
    make_benchmark sale payment_of_20_lines 6 5
    "$tree/scripts/bench.sh" --docs sale
    figures benchmarks | grep -qxF "| payment of 20 lines | 6 | 5 | 1.2 | | ratio 1.3 |"
    figures benchmarks | grep -qxF "| work of db | 2 | 2 | 1 | | ratio 1.3 |"
}

@test "a subject that was never measured leaves the page as it is" {
    make_benchmarks
    run "$tree/scripts/bench.sh" --docs sale
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "bench.sh: start has not been measured yet" ]
    others_are_kept none
}

@test "a limit that is missed leaves the page as it is" {
    make_benchmarks
    make_benchmark sale payment_of_20_lines 9 5
    run "$tree/scripts/bench.sh" --docs
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "bench.sh: a limit is missed" ]
    others_are_kept none
}

# make_fuzzers: two targets, of which one reports as libFuzzer does.
make_fuzzers() {
    mkdir -p "$tree/tests/fuzz/corpus/Convert" "$tree/tests/fuzz/corpus/Receipt" \
        "$tree/build/fuzz/fuzz"
    printf '#!/bin/sh\necho "Done 1234567 runs in 61 second(s)"\n' >"$tree/build/fuzz/fuzz/fuzz_Convert"
    printf '#!/bin/sh\necho "Done 89 runs in 60 second(s)"\nexit ${BROKEN-0}\n' \
        >"$tree/build/fuzz/fuzz/fuzz_Receipt"
    chmod +x "$tree"/build/fuzz/fuzz/*
}

@test "each fuzz target has its runs" {
    make_fuzzers
    run "$tree/scripts/fuzz.sh" --docs 60
    [ "$status" -eq 0 ]
    [ "$(figures fuzzing | sed '$d')" = "| target | seconds | runs | found |
|---|---:|---:|---|
| Convert | 61 | 1234567 | nothing |
| Receipt | 60 | 89 | nothing |" ]
    [[ "$(figures fuzzing | tail -n 1)" =~ $measured ]]
    others_are_kept fuzzing
}

@test "a finding leaves the page as it is" {
    make_fuzzers
    BROKEN=1 run "$tree/scripts/fuzz.sh" --docs 60
    [ "$status" -eq 1 ]
    others_are_kept none
}

@test "fuzzing without a number of seconds ends with the usage" {
    for arguments in "" "--docs" "--docs x"; do
        # shellcheck disable=SC2086  # several words
        run "$tree/scripts/fuzz.sh" $arguments
        [ "$status" -eq 2 ]
        [[ "$output" == *"usage: scripts/fuzz.sh [--docs] SECONDS"* ]]
    done
}

make_coverage() {
    stub ctest
    mkdir -p "$tree/build/coverage"
    stub gcovr 'cat >lines.csv <<END
filename,line_total,line_covered,line_percent,branch_total,branch_covered,branch_percent
app/FormVendel.cpp,200,199,0.995,1,1,1.0
app/main.cpp,10,0,0.0,1,1,1.0
Print/escpospp/EscPos.cpp,40,40,1.0,1,1,1.0
END
exit ${TOO_LITTLE-0}'
}

@test "each folder has its lines, and how many of them were run" {
    make_coverage
    run "$tree/scripts/coverage.sh" --docs 90
    [ "$status" -eq 0 ]
    called "--fail-under-line 90"
    [ "$(figures coverage | sed '$d')" = "| folder | lines | run | per cent |
|---|---:|---:|---:|
| app | 210 | 199 | 94.8 |
| Print | 40 | 40 | 100.0 |
| all | 250 | 239 | 95.6 |" ]
    others_are_kept coverage
}

@test "less coverage than is asked for leaves the page as it is" {
    make_coverage
    TOO_LITTLE=2 run "$tree/scripts/coverage.sh" --docs
    [ "$status" -eq 1 ]
    called "--fail-under-line 97"
    others_are_kept none
}

@test "a page without a place for the figures is named, and left as it is" {
    make_fuzzers
    sed -i '/^<!-- end of fuzzing -->$/d' "$page"
    cp "$page" "$page.before"
    run "$tree/scripts/fuzz.sh" --docs 1
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = 'fuzz.sh: docs/quality.md has no place for "fuzzing"' ]
    cmp "$page" "$page.before"
}

@test "the page has a place for every script's figures" {
    for name in benchmarks faults "long day" fuzzing coverage; do
        [ "$(grep -c "^<!-- $name, written by scripts/" "$source/docs/quality.md")" -eq 1 ]
        [ "$(grep -cx "<!-- end of $name -->" "$source/docs/quality.md")" -eq 1 ]
    done
}
