#!/bin/sh
# SPDX-License-Identifier: MIT
# fuzz.sh SECONDS: runs every fuzz target for that long, one after the other. What is found stays
# in build/fuzz/found; the grown corpus in build/fuzz/corpus is used again by the next run.
set -eu
seconds=${1:?usage: fuzz.sh SECONDS}
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null || ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*.a >/dev/null 2>&1; then
    as_root=
    [ "$(id -u)" -eq 0 ] || as_root=sudo
    $as_root apt-get install -y clang libclang-rt-dev
fi

cmake --preset fuzz
cmake --build --preset fuzz --target fuzz_targets

export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1
mkdir -p build/fuzz/found
failed=
for seeds in tests/fuzz/corpus/*; do
    name=$(basename "$seeds")
    mkdir -p "build/fuzz/corpus/$name"
    echo "== $name, $seconds s"
    "build/fuzz/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/found/$name-" "build/fuzz/corpus/$name" "$seeds" \
        2>"build/fuzz/$name.log" || failed="$failed $name"
    grep -E '^stat::number_of_executed_units|ERROR|SUMMARY' "build/fuzz/$name.log" || true
done
if [ -n "$failed" ]; then
    echo "fuzz.sh: findings in$failed; see build/fuzz/*.log" >&2
    exit 1
fi
