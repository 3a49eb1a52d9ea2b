#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs those Debian packages of the named groups that are missing.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

declare -A packages=(
    [build]="g++ cmake ninja-build pkg-config qtbase5-dev libsqlite3-dev libusb-1.0-0-dev
        libstb-dev libxcb-ewmh-dev libqt5charts5-dev libcsv-dev libpqxx-dev librsvg2-bin pandoc qttools5-dev qttools5-dev-tools"
    [run]="fonts-crosextra-carlito fonts-inconsolata qttranslations5-l10n xdg-utils libqt5sql5-sqlite"
    [test]="libumockdev-dev umockdev strace xvfb xauth xdotool poppler-utils openbox imagemagick x11-utils bats sqlite3
        desktop-file-utils appstream faketime man-db jq bsdextrautils postgresql-15 libqt5sql5-psql
        openssl"
    [lint]="git shellcheck clang-format clang-tidy clazy cppcheck reuse"
    [package]="dpkg-dev file lintian"
    [package-test]="debootstrap sqlite3 xdotool xvfb"
    [arm64]="g++-aarch64-linux-gnu qemu-user"
    [qt6]="qt6-base-dev libqt6sql6-sqlite libqt6sql6-psql qt6-charts-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
        qt6-translations-l10n libgl-dev libqt6opengl6-dev"
    [bench]="libbenchmark-dev jq bsdextrautils postgresql-15 libqt5sql5-psql"
    [coverage]="gcovr"
    [fuzz]="clang libclang-rt-dev"
)
usage="usage: scripts/install.sh [--list] GROUP...
  groups: build run test lint qt6 package package-test arm64 bench coverage fuzz"

list=false
wanted=()
for argument in "$@"; do
    case $argument in
        --list) list=true ;;
        -h | --help) say "$usage" && exit ;;
        -*) unknown_option "$usage" "$argument" ;;
        *)
            [ -n "${packages[$argument]-}" ] || unknown_option "$usage" "$argument"
            read -r -d '' -a group <<<"${packages[$argument]}" || true
            wanted+=("${group[@]}")
            ;;
    esac
done
[ ${#wanted[@]} -gt 0 ] || { say "$usage" >&2 && exit 2; }
mapfile -t wanted < <(printf '%s\n' "${wanted[@]}" | sort -u)
if $list; then
    printf '%s\n' "${wanted[@]}"
    exit
fi

command -v dpkg-query >/dev/null \
    || fail "this machine has no dpkg; the packages to install by hand are: ${wanted[*]}"
# dpkg-query says "no" by its exit code when one package is unknown, and lists the others.
installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
    grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

command -v apt-get >/dev/null || fail "apt-get is not there to install: ${missing[*]}"
as_root=(env DEBIAN_FRONTEND=noninteractive)
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null \
        || fail "neither root nor sudo is there to install: ${missing[*]}"
    as_root=(sudo "${as_root[@]}")
fi

say "Installing ${missing[*]} (log: build/install.log)"
apt=("${as_root[@]}" apt-get -q -y -o DPkg::Lock::Timeout=120)
install_missing() {
    # A stale package list may be enough: only the installation decides.
    "${apt[@]}" update || true
    "${apt[@]}" install --no-install-recommends "${missing[@]}"
}
logged install install_missing \
    || fail "apt-get could not install the packages: no network, or no permission?"
