# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2016,SC2154
# What the tests of the scripts share: a tree of their own, and stubs for what the scripts call.

# make_tree: a copy of the scripts in a tree without sources, and a PATH that begins with stubs.
make_tree() {
    tree="$BATS_TEST_TMPDIR/tree"
    stubs="$BATS_TEST_TMPDIR/stubs"
    calls="$BATS_TEST_TMPDIR/calls"
    mkdir -p "$tree" "$stubs" "$BATS_TEST_TMPDIR/tmp"
    : >"$calls"
    cp -r "$BATS_TEST_DIRNAME/../../scripts" "$BATS_TEST_DIRNAME/../../.ci" "$tree"
    export PATH="$stubs:$PATH" TMPDIR="$BATS_TEST_TMPDIR/tmp" calls
}

# stub NAME [BODY]: a command that notes how it was called and then does the body.
stub() {
    printf '#!/bin/bash\nprintf "%%s\\n" "%s $*" >>"%s"\n%s\n' "$1" "$calls" "${2-}" \
        >"$stubs/$1"
    chmod +x "$stubs/$1"
}

# all_installed: every package is there, and an apt-get that is called all the same is found out.
all_installed() {
    stub dpkg-query 'shift 3; for package; do echo "$package installed"; done'
    stub apt-get 'exit 9'
}

# only_with COMMAND...: a PATH with nothing but the stubs and these commands of the machine.
only_with() {
    local command path
    for command in bash env dirname basename sort grep mkdir tail cat printf rm "$@"; do
        path=$(type -P "$command") || continue
        [ -e "$stubs/$command" ] || ln -s "$path" "$stubs/$command"
    done
    PATH="$stubs"
}

called() { grep -qF -- "$1" "$calls"; }

# A negated command would not fail a test.
not_called() { if called "$1"; then return 1; fi; }

one_line() { [ "${#lines[@]}" -eq 1 ]; }
