#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian packages in build/package, or build/package-arm64, checks them with lintian and, with
# --test, tries them: in an otherwise empty system, or in an emulator.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

# The folders whose tests run in an emulator, and of a folder with many those that count most.
emulated=(common db store Print widgets launcher app)
declare -A some_of=([app]='^(TicketTotals|Payment|Receipt)')
usage="usage: scripts/package.sh [--architecture ARCHITECTURE] [--test]
  --architecture   this machine's own, which it is without the option, or arm64
  --test           this machine's own architecture: installs the package in a clean Debian, starts the
                   till there and removes it again; takes some minutes, and is skipped where the
                   machine does not allow it. Another architecture: runs the tests of
                   common, db, store, Print, widgets and launcher, those of payments and receipts,
                   and the package's till, in an emulator"

own=$(dpkg --print-architecture 2>/dev/null || true)
architecture=$own
try=false
while [ $# -gt 0 ]; do
    case $1 in
        --architecture) architecture=${2-} && shift ;;
        --architecture=*) architecture=${1#*=} ;;
        --test) try=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$1" ;;
    esac
    # The architecture may be missing.
    shift || true
done
case $architecture in
    "$own" | arm64) ;;
    *)
        printf '%s: no package can be made here for the architecture "%s"\n%s\n' \
            "${0##*/}" "$architecture" "$usage" >&2
        exit 2
        ;;
esac

name=package
groups=(build package)
options=()
if [ "$architecture" != "$own" ]; then
    name=package-$architecture
    groups+=("$architecture")
    options=(--toolchain "$root/cmake/$architecture.cmake")
    ! $try || groups+=(test)
elif $try; then
    groups+=(package-test)
fi
"$root/scripts/install.sh" "${groups[@]}"
[ "$architecture" = "$own" ] || "$root/scripts/sysroot.sh" "$architecture"
tree="$root/build/$name"

# What Debian's tools ask for the architecture, and CPack with them.
export DEB_HOST_ARCH=$architecture
# The distribution's own flags: hardened, and without the build's path in the program.
flags() { DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"; }

configure_package() {
    logged "configure-$name" cmake -S "$root" -B "$tree" -G Ninja "${options[@]}" \
        -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_INSTALL_PREFIX=/usr \
        -DCMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -a"$architecture" -q DEB_HOST_MULTIARCH)" \
        -DCMAKE_CXX_FLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS) -ffile-prefix-map=$root=." \
        -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" \
        -DVENDEL_TESTS=OFF -DVENDEL_PACKAGE=ON -DVENDEL_ARCHITECTURE="$architecture" "$@" \
        || fail "the package cannot be configured, see build/configure-$name.log"
}

build_package() {
    logged "build-$name" cmake --build "$tree" -j "$(nproc)" "$@" \
        || fail "the build failed, see build/build-$name.log"
}

# try_in_clean_system: 77 means that the machine does not allow it, which says nothing about the package.
try_in_clean_system() {
    local status=0
    "$root/tests/packaging/clean_tree.sh" "$package" "$central" || status=$?
    [ $status -eq 0 ] || [ $status -eq 77 ] || fail "the package failed in a clean system"
}

try_in_emulator() {
    local folder
    "$root/scripts/sysroot.sh" "$architecture" "$package"
    say "Building the tests"
    configure_package -DVENDEL_TESTS=ON -DVENDEL_TESTS_OF_CODE_ONLY=ON
    build_package --target "${emulated[@]/#/tests_}"
    for folder in "${emulated[@]}" packaging; do
        ctest --test-dir "$tree/tests/$folder" --tests-regex "${some_of[$folder]-.}" \
            -j "$(nproc)" --no-tests=error --output-on-failure \
            || fail "the tests of $folder failed"
    done
}

use_ccache
say "Building the packages in build/$name"
configure_package
build_package
rm -f "$tree"/*.deb
(cd "$tree" && umask 022 && logged "$name" cpack) || fail "cpack failed, see build/$name.log"
package=$(echo "$tree"/vendel_*.deb)
central=$(echo "$tree"/vendel-central_*.deb)

say "Checking them with lintian"
lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$package" \
    "$central" || fail "lintian reports problems in $tree"
if $try && [ "$architecture" = "$own" ]; then
    try_in_clean_system
elif $try; then
    try_in_emulator
fi
say "The package is $package"
