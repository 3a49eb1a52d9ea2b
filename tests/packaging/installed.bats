#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# What is installed, where, and whether the tools that read it are content.
# shellcheck disable=SC2154,SC2030,SC2031

load support

setup_file() {
    cmake --install "$VENDEL_BUILD" --prefix "$BATS_FILE_TMPDIR/tree" >/dev/null
}

setup() {
    tree=$BATS_FILE_TMPDIR/tree
}

# size FILE: pixels of a PNG, from its header.
size() {
    od -An -tu1 -j16 -N8 "$1" | awk '{ print $3 * 256 + $4, $7 * 256 + $8 }'
}

@test "every file has its place" {
    run bash -c 'cd "$0" && find . -type f | LC_ALL=C sort' "$tree"
    lib=$(cd "$tree" && dirname "$(find . -path '*/vendel/vendel')")
    [ "$output" = "$(LC_ALL=C sort <<FILES
./bin/vendel
./bin/vendel-gestion
./bin/vendel-central
$lib/vendel
$lib/vendel-dialogue
./lib/udev/rules.d/60-vendel.rules
./share/applications/vendel-gestion.desktop
./share/applications/vendel.desktop
./share/doc/vendel/guide.fr.html
./share/doc/vendel/images/about.png
./share/doc/vendel/images/article-removal.png
./share/doc/vendel/images/article-search.png
./share/doc/vendel/images/articles.png
./share/doc/vendel/images/consumption.png
./share/doc/vendel/images/correction.png
./share/doc/vendel/images/duplicate.png
./share/doc/vendel/images/empty-menu.png
./share/doc/vendel/images/first-start.png
./share/doc/vendel/images/gestion-articles.png
./share/doc/vendel/images/gestion-cloture.png
./share/doc/vendel/images/gestion-heures.png
./share/doc/vendel/images/gestion-import.png
./share/doc/vendel/images/gestion-ventes.png
./share/doc/vendel/images/header.png
./share/doc/vendel/images/history-total.png
./share/doc/vendel/images/history.png
./share/doc/vendel/images/no-printer.png
./share/doc/vendel/images/printer-on.png
./share/doc/vendel/images/purge.png
./share/doc/vendel/images/receipt-on-screen.png
./share/doc/vendel/images/receipt.png
./share/doc/vendel/images/recipe-move.png
./share/doc/vendel/images/recipe.png
./share/doc/vendel/images/sale.png
./share/doc/vendel/images/settings.png
./share/doc/vendel/images/small-screen.png
./share/doc/vendel/images/stock-update.png
./share/doc/vendel/images/stock.png
./share/doc/vendel/images/total-without-tax.png
./share/doc/vendel/images/total.png
./share/icons/hicolor/128x128/apps/vendel-gestion.png
./share/icons/hicolor/128x128/apps/vendel.png
./share/icons/hicolor/16x16/apps/vendel-gestion.png
./share/icons/hicolor/16x16/apps/vendel.png
./share/icons/hicolor/22x22/apps/vendel-gestion.png
./share/icons/hicolor/22x22/apps/vendel.png
./share/icons/hicolor/24x24/apps/vendel-gestion.png
./share/icons/hicolor/24x24/apps/vendel.png
./share/icons/hicolor/256x256/apps/vendel-gestion.png
./share/icons/hicolor/256x256/apps/vendel.png
./share/icons/hicolor/32x32/apps/vendel-gestion.png
./share/icons/hicolor/32x32/apps/vendel.png
./share/icons/hicolor/48x48/apps/vendel-gestion.png
./share/icons/hicolor/48x48/apps/vendel.png
./share/icons/hicolor/64x64/apps/vendel-gestion.png
./share/icons/hicolor/64x64/apps/vendel.png
./share/icons/hicolor/scalable/apps/vendel-gestion.svg
./share/icons/hicolor/scalable/apps/vendel.svg
./share/man/fr/man1/vendel-gestion.1.gz
./share/man/fr/man1/vendel.1.gz
./share/man/man1/vendel-gestion.1.gz
./share/man/fr/man1/vendel-central.1.gz
./share/man/man1/vendel-central.1.gz
./share/man/man1/vendel.1.gz
./share/metainfo/io.vendel.vendel.metainfo.xml
./share/vendel/AproposdeImage.png
./share/vendel/FormVendelTr_Us.qm
./share/vendel/Vendel.png
FILES
    )" ]
    [[ "$lib" == ./lib*/vendel ]]
}

