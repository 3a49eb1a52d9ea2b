#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The version is that of CMakeLists.txt, wherever it is shown.
# shellcheck disable=SC2154

load support

setup_file() {
    cmake --install "$VENDEL_BUILD" --prefix "$BATS_FILE_TMPDIR/tree" >/dev/null
}

setup() {
    cd "$VENDEL_SOURCE" || return
    tree=$BATS_FILE_TMPDIR/tree
    version=$(sed -nE 's/^project\(vendel VERSION ([0-9]+\.[0-9]+\.[0-9]+) .*/\1/p' CMakeLists.txt)
    [ -n "$version" ]
}

# first PATTERN FILE: what the group of the pattern matches first.
first() {
    sed -nE "s/$1/\1/p" "$2" | head -n 1
}

@test "the command says it" {
    [ "$("$tree/bin/vendel" --version)" = "Vendel $version" ]
    [ "$("$VENDEL_BUILD/packaging/vendel" --version)" = "Vendel $version" ]
}

@test "the about window shows it, with a fourth number" {
    [ "$(first '.*<string notr="true">Version (.*)<\/string>.*' forms/FormVendelAbout.ui)" \
        = "$version.0" ]
}

@test "both man pages have it in their footer" {
    for page in man1 fr/man1; do
        man -E UTF-8 -l "$tree/share/man/$page/vendel.1.gz" | tail -n 1 | grep -qE "^Vendel $version "
    done
}

@test "the guide has it at its end" {
    grep -qxF "<p>Vendel $version</p>" "$tree/share/doc/vendel/guide.fr.html"
}

@test "the guide names no other version of the package" {
    [ "$(grep -cE '(vendel_|Vendel )[0-9]+\.[0-9]' docs/guide.fr.md)" \
        -eq "$(grep -cE "(vendel_|Vendel )${version//./\\.}\>" docs/guide.fr.md)" ]
}

@test "the newest entries of metainfo and changelogs are this version's" {
    [ "$(first '.*<release version="([^"]*)".*' packaging/io.vendel.vendel.metainfo.xml)" = "$version" ]
    [ "$(first '^vendel \(([^-]*)-.*' packaging/debian/changelog)" = "$version" ]
    [ "$(first '^## ([0-9][^ ]*).*' CHANGELOG.md)" = "$version" ]
}

@test "the package gets it" {
    cmake -S . -B "$BATS_TEST_TMPDIR/package" -G Ninja -DVENDEL_TESTS=OFF -DVENDEL_PACKAGE=ON \
        >"$BATS_TEST_TMPDIR/log" 2>&1
    cpack="$BATS_TEST_TMPDIR/package/CPackConfig.cmake"
    [ "$(first '^set\(CPACK_PACKAGE_VERSION "(.*)"\)' "$cpack")" = "$version" ]
    [ "$version-$(first '^set\(CPACK_DEBIAN_PACKAGE_RELEASE "(.*)"\)' "$cpack")" \
        = "$(first '^vendel \(([^)]*)\).*' packaging/debian/changelog)" ]
}
