#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Cuts the till off: the real executable is killed at random moments of payments, additions and
# purges, and the shop's database is looked at afterwards. Then come the tests of the bad days and
# of a long day.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/faults.sh [--built] [--kills NUMBER] [--sales NUMBER] [--seed NUMBER]
  --built  takes the release build as it stands
  --kills  how often the till is killed (300)
  --sales  how many sales the long day has (10000); without any there is no day, good or bad
  --seed   what the moments are drawn from (1)"

built=false
kills=300
sales=10000
seed=1
number() { [[ ${1-} =~ ^[0-9]{1,7}$ ]] || unknown_option "$usage" "${1-}"; }
while [ $# -gt 0 ]; do
    case $1 in
        --built) built=true ;;
        --kills) number "${2-}" && kills=$2 && shift ;;
        --sales) number "${2-}" && sales=$2 && shift ;;
        --seed) number "${2-}" && seed=$2 && shift ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$1" ;;
    esac
    shift
done

build="$root/build/release"
out="$root/build/faults"
if ! $built; then
    "$root/scripts/install.sh" build run test
    say "Building the till and its tests"
    configure release
    build release all
fi
if ! { mkdir -p "$out" && rm -f -- "$out"/*; } 2>/dev/null; then
    fail "cannot write into $out"
fi

. "$root/scripts/tour.d/lib.sh"
. "$root/scripts/faults.d/kills.sh"
start_display
RANDOM=$seed
declare -A outcomes=()
for ((round = 1; round <= kills; ++round)); do
    case $((round % 3)) in
        0) cut_off payment ;;
        1) cut_off additions ;;
        2) cut_off purge ;;
    esac
done
for outcome in "${!outcomes[@]}"; do
    say "  $outcome: ${outcomes[$outcome]}"
done | sort

if [ "$sales" -eq 0 ]; then
    say "Nothing is lost"
    exit
fi

say "Bad days"
ctest --test-dir "$build" --output-on-failure -R 'BadDays|PaymentUnplugged' \
    >"$out/bad-days.log" 2>&1 || { cat "$out/bad-days.log" >&2 && fail "a bad day ended badly"; }
tail -n 3 "$out/bad-days.log" | head -n 1

say "A day of $sales sales"
VENDEL_SALES=$sales QTEST_FUNCTION_TIMEOUT=$((300000 + sales * 300)) QT_QPA_PLATFORM=offscreen \
    "$build/tests/app/tst_LongDay" >"$out/long-day.log" 2>&1 \
    || { cat "$out/long-day.log" >&2 && fail "the long day ended badly"; }
sed -n 's/^QINFO *: [^ ]* /  /p' "$out/long-day.log"
say "Nothing is lost"
