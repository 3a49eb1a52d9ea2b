#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the Debian package in build/package, checks it with lintian and, with --test, tries it in an
# otherwise empty system.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/package.sh [--test]
  --test   installs the package in a clean Debian, starts the till there and removes it again;
           takes some minutes, and is skipped where the machine does not allow it"

try=false
for argument in "$@"; do
    case $argument in
        --test) try=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$argument" ;;
    esac
done

"$root/scripts/install.sh" build package
if $try; then
    "$root/scripts/install.sh" package-test
fi

# The distribution's own flags: hardened, and without the build's path in the program.
flags() { DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"; }

use_ccache
tree="$root/build/package"
say "Building the package in build/package"
logged configure-package cmake -S "$root" -B "$tree" -G Ninja \
    -DCMAKE_BUILD_TYPE=None \
    -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_CXX_FLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS) -ffile-prefix-map=$root=." \
    -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" \
    -DVENDEL_TESTS=OFF -DVENDEL_PACKAGE=ON \
    || fail "the package cannot be configured, see build/configure-package.log"
logged build-package cmake --build "$tree" -j "$(nproc)" \
    || fail "the build failed, see build/build-package.log"
rm -f "$tree"/*.deb
(cd "$tree" && umask 022 && logged package cpack) || fail "cpack failed, see build/package.log"
package=$(echo "$tree"/vendel_*.deb)

say "Checking it with lintian"
lintian --fail-on error,warning --tag-display-limit 0 "$package" \
    || fail "lintian reports problems in $package"
if $try; then
    status=0
    "$root/tests/packaging/clean_tree.sh" "$package" || status=$?
    # 77: the machine does not allow the test, which says nothing about the package.
    [ $status -eq 0 ] || [ $status -eq 77 ] || fail "the package failed in a clean system"
fi
say "The package is $package"