@test "icons and pictures have their sizes" {
    for icon in "$tree"/share/icons/hicolor/*/apps/vendel*.png; do
        side=$(basename "$(dirname "$(dirname "$icon")")")
        [ "$(size "$icon")" = "${side%x*} ${side#*x}" ]
    done
    [ "$(size "$tree/share/vendel/Vendel.png")" = '256 256' ]
    [ "$(size "$tree/share/vendel/AproposdeImage.png")" = '132 256' ]
}

@test "desktop-file-validate is content" {
    run desktop-file-validate "$tree"/share/applications/*.desktop
    [ "$status" -eq 0 ]
    [ -z "$output" ]
}

@test "every name and comment of the desktop entries is there in French and English" {
    for entry in "$tree"/share/applications/*.desktop; do
        for key in Name GenericName Comment Keywords; do
            count=$(grep -c "^$key=" "$entry")
            [ "$count" -ge 1 ]
            [ "$(grep -c "^$key\[en\]=" "$entry")" -eq "$count" ]
            [ "$(grep -c "^$key\[fr\]=" "$entry")" -eq "$count" ]
        done
    done
}

@test "the desktop entries call the programs with options that they know" {
    export HOME=$BATS_TEST_TMPDIR
    while read -r -a command; do
        run "$tree/bin/${command[0]}" "${command[@]:1}" --version
        [ "$status" -eq 0 ]
    done < <(sed -n 's/^Exec=//p' "$tree"/share/applications/*.desktop)
}

@test "appstreamcli is content" {
    run appstreamcli validate --no-net --pedantic "$tree/share/metainfo/io.vendel.vendel.metainfo.xml"
    [ "$status" -eq 0 ]
    [[ "$output" != *:*:* ]]
}

@test "the metainfo names the version that is built" {
    grep -q "<release version=\"$("$tree/bin/vendel" --version | cut -d ' ' -f 2)\"" \
        "$tree/share/metainfo/io.vendel.vendel.metainfo.xml"
}

@test "man is content with all pages" {
    for page in "$tree"/share/man/{man1,fr/man1}/*.1.gz; do
        MANROFFSEQ='' MANWIDTH=80 run man --warnings -E UTF-8 -l -Tutf8 -Z "$page"
        [ "$status" -eq 0 ]
        [ -z "$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" \
            2>&1 >/dev/null)" ]
    done
}

@test "each option of vendel-central is in both its man pages" {
    for page in man1 fr/man1; do
        text=$(man -E UTF-8 -l "$tree/share/man/$page/vendel-central.1.gz")
        for option in --preparer --envoyer --suivre --reprendre --dossier --nom --langue --help --aide --version; do
            grep -q -e "$option" <<<"$text"
        done
    done
}

@test "each option of the back office is in both man pages, and in its help" {
    export HOME=$BATS_TEST_TMPDIR
    help=$("$tree/bin/vendel-gestion" --help)
    for page in man1 fr/man1; do
        text=$(man -E UTF-8 -l "$tree/share/man/$page/vendel-gestion.1.gz")
        for option in --dossier --central --caisse --langue --ventes --articles --heures --consommation --cloture --du --au \
            --taux --csv-format --csv --pdf --png --aide --version; do
            grep -q -e "$option" <<<"$text"
            grep -q -e "$option" <<<"$help"
        done
    done
}

@test "only the back office has Qt Charts, whose licence is another" {
    for program in "$tree/bin/vendel" "$tree"/lib*/vendel/vendel{,-dialogue} \
        "$tree"/lib/*/vendel/vendel{,-dialogue}; do
        [ ! -e "$program" ] || ! ldd "$program" | grep -q Charts
    done
    ldd "$tree/bin/vendel-gestion" | grep -q Charts
}

@test "each option of the launcher is in both man pages" {
    for page in man1 fr/man1; do
        text=$(man -E UTF-8 -l "$tree/share/man/$page/vendel.1.gz")
        for option in --langue --taille --restaurer --copies-vers --central --etat --help --aide --guide --version; do
            grep -q -e "$option" <<<"$text"
        done
    done
}

@test "the udev rule comes before the one that reads its tag" {
    rule=$(basename "$tree"/lib/udev/rules.d/*.rules)
    [ "${rule%%-*}" -lt 73 ]
}

@test "the udev rule gives the printer, and only the printer, to the seat's user" {
    rules=$(grep -v '^#' "$tree/lib/udev/rules.d/60-vendel.rules")
    [ "$(grep -c uaccess <<<"$rules")" -eq 1 ]
    rule=$(grep uaccess <<<"$rules")
    [[ "$rule" == *'SUBSYSTEM=="usb"'* ]]
    [[ "$rule" == *'ENV{DEVTYPE}=="usb_device"'* ]]
    [[ "$rule" == *'ATTR{idVendor}=="04b8"'* ]]
    [[ "$rule" == *'ATTR{idProduct}=="0e15"'* ]]
    [[ "$rule" == *'TAG+="uaccess"' ]]
}

@test "every udev rule is a list of keys, and every jump has its label" {
    rules=$(grep -v '^#' "$tree/lib/udev/rules.d/60-vendel.rules")
    item='[A-Z]+(\{[A-Za-z_/]+\})?(==|!=|=|\+=|:=)"[^"]*"'
    run grep -Evx "$item(, $item)*" <<<"$rules"
    [ -z "$output" ]
    while read -r label; do
        grep -qx "LABEL=\"$label\"" <<<"$rules"
    done < <(sed -n 's/.*GOTO="\([^"]*\)".*/\1/p' <<<"$rules")
}

@test "udevadm is content with the rule" {
    udevadm verify --help >/dev/null 2>&1 || skip "this udevadm verifies no rules"
    udevadm verify --resolve-names=never "$tree/lib/udev/rules.d/60-vendel.rules"
}

@test "the till itself starts from the installed tree and makes its database" {
    export HOME=$BATS_TEST_TMPDIR QT_QPA_PLATFORM=offscreen
    unset DISPLAY WAYLAND_DISPLAY XDG_DATA_HOME
    data=$HOME/.local/share/vendel
    "$tree/bin/vendel" 3>&- &
    till=$!
    until [ "$(sqlite3 -readonly "$data/Vendel.db" 'select count(*) from Config' 2>/dev/null)" = 2 ]; do
        kill -0 "$till"
        sleep 0.05
    done
    run "$tree/bin/vendel"
    kill "$till"
    [ "$output" = "La caisse est déjà ouverte sur les données de « $data »." ]
}

@test "the built tree's launcher starts the built till" {
    grep -qF ../vendel "$VENDEL_BUILD/packaging/vendel"
    [ -x "$VENDEL_BUILD/vendel" ]
    HOME=$BATS_TEST_TMPDIR run "$VENDEL_BUILD/packaging/vendel" --version
    [ "$output" = 'Vendel 1.0.0' ]
}
