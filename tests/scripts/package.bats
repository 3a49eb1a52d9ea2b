#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    load helpers
    make_tree
    all_installed
    cp -r "$BATS_TEST_DIRNAME/../../cmake" "$tree"
    stub dpkg 'echo amd64'
    stub dpkg-buildflags 'echo "flags for $DEB_HOST_ARCH" >>"$calls"'
    stub dpkg-architecture 'echo multiarch'
    stub cmake 'while [ $# -gt 0 ]; do [ "$1" != -B ] || mkdir -p "$2"; shift; done'
    stub cpack ': >vendel_1.0.0-1_test.deb'
    stub lintian
    stub ctest
    package="$tree/scripts/package.sh"
    sysroot="$tree/build/sysroot-arm64"
    archives="$tree/build/apt-arm64/archives"
}

# sysroot_is_there: unpacked from what apt-get fetches.
sysroot_is_there() {
    stub apt-get
    mkdir -p "$archives" "$sysroot"
    : >"$archives/some.deb"
    echo some.deb >"$sysroot/contents"
}

@test "an architecture that no package can be made for ends with the usage" {
    for arguments in "--architecture i386" "--architecture" "--architecture=" \
        "--architecture --test" "--test --architecture=ARM64"; do
        run "$package" $arguments
        [ "$status" -eq 2 ]
        [[ "${lines[0]}" == 'package.sh: no package can be made here for the architecture "'*'"' ]]
        [ "${lines[1]}" = "usage: scripts/package.sh [--architecture ARCHITECTURE] [--test]" ]
    done
    not_called dpkg-query
    not_called cmake
}

@test "an arm64 machine makes no package for amd64" {
    stub dpkg 'echo arm64'
    run "$package" --architecture amd64
    [ "$status" -eq 2 ]
    [ "${lines[0]}" = 'package.sh: no package can be made here for the architecture "amd64"' ]
}

@test "an unknown option ends with the usage" {
    run "$package" --arm64
    [ "$status" -eq 2 ]
    [ "${lines[0]}" = 'package.sh: unknown option "--arm64"' ]
}

@test "the package is for the machine's own architecture, with and without its name" {
    for arguments in "" "--architecture amd64" "--architecture=amd64"; do
        : >"$calls"
        run "$package" $arguments
        [ "$status" -eq 0 ]
        [ "${lines[-1]}" = "The package is $tree/build/package/vendel_1.0.0-1_test.deb" ]
        called "flags for amd64"
        not_called --toolchain
        not_called apt-get
        not_called qemu-user
    done
}

@test "an arm64 machine makes its own package without an emulator" {
    stub dpkg 'echo arm64'
    run "$package" --architecture arm64
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "The package is $tree/build/package/vendel_1.0.0-1_test.deb" ]
    not_called --toolchain
}

@test "elsewhere the package for arm64 is made in a folder of its own, with arm64's libraries" {
    sysroot_is_there
    run "$package" --architecture arm64
    [ "$status" -eq 0 ]
    [ "${lines[-1]}" = "The package is $tree/build/package-arm64/vendel_1.0.0-1_test.deb" ]
    called "qemu-user"
    called "flags for arm64"
    called "dpkg-architecture -aarm64 -q DEB_HOST_MULTIARCH"
    called "-DCMAKE_INSTALL_LIBDIR=lib/multiarch"
    called "-B $tree/build/package-arm64 -G Ninja --toolchain $tree/cmake/arm64.cmake"
    not_called ctest
}

@test "--test runs the tests of some folders in the emulator, and the package's till" {
    sysroot_is_there
    run "$package" --architecture arm64 --test
    [ "$status" -eq 0 ]
    called "install --simulate $tree/build/package-arm64/vendel_1.0.0-1_test.deb"
    called "--target tests_common tests_db tests_store tests_Print tests_widgets tests_launcher tests_app"
    [ "$(sed -nE 's|^ctest --test-dir .*/tests/([A-Za-z]+) .*|\1|p' "$calls" | tr '\n' ' ')" = \
        "common db store Print widgets launcher app packaging " ]
    called "tests/store --tests-regex . "
    called "tests/app --tests-regex ^(TicketTotals|Payment|Receipt) "
}

@test "a failed test in the emulator fails the package" {
    sysroot_is_there
    stub ctest '[[ "$*" != *tests/store* ]]'
    run "$package" --test --architecture arm64
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "package.sh: the tests of store failed" ]
}

@test "a package that Debian cannot install for its architecture fails" {
    sysroot_is_there
    stub apt-get '[[ "$*" != *--simulate* ]]'
    run "$package" --test --architecture arm64
    [ "$status" -eq 1 ]
    [[ "${lines[-1]}" == "sysroot.sh: Debian's arm64 has not all that "*"_test.deb depends on" ]]
}

