#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the tests of the code and shows how many of the till's lines they ran; less than LEAST per cent
# is an error. build/coverage/lines.html shows each line.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/coverage.sh [--docs] [LEAST]
  --docs  writes the table of the folders into docs/quality.md
  LEAST   per cent of the lines (97)"
docs=false
least=97
for argument in "$@"; do
    case $argument in
        --docs) docs=true ;;
        -h | --help) say "$usage" && exit ;;
        "" | *[!0-9]*) unknown_option "$usage" "$argument" ;;
        *) least=$argument ;;
    esac
done

"$root/scripts/install.sh" build run test coverage
say "Building the preset coverage"
configure coverage
build coverage all
find "$root/build/coverage" -name '*.gcda' -delete
say "Testing the preset coverage"
(cd "$root" && ctest --preset coverage --quiet) || fail "there are failed tests"

folders=(app forms widgets common store db base Print)
cd "$root/build/coverage"
gcovr --root "$root" "${folders[@]/#/--filter=$root/}" --exclude-throw-branches \
    --exclude-unreachable-branches --print-summary --fail-under-line "$least" \
    --html-details lines.html --txt lines.txt --csv lines.csv . \
    || fail "less than $least per cent of the lines were run, see build/coverage/lines.txt"

# table: the lines of each folder, from gcovr's file, lines and lines run.
table() {
    printf '| folder | lines | run | per cent |\n|---|---:|---:|---:|\n'
    awk -F , '
        function row(name) {
            printf "| %s | %d | %d | %.1f |\n", name, lines[name], run[name], 100 * run[name] / lines[name]
        }
        function add(name) {
            lines[name] += $2
            run[name] += $3
        }
        NR > 1 { sub("/.*", "", $1); if (!($1 in lines)) { order[++folders] = $1 } add($1); add("all") }
        END { for (i = 1; i <= folders; ++i) { row(order[i]) } row("all") }' lines.csv
}
if $docs; then
    table | write_figures coverage
fi
