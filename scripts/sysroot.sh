#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Unpacks Debian's libraries and headers for another architecture in build/sysroot-ARCHITECTURE, to
# compile, link and emulate with. Nothing of them is installed, and nobody needs to be root: had this
# machine's dpkg a second architecture, it would accept only the exact versions it has of the first.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/sysroot.sh ARCHITECTURE [PACKAGE]
  ARCHITECTURE   arm64
  PACKAGE        a package file: instead, tries whether Debian has all that it depends on"

case ${1-} in
    -h | --help) say "$usage" && exit ;;
    arm64) architecture=$1 ;;
    *) unknown_option "$usage" "${1-}" ;;
esac
sysroot="$root/build/sysroot-$architecture"
state="$root/build/apt-$architecture"
archives="$state/archives"
log="build/sysroot-$architecture.log"

# What this machine's own build and tests link with, and what that depends on.
mapfile -t wanted < <("$root/scripts/install.sh" --list build test | grep -E -- '-dev$|^umockdev$')

# This machine's sources, keys and proxy; the rest of its apt stays as it is.
mkdir -p "$state"/{lists,archives}/partial 2>/dev/null \
    || fail "cannot write into $root/build: no permission or no room"
: >"$state/status"
apt=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends
    -o "APT::Architecture=$architecture" -o "APT::Architectures::=$architecture"
    -o "APT::Sandbox::User=$(id -un)" -o "Dir::State=$state" -o "Dir::State::status=$state/status"
    -o "Dir::Cache=$state" -o "Dir::Cache::archives=$archives" -o Debug::NoLocking=true)

if [ $# -gt 1 ]; then
    logged "sysroot-$architecture" "${apt[@]}" install --simulate "$(realpath -- "$2")" \
        || fail "Debian's $architecture has not all that $2 depends on"
    exit
fi

fetch() {
    # A stale package list may be enough: only what is fetched decides.
    "${apt[@]}" update || true
    "${apt[@]}" autoclean
    "${apt[@]}" install --download-only "${wanted[@]}"
}
say "Fetching Debian's packages for $architecture (log: $log)"
logged "sysroot-$architecture" fetch \
    || fail "apt-get could not fetch the $architecture packages: no network?"

# A tree that names what it was made of is complete.
contents=$(cd "$archives" && ls -- *.deb)
[ "$contents" != "$(cat "$sysroot/contents" 2>/dev/null)" ] || exit 0

unpack() {
    local package link
    rm -rf "$sysroot"
    mkdir -p "$sysroot"/{DEBIAN,usr/{bin,lib,sbin}}
    # As in an installed system, /lib and its like are parts of /usr.
    ln -s usr/{bin,lib,sbin} "$sysroot"
    for package in "$archives"/*.deb; do
        dpkg-deb --fsys-tarfile "$package" \
            | tar -x --no-same-owner --keep-directory-symlink -C "$sysroot"
        # dpkg-shlibdeps reads here which package has a library, and since which version.
        dpkg-deb --control "$package" "$sysroot/control"
        cat "$sysroot/control/symbols" >>"$sysroot/DEBIAN/symbols" 2>/dev/null || true
        cat "$sysroot/control/shlibs" >>"$sysroot/DEBIAN/shlibs" 2>/dev/null || true
        rm -r "$sysroot/control"
    done
    # An absolute link would lead into this machine.
    find "$sysroot" -lname '/*' -print0 | while IFS= read -r -d '' link; do
        ln -sfrnT "$sysroot$(readlink "$link")" "$link"
    done
    # Qt's tools run on this machine.
    rm -r "$sysroot/usr/lib/qt5/bin"
    ln -s /usr/lib/qt5/bin "$sysroot/usr/lib/qt5/bin"
    printf '%s\n' "$contents" >"$sysroot/contents"
}
say "Unpacking them in build/sysroot-$architecture"
# In a shell of its own, where the first failure ends it.
export sysroot archives contents
logged "sysroot-$architecture" bash -c "set -euo pipefail; $(declare -f unpack); unpack" \
    || fail "the packages could not be unpacked, see $log"