@test "what lintian finds fails the package" {
    stub lintian 'echo "E: vendel: something"; exit 2'
    run "$package"
    [ "$status" -eq 1 ]
    [[ "$output" == *"E: vendel: something"* ]]
    [[ "${lines[-1]}" == "package.sh: lintian reports problems in $tree/"* ]]
}

@test "the toolchain file uses the compiler and the emulator that are installed for it" {
    rm "$stubs/cmake"
    mkdir -p "$sysroot"
    : >"$sysroot/contents"
    printf '%s\n' 'include(${CMAKE_CURRENT_LIST_DIR}/cmake/arm64.cmake)' \
        'message("${CMAKE_CXX_COMPILER} ${CMAKE_CROSSCOMPILING_EMULATOR}")' >"$tree/show.cmake"
    run cmake -P "$tree/show.cmake"
    [ "$status" -eq 0 ]
    [[ "$output" == "aarch64-linux-gnu-g++ qemu-aarch64;"*";$sysroot/usr/lib/aarch64-linux-gnu" ]]
    [ "$("$tree/scripts/install.sh" --list arm64)" = "g++-aarch64-linux-gnu
qemu-user" ]
}

@test "without arm64's libraries the toolchain file names the script that fetches them" {
    rm "$stubs/cmake"
    run cmake -P "$tree/cmake/arm64.cmake"
    [ "$status" -ne 0 ]
    [[ "$(tr -s ' \n' ' ' <<<"$output")" == *"run scripts/sysroot.sh arm64"* ]]
}

# make_deb NAME: packs what the test has put in the folder of that name.
make_deb() {
    mkdir -p "$BATS_TEST_TMPDIR/$1/DEBIAN"
    printf 'Package: %s\nVersion: 1\nArchitecture: arm64\nMaintainer: Anna <anna@example.org>\nDescription: %s\n' \
        "$1" "$1" >"$BATS_TEST_TMPDIR/$1/DEBIAN/control"
    mkdir -p "$archives"
    dpkg-deb --root-owner-group -b "$BATS_TEST_TMPDIR/$1" "$archives/$1.deb" >/dev/null
}

@test "the packages are one tree, whose links stay in it and whose Qt tools are this machine's" {
    stub apt-get
    one=$BATS_TEST_TMPDIR/one two=$BATS_TEST_TMPDIR/two
    mkdir -p "$one/DEBIAN" "$one/lib" "$one/usr/lib/qt5/bin" "$two/DEBIAN" "$two/usr/lib"
    echo library >"$one/lib/libone.so.1"
    ln -s /lib/libone.so.1 "$one/usr/lib/libone.so"
    echo moc >"$one/usr/lib/qt5/bin/moc"
    echo 'libone.so.1 one #MINVER#' >"$one/DEBIAN/symbols"
    echo 'libtwo 2 two' >"$two/DEBIAN/shlibs"
    make_deb one
    make_deb two
    run "$tree/scripts/sysroot.sh" arm64
    [ "$status" -eq 0 ]
    [ "$(cat "$sysroot/usr/lib/libone.so")" = library ]
    [ "$(readlink "$sysroot/usr/lib/libone.so")" = libone.so.1 ]
    [ "$(readlink "$sysroot/usr/lib/qt5/bin")" = /usr/lib/qt5/bin ]
    [ "$(cat "$sysroot/DEBIAN/symbols")" = 'libone.so.1 one #MINVER#' ]
    [ "$(cat "$sysroot/DEBIAN/shlibs")" = 'libtwo 2 two' ]
    # Nothing new: nothing is unpacked again.
    touch "$sysroot/mark"
    "$tree/scripts/sysroot.sh" arm64
    [ -e "$sysroot/mark" ]
    rm "$archives/two.deb"
    "$tree/scripts/sysroot.sh" arm64
    [ ! -e "$sysroot/mark" ]
}

@test "a package that cannot be unpacked leaves no tree that looks complete" {
    stub apt-get
    mkdir -p "$archives"
    echo nonsense >"$archives/one.deb"
    run "$tree/scripts/sysroot.sh" arm64
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = \
        "sysroot.sh: the packages could not be unpacked, see build/sysroot-arm64.log" ]
    [ ! -e "$sysroot/contents" ]
}

@test "packages that do not come are said, and another architecture ends with the usage" {
    run "$tree/scripts/sysroot.sh" arm64
    [ "$status" -eq 1 ]
    [ "${lines[-1]}" = "sysroot.sh: apt-get could not fetch the arm64 packages: no network?" ]
    for arguments in "" amd64 --all; do
        run "$tree/scripts/sysroot.sh" $arguments
        [ "$status" -eq 2 ]
        [[ "$output" == *"usage: scripts/sysroot.sh ARCHITECTURE [PACKAGE]"* ]]
    done
}
