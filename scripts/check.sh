#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Holds the tree against its house rules: layout of the code, shell scripts, and what three
# analysers find. Without a name all checks run.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

checks=(format shell tidy clazy cppcheck)
usage="usage: scripts/check.sh [${checks[*]}]..."
wanted=()
for argument in "$@"; do
    case $argument in
        -h | --help) say "$usage" && exit ;;
        format | shell | tidy | clazy | cppcheck) wanted+=("$argument") ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done
[ ${#wanted[@]} -gt 0 ] || wanted=("${checks[@]}")

cd "$root"
build="$root/build/release"

# The tree may belong to another user.
git() { command git -c safe.directory='*' "$@"; }

# tracked PATTERN...: the files under version control.
tracked() { git ls-files -- "$@"; }

# compiled: the sources that the release build knows how to compile.
compiled() {
    tracked '*.cpp' | while read -r file; do
        ! grep -qF "\"$root/$file\"" "$build/compile_commands.json" || printf '%s\n' "$file"
    done
}

# each COMMAND...: runs the command on each file that standard input names, as many at a time as
# there are processors.
each() { xargs -r -P "$(nproc)" -n 1 "$@"; }

check_format() { tracked '*.cpp' '*.h' | xargs -r clang-format --dry-run -Werror; }

check_shell() {
    { tracked '*.sh' '*.bash' '*.bats' && git grep -lE '^#!.*sh$' -- .ci packaging; } \
        | sort -u | xargs -r shellcheck
}

headers="^$root/(app|bench|common|db|demo|forms|Print|tests)/.*"

# The till and its tools; the tests are held by the compiler, clazy and cppcheck.
check_tidy() {
    compiled | grep -v '^tests/' | each clang-tidy --quiet -p "$build" --header-filter="$headers"
}

# Tests may build their constants before main; the till may not.
check_clazy() {
    compiled | grep -v '^tests/' | each clazy-standalone -p "$build" \
        -checks=level1,no-connect-by-name -header-filter="$headers" || return
    compiled | grep '^tests/' | each clazy-standalone -p "$build" \
        -checks=level1,no-connect-by-name,no-non-pod-global-static -header-filter="$headers"
}

check_cppcheck() {
    # Texts are taken by value where the product says so.
    tracked '*.cpp' | cppcheck --quiet --error-exitcode=1 --inline-suppr --std=c++20 \
        --language=c++ --library=qt --enable=warning,performance,portability \
        --suppress=missingIncludeSystem --suppress=passedByValue \
        -j "$(nproc)" -I "$root" --file-list=-
}

failed=()
for check in "${wanted[@]}"; do
    if [[ $check == tidy || $check == clazy ]] && [ ! -e "$build/compile_commands.json" ]; then
        fail "$check needs the release preset to be configured: cmake --preset release"
    fi
    say "Checking $check"
    "check_$check" || failed+=("$check")
done
[ ${#failed[@]} -eq 0 ] || fail "there are findings in: ${failed[*]}"
