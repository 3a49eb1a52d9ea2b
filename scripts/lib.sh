# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What the scripts share; sourced, never run.
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# unknown_option USAGE OPTION: says how the script is called and ends it.
unknown_option() {
    printf '%s: unknown option "%s"\n%s\n' "${0##*/}" "$2" "$1" >&2
    exit 2
}

# logged NAME COMMAND...: runs the command with its output in build/NAME.log, whose end is shown
# when the command fails.
logged() {
    local log="$root/build/$1.log"
    shift
    if ! { mkdir -p "$root/build" && : >"$log"; } 2>/dev/null; then
        fail "cannot write into $root/build: no permission or no room"
    fi
    "$@" >"$log" 2>&1 && return
    tail -n 20 "$log" >&2
    return 1
}

use_ccache() {
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
}

# configure PRESET [CMAKE OPTION]...
configure() {
    use_ccache
    (cd "$root" && logged "configure-$1" cmake --preset "$@") \
        || fail "the preset $1 cannot be configured, see build/configure-$1.log"
}

# build PRESET TARGET...
build() {
    local preset=$1
    shift
    (cd "$root" && logged "build-$preset" cmake --build --preset "$preset" -j "$(nproc)" \
        --target "$@") || fail "the build of the preset $preset failed, see build/build-$preset.log"
}
