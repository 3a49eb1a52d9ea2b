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

# unknown_option USAGE OPTION: ends the script with its usage.
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
        # Without this, ccache does not cache what uses precompiled headers.
        export CCACHE_SLOPPINESS=pch_defines,time_macros
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

# taken_on: the day and the machine of a measurement, in one sentence.
taken_on() {
    local model memory
    model=$(sed -nE 's/^model name\s*: *(.*)/\1/p' /proc/cpuinfo | head -n 1)
    memory=$(awk '/^MemTotal/ { printf "%.0f", $2 / 1e6 }' /proc/meminfo)
    say "Taken on $(LC_ALL=C date '+%-d %B %Y') with $(nproc) cores (${model:-$(uname -m)})," \
        "$memory GB of memory and $(. /etc/os-release && say "$PRETTY_NAME")."
}

# write_figures NAME: puts standard input, and when it was measured, between the marks of NAME in
# docs/quality.md.
write_figures() {
    local page="$root/docs/quality.md" text new
    text=$(cat && printf '\n' && taken_on)
    # awk reads no escapes in what comes from the environment.
    new=$(text=$text awk -v name="$1" '
        $0 == "<!-- end of " name " -->" && inside { inside = 0; ++ended }
        !inside
        index($0, "<!-- " name ", written by ") == 1 {
            inside = 1
            print "\n" ENVIRON["text"] "\n"
        }
        END { exit ended != 1 }' "$page") || fail "docs/quality.md has no place for \"$1\""
    printf '%s\n' "$new" >"$page"
    say "docs/quality.md has the new figures of \"$1\""
}
