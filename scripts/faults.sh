#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Crash tests of the real till: at each system call by which an act reaches the database it is killed,
# and each such call fails once as on a broken disk and once as on a full one. Then the tests of bad
# days and of a long day run.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/faults.sh [--built] [--acts NAMES] [--every NUMBER] [--sales NUMBER] [--docs]
  --built  takes the release build as it is
  --acts   which of \"payment line stock article purge\" are tried (all)
  --every  tries only every NUMBERth fault (1)
  --sales  sales of the long day (10000); 0 leaves out the bad days and the long day
  --docs   writes the table of the faults and the figures of the long day into docs/quality.md"

built=false
docs=false
acts="payment line stock article purge"
every=1
sales=10000
number() { [[ ${1-} =~ ^[0-9]{1,7}$ ]] || unknown_option "$usage" "${1-}"; }
while [ $# -gt 0 ]; do
    case $1 in
        --built) built=true ;;
        --docs) docs=true ;;
        --acts) acts=${2-} && shift ;;
        --every) number "${2-}" && every=$((10#$2)) && shift ;;
        --sales) number "${2-}" && sales=$((10#$2)) && shift ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$1" ;;
    esac
    shift
done
[ "$every" -gt 0 ] || unknown_option "$usage" "$every"
for act in $acts; do
    [[ " payment line stock article purge " == *" $act "* ]] || unknown_option "$usage" "$act"
done

build="$root/build/release"
out="$root/build/faults"
if ! $built; then
    "$root/scripts/install.sh" build run test
    say "Building the till and its tests"
    configure release
    build release all
fi
if ! { mkdir -p "$out" && rm -rf -- "${out:?}"/*; } 2>/dev/null; then
    fail "cannot write into $out"
fi

. "$root/scripts/faults.d/shop.sh"
. "$root/scripts/faults.d/calls.sh"
. "$root/scripts/faults.d/outcomes.sh"
make_shop
for act in $acts; do
    list_calls "$act"
done
try_all
table >"$out/table.md"
cat "$out/table.md"
if [ -s "$out/broken" ]; then
    head -n 20 "$out/broken" >&2
    fail "$(wc -l <"$out/broken") faults ended badly, see build/faults/broken"
fi
if $docs; then
    write_figures faults <"$out/table.md"
fi

if [ "$sales" -eq 0 ]; then
    say "Nothing is lost"
    exit
fi

say "Bad days"
ctest --test-dir "$build" --output-on-failure --no-tests=error -R '_failures' \
    >"$out/bad-days.log" 2>&1 || { cat "$out/bad-days.log" >&2 && fail "a bad day ended badly"; }
tail -n 3 "$out/bad-days.log" | head -n 1

say "A day of $sales sales"
VENDEL_SALES=$sales QTEST_FUNCTION_TIMEOUT=$((300000 + sales * 300)) QT_QPA_PLATFORM=offscreen \
    "$build/tests/app/tests_app" LongDay >"$out/long-day.log" 2>&1 \
    || { cat "$out/long-day.log" >&2 && fail "the long day ended badly"; }
sed -nE 's/^QINFO *: [^ ]+ //p' "$out/long-day.log" >"$out/long-day.txt"
sed 's/^/  /' "$out/long-day.txt"
if $docs; then
    sed 's/^/- /' "$out/long-day.txt" | write_figures "long day"
fi
say "Nothing is lost"
