#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# clean_tree.sh PACKAGE CENTRAL: installs the till's package into an otherwise empty Debian system,
# starts the till there on a virtual display, closes it and puts its copy back; then adds the package
# of the central book, and removes both again. Ends with 77, and says why, where the machine does not
# allow it. The packages come from where this machine's own apt has them.
set -euo pipefail

package=$(readlink -f "$1")
central=$(readlink -f "$2")

skip() {
    printf 'skipped: %s\n' "$*"
    exit 77
}

fail() {
    printf 'failed: %s\n' "$*" >&2
    exit 1
}

[ "$(id -u)" -eq 0 ] || skip "only root makes a system of its own"
for tool in debootstrap Xvfb xdotool sqlite3; do
    command -v "$tool" >/dev/null || skip "there is no $tool here"
done
# Mounts end with the test, however it ends.
if [ -z "${VENDEL_OWN_MOUNTS:-}" ]; then
    unshare --mount true 2>/dev/null || skip "this machine lets nobody mount"
    VENDEL_OWN_MOUNTS=1 exec unshare --mount "$0" "$@"
fi

codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
# shellcheck disable=SC2016
mirror=$(apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' \
    'Created-By: Packages' | sed -n "s/^$codename main //p" | head -n 1)
[ -n "$mirror" ] || skip "this machine's apt knows no archive of Debian $codename"

work=$(mktemp -d)
tree=$work/tree
display=
till=
second=
clean_up() {
    [ -z "$second" ] || kill "$second" 2>/dev/null || true
    [ -z "$till" ] || kill "$till" 2>/dev/null || true
    [ -z "$display" ] || kill "$display" 2>/dev/null || true
    wait || true
    ! mountpoint -q "$tree/proc" || umount "$tree/proc"
    rm -rf "$work"
}
trap clean_up EXIT

echo "Making a clean Debian $codename"
DEBIAN_FRONTEND=noninteractive debootstrap --variant=minbase "$codename" "$tree" "$mirror" >"$work/debootstrap.log" 2>&1 || {
    tail -n 5 "$work/debootstrap.log" "$tree/debootstrap/debootstrap.log" 2>/dev/null || true
    skip "debootstrap made no system here"
}

# fetch PACKAGE: has it and what it names in the tree's archives. This machine's apt resolves and fetches
# for the tree, which then needs no network of its own.
fetch() {
    rm -f "$tree"/var/cache/apt/archives/*.deb
    cp "$1" "$tree/var/cache/apt/archives"
    apt-get -q -y --no-install-recommends --download-only \
        -o Dir::State::status="$tree/var/lib/dpkg/status" \
        -o Dir::Cache::archives="$tree/var/cache/apt/archives" \
        install "$1" >"$work/fetch.log" 2>&1 || {
        cat "$work/fetch.log"
        grep -q 'unmet dependencies' "$work/fetch.log" && fail "the package names what there is not"
        skip "apt fetched nothing"
    }
}
in_tree() {
    chroot "$tree" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
# unpack: installs what was fetched.
unpack() {
    in_tree sh -c 'dpkg --unpack /var/cache/apt/archives/*.deb && dpkg --configure --pending' \
        >"$work/install.log" 2>&1 || {
        tail -n 20 "$work/install.log"
        fail "the package could not be installed"
    }
}

echo "Installing the package and what it names"
fetch "$package"
mountpoint -q "$tree/proc" || mount -t proc proc "$tree/proc"
unpack
[ -z "$(in_tree dpkg --audit)" ] || fail "the package is not installed whole"
[ -z "$(in_tree dpkg --verify vendel)" ] || fail "installed files differ from the package's"

echo "Starting the till in it"
in_tree useradd --create-home shop
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -dpi 96 >"$work/xvfb.log" 2>&1 &
display=$!
until [ -s "$work/display" ]; do
    kill -0 "$display" || fail "Xvfb did not start"
    sleep 0.05
done
DISPLAY=:$(cat "$work/display")
export DISPLAY
as_shop=(chroot --userspec=shop:shop "$tree" env -i HOME=/home/shop PATH=/usr/bin:/bin
    LC_ALL=C.UTF-8 DISPLAY="$DISPLAY")
"${as_shop[@]}" vendel >"$work/till.log" 2>&1 &
till=$!
data=$tree/home/shop/.local/share/vendel
# shows PROCESS LOG WHAT SEARCH...: waits until the process, or one of its own, shows such a window.
shows() {
    local process=$1 log=$2 what=$3 deadline=$((SECONDS + 60))
    shift 3
    until xdotool search --onlyvisible "$@" >/dev/null 2>&1; do
        if ! kill -0 "$process" 2>/dev/null || [ $SECONDS -ge $deadline ]; then
            cat "$log"
            fail "$what shows no window"
        fi
        sleep 0.1
    done
}
shows "$till" "$work/till.log" "the till" --name '^Vendel$'
[ "$(sqlite3 -readonly "$data/Vendel.db" 'select count(*) from Config')" = 2 ] \
    || fail "the till made no database"
for file in EnteteFormulaire.dat PiedFormulaire.dat Vendel.png AproposdeImage.png; do
    [ -e "$data/$file" ] || fail "the data directory lacks $file"
done
! grep -i -e 'could not' -e 'cannot' "$work/till.log" || fail "the till complained"
"${as_shop[@]}" vendel 2>"$work/second.log" &
second=$!
shows "$second" "$work/second.log" "the second till" --class vendel-dialogue
xdotool search --onlyvisible --class vendel-dialogue windowfocus --sync
xdotool key Return
timeout 60 tail --pid="$second" -f /dev/null || fail "the box of the second till stays"
! wait "$second" || fail "a second till started"
second=
grep -q 'déjà ouverte' "$work/second.log" || fail "the second till said something else"
[ "$("${as_shop[@]}" env -u DISPLAY vendel --guide 2>/dev/null)" = /usr/share/doc/vendel/guide.fr.html ] \
    || fail "the guide is not there"

echo "Looking at its sales"
"${as_shop[@]}" env -u DISPLAY vendel-gestion --ventes --du 2026-01-01 --au 2026-01-31 --csv - \
    >"$work/sales.csv" || fail "the back office reads no sales"
[ "$(wc -l <"$work/sales.csv")" = 32 ] || fail "the back office wrote something else"
"${as_shop[@]}" vendel-gestion >"$work/gestion.log" 2>&1 &
second=$!
shows "$second" "$work/gestion.log" "the back office" --name '^Vendel – Gestion$'
kill "$second"
wait "$second" || true
second=

echo "Closing it and putting its copy back"
kill "$till"
wait "$till" || true
till=
copy=$("${as_shop[@]}" env -u DISPLAY vendel --restaurer </dev/null | head -n 1 | cut -f 1)
[ -n "$copy" ] || fail "closing the till left no copy"
"${as_shop[@]}" env -u DISPLAY vendel --restaurer "$copy" >"$work/restored.log" 2>&1 \
    || { cat "$work/restored.log" && fail "the copy could not be put back"; }
grep -q 'est remise en place' "$work/restored.log" || fail "restoring said something else"

echo "Sending from it"
[ ! -e "$tree/usr/bin/vendel-central" ] || fail "the till's package has what only several tills need"
fetch "$central"
unpack
[ -z "$(in_tree dpkg --verify vendel-central)" ] || fail "installed files differ from the package's"
status=0
"${as_shop[@]}" vendel-central --envoyer postgresql://shop@localhost:1/ventes \
    >"$work/sent.log" 2>&1 || status=$?
# The till was read, and nobody answers.
if [ $status -ne 3 ] || ! grep -q 'pas de serveur' "$work/sent.log"; then
    cat "$work/sent.log"
    fail "sending ended otherwise: $status"
fi
[ "$(stat -c %a "$data/.identite")" = 600 ] || fail "the till has no identity of its own"

echo "Removing them"
in_tree dpkg --purge vendel-central vendel >"$work/purge.log" 2>&1 || fail "the package could not be removed"
left=$(find "$tree/usr" "$tree/etc" "$tree/lib" -xdev -name '*vendel*')
[ -z "$left" ] || fail "the package left $left"
[ -s "$data/Vendel.db" ] || fail "the shop's data went with the package"
echo "The packages install, run and go"
