#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2154  # scripts as they are written, variables of the helpers

setup() {
    load helpers
    make_tree
    source=$(cd "$BATS_TEST_DIRNAME/../.." && pwd)
    cp -r "$source/.githooks" "$source/.clang-format" "$source/.shellcheckrc" "$tree"
    mkdir "$tree/db" "$tree/tests"
    cp "$source/tests/layers.cmake" "$tree/tests"
    cd "$tree" || return
    export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_SYSTEM=/dev/null
    git init -q
    git config user.name Anna
    git config user.email anna@example.org
    well >db/Well.cpp
    git add .
    git commit -q -m "Begin"
    git config core.hooksPath .githooks
}

# In two pieces: reuse would read it as the licence of this file.
licence=SPDX-License-'Identifier: MIT'

# well: a source that keeps every rule.
well() { printf '// %s\nint answer() { return 42; }\n' "$licence"; }

# badly: one that only clang-format complains about.
badly() { printf '// %s\nint  question( ) { return 6*7; }\n' "$licence"; }

# refused CHECK: the commit is refused because of this check, and leaves nothing behind.
refused() {
    run git commit -q -m "Go on"
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "check.sh: there are findings in: $1" ]
    [ "$(git log --format=%s)" = "Begin" ]
    [ -z "$(ls "$TMPDIR")" ]
}

@test "what keeps the rules is committed" {
    well >db/Other.cpp
    git add .
    run git commit -q -m "Go on"
    [ "$status" -eq 0 ]
    [ "$(git log -1 --format=%s)" = "Go on" ]
    [ -z "$(ls "$TMPDIR")" ]
}

@test "a badly formatted file that is staged is refused" {
    badly >db/Other.cpp
    git add .
    refused format
    [[ "$output" == *"db/Other.cpp:2"* ]]
}

@test "a badly formatted file that is not staged is not looked at" {
    badly >db/Other.cpp
    well >db/Third.cpp
    git add db/Third.cpp
    git commit -q -m "Go on"
    badly >db/Third.cpp
    well >db/Fourth.cpp
    git add db/Fourth.cpp
    git commit -q -m "And on"
    [ "$(git log -1 --format=%s)" = "And on" ]
}

@test "a bad staged file is refused though the working tree has it right" {
    badly >db/Well.cpp
    git add .
    well >db/Well.cpp
    refused format
}

@test "a bad file that was committed before does not hold up another one" {
    badly >db/Old.cpp
    git add .
    git commit -q --no-verify -m "Old"
    well >db/Other.cpp
    git add .
    git commit -q -m "Go on"
    [ "$(git log -1 --format=%s)" = "Go on" ]
}

@test "a staged script that shellcheck complains about is refused, whatever its name" {
    for file in scripts/new.sh .githooks/pre-push; do
        printf '#!/bin/sh\n# %s\necho $1\n' "$licence" >"$file"
        git add "$file"
        refused shell
        git rm -q -f "$file"
    done
}

@test "a staged file without its licence line is refused" {
    well | sed 1d >db/Other.cpp
    git add .
    refused licence
    [[ "$output" == *"db/Other.cpp does not name its licence in its first two lines"* ]]
}

@test "an include that its folder may not have is refused" {
    { well && printf '\n#include "app/FormVendel.h"\n'; } >db/Other.cpp
    git add .
    refused layers
}

@test "a file that is removed is not checked" {
    git rm -q db/Well.cpp
    git commit -q -m "Less"
    [ "$(git log -1 --format=%s)" = "Less" ]
}

@test "a check that needs the whole tree is refused for what is staged" {
    run scripts/check.sh --staged tidy
    [ "$status" -eq 1 ]
    [ "$output" = "check.sh: tidy reads the whole tree: run it without --staged" ]
}
