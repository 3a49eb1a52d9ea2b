#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the tree against its house rules: layout of the code, shell scripts, includes, licence lines,
# and what three analysers find. Without a name all checks run.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

fast=(format shell layers licence)
checks=("${fast[@]}" tidy clazy cppcheck)
usage="usage: scripts/check.sh [--staged] [${checks[*]}]...
  --staged  checks only the files that are staged, as they are staged: ${fast[*]}"
staged=false
wanted=()
for argument in "$@"; do
    case $argument in
        --staged) staged=true ;;
        -h | --help) say "$usage" && exit ;;
        format | shell | layers | licence | tidy | clazy | cppcheck) wanted+=("$argument") ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done
if [ ${#wanted[@]} -eq 0 ]; then
    $staged && wanted=("${fast[@]}") || wanted=("${checks[@]}")
fi

build="$root/build/release"

# The tree may belong to another user.
git() { (cd "$root" && command git -c safe.directory='*' "$@"); }

# What is staged may differ from the files of the working tree, so it is checked in a tree of its own.
tree=$root
if $staged; then
    tree=$(mktemp -d)
    trap 'rm -rf -- "$tree"' EXIT
    git checkout-index --all --prefix="$tree/"
fi
cd "$tree"

# tracked PATTERN...: the files under version control, or those of them that are staged.
tracked() {
    if $staged; then
        git diff --cached --name-only --diff-filter=ACMR -- "$@"
    else
        git ls-files -- "$@"
    fi
}

# The analysers read the build's commands without what precompiled headers add to them, which only
# the compiler that made the headers understands.
analysed="$root/build/check"
prepare_commands() {
    mkdir -p "$analysed"
    sed -E 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//; s/ -fpch-preprocess//' \
        "$build/compile_commands.json" >"$analysed/compile_commands.json"
}

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
    {
        tracked '*.sh' '*.bash' '*.bats'
        tracked .ci .githooks packaging | xargs -r grep -lE '^#!.*sh$' || true
    } | sort -u | xargs -r shellcheck
}

check_layers() {
    [ -z "$(tracked '*.cpp' '*.h')" ] || cmake -DROOT="$tree" -P tests/layers.cmake
}

check_licence() {
    local file missing=false
    while read -r file; do
        case $(head -n 2 "$file") in
            *"SPDX-License-Identifier"': MIT'*) ;;
            *) say "$file does not name its licence in its first two lines" && missing=true ;;
        esac
    done < <(tracked '*.cpp' '*.h' '*.sh' '*.bash' '*.bats' '*.cmake' '*CMakeLists.txt' \
        '*.svg' '*.xml' '*.in' '*.rules' '*.desktop' '*.[1-9]')
    ! $missing
}

headers="^$root/(app|backoffice|base|bench|central|common|db|demo|forms|launcher|Print|store|tests|widgets)/.*"

# The till and its tools; the tests are checked by the compiler, clazy and cppcheck.
check_tidy() {
    compiled | grep -v '^tests/' | each clang-tidy --quiet -p "$analysed" --header-filter="$headers"
}

# Tests may build their constants before main; the till may not.
check_clazy() {
    compiled | grep -v '^tests/' | each clazy-standalone -p "$analysed" \
        -checks=level1,no-connect-by-name -header-filter="$headers" || return
    compiled | grep '^tests/' | each clazy-standalone -p "$analysed" \
        -checks=level1,no-connect-by-name,no-non-pod-global-static -header-filter="$headers"
}

check_cppcheck() {
    # Texts are taken by value where an interface is fixed.
    tracked '*.cpp' | cppcheck --quiet --error-exitcode=1 --inline-suppr --std=c++20 \
        --language=c++ --library=qt --enable=warning,performance,portability \
        --suppress=missingIncludeSystem --suppress=passedByValue \
        -j "$(nproc)" -I "$root" '-DQ_DISABLE_COPY_MOVE(x)=' --file-list=-
}

failed=()
for check in "${wanted[@]}"; do
    if $staged && [[ " ${fast[*]} " != *" $check "* ]]; then
        fail "$check reads the whole tree: run it without --staged"
    fi
    if [[ $check == tidy || $check == clazy ]] && [ ! -e "$build/compile_commands.json" ]; then
        fail "$check needs the release preset to be configured: cmake --preset release"
    fi
    [[ $check != tidy && $check != clazy ]] || prepare_commands
    say "Checking $check"
    "check_$check" || failed+=("$check")
done
[ ${#failed[@]} -eq 0 ] || fail "there are findings in: ${failed[*]}"
