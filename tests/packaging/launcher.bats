#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The launcher: data directory, lock, language, options.
# shellcheck disable=SC2154,SC2016,SC2030,SC2031

load support

setup_file() {
    install_tree "$BATS_FILE_TMPDIR/tree"
}

setup() {
    set_up_till
}

@test "the first start makes the data directory and runs the till in it" {
    run "$launcher"
    [ "$status" -eq 0 ]
    [ -z "$output" ]
    [ -f "$data/EnteteFormulaire.dat" ]
    [ ! -s "$data/EnteteFormulaire.dat" ]
    [ -f "$data/PiedFormulaire.dat" ]
    [ ! -s "$data/PiedFormulaire.dat" ]
    cmp "$data/Vendel.png" "$BATS_FILE_TMPDIR/tree/share/vendel/Vendel.png"
    cmp "$data/AproposdeImage.png" "$BATS_FILE_TMPDIR/tree/share/vendel/AproposdeImage.png"
    [ "$(cat "$TILL_LOG")" = "$data
0 arguments" ]
}

@test "a new data directory is its user's alone" {
    "$launcher"
    [ "$(stat -c %a "$data")" = 700 ]
}

@test "what the till writes is its user's alone" {
    TILL_DOES='touch made' "$launcher"
    [ "$(stat -c %a "$data/made")" = 600 ]
    [ "$(stat -c %a "$data/EnteteFormulaire.dat" "$data/Vendel.png" "$data/.verrou" | sort -u)" = 600 ]
}

@test "what others may read is closed to them at the next start" {
    "$launcher"
    chmod 755 "$data"
    chmod 644 "$data/Vendel.png"
    "$launcher"
    [ "$(stat -c %a "$data")" = 700 ]
    [ "$(stat -c %a "$data/Vendel.png")" = 600 ]
}

@test "a till that crashes starts again, and a second time within a minute not" {
    TILL_DOES='kill -SEGV $$' run "$launcher"
    [ "$status" -eq 139 ]
    [ "$output" = "La caisse s'est arrêtée d'elle-même (signal 11) ; elle redémarre.
La caisse s'est arrêtée deux fois d'elle-même en une minute (signal 11) ; ce qu'elle a dit est dans « $data/vendel.log »." ]
    [ "$(grep -c arguments "$TILL_LOG")" -eq 2 ]
}

@test "what the till says goes on to the launcher's output and into the log" {
    TILL_DOES='echo out; echo error >&2' run "$launcher"
    [ "$(sort <<<"$output")" = "error
out" ]
    [ "$(cut -d ' ' -f 3 "$data/vendel.log" | sort)" = "error
out" ]
}

@test "ending the launcher ends the till" {
    open_till
    program=$(pgrep -P "$till")
    kill -TERM "$till"
    status=0
    wait "$till" || status=$?
    [ "$status" -eq 143 ]
    ! kill -0 "$program" 2>/dev/null || return 1
    [ "$(grep -c arguments "$TILL_LOG")" -eq 1 ]
}

@test "XDG_DATA_HOME moves the data directory" {
    XDG_DATA_HOME="$BATS_TEST_TMPDIR/l'été à \"Nice\"" "$launcher"
    [ "$(head -n 1 "$TILL_LOG")" = "$BATS_TEST_TMPDIR/l'été à \"Nice\"/vendel" ]
}

@test "a relative XDG_DATA_HOME is not followed" {
    XDG_DATA_HOME=somewhere "$launcher"
    [ "$(head -n 1 "$TILL_LOG")" = "$data" ]
}

@test "without a home it says so" {
    run env -u HOME "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Aucun dossier personnel n'est connu pour les données de la caisse." ]
    [ ! -s "$TILL_LOG" ]
}

@test "what is in the data directory stays as it is" {
    mkdir -p "$data"
    echo 'titre:Chez Paul' >"$data/EnteteFormulaire.dat"
    ln -s /nowhere/footer "$data/PiedFormulaire.dat"
    echo icon >"$data/Vendel.png"
    "$launcher"
    [ "$(cat "$data/EnteteFormulaire.dat")" = 'titre:Chez Paul' ]
    [ "$(readlink "$data/PiedFormulaire.dat")" = /nowhere/footer ]
    [ "$(cat "$data/Vendel.png")" = icon ]
}

@test "the till's exit status is the launcher's" {
    TILL_DOES='exit 42' run "$launcher"
    [ "$status" -eq 42 ]
}

@test "a link to the launcher finds the till" {
    ln -s "$installed" "$BATS_TEST_TMPDIR/caisse"
    "$BATS_TEST_TMPDIR/caisse"
    [ "$(head -n 1 "$TILL_LOG")" = "$data" ]
}

@test "a second till on the same data is refused" {
    open_till
    run "$launcher"
    close_till
    [ "$status" -eq 1 ]
    [ "$output" = "La caisse est déjà ouverte sur les données de « $data »." ]
    [ "$(grep -c arguments "$TILL_LOG")" -eq 1 ]
}

@test "a till that was killed leaves no lock" {
    open_till
    kill_till
    "$launcher"
    [ "$(grep -c arguments "$TILL_LOG")" -eq 2 ]
}

@test "a till on other data is not refused" {
    open_till
    XDG_DATA_HOME="$BATS_TEST_TMPDIR/other" run "$launcher"
    close_till
    [ "$status" -eq 0 ]
}

@test "a data directory that cannot be made is said" {
    mkdir -p "$HOME/.local"
    chmod a-w "$HOME/.local"
    run as_user "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (il ne peut pas être créé) ; les copies de la base sont dans « $data/copies »." ]
}

@test "a file in place of the data directory is said" {
    mkdir -p "$HOME/.local/share"
    touch "$data"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (ce n'est pas un dossier) ; les copies de la base sont dans « $data/copies »." ]
}

@test "a data directory without write permission is said" {
    mkdir -p "$data"
    chmod a-w "$data"
    run as_user "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (rien ne peut y être écrit) ; les copies de la base sont dans « $data/copies »." ]
    [ ! -s "$TILL_LOG" ]
}

@test "a data directory without read permission is said" {
    mkdir -p "$data"
    chmod a-rx "$data"
    run as_user "$launcher"
    chmod a+rx "$data"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (il ne peut pas être lu) ; les copies de la base sont dans « $data/copies »." ]
}

@test "a picture that does not fit on the disk is said and not left in part" {
    run sh -c 'trap "" XFSZ; ulimit -f 1; exec "$0"' "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (« Vendel.png » ne peut pas y être écrit) ; les copies de la base sont dans « $data/copies »." ]
    [ "$(ls -A "$data")" = ".verrou
EnteteFormulaire.dat
PiedFormulaire.dat" ]
}

@test "French leaves no translation in the data directory" {
    "$launcher"
    [ ! -e "$data/FormVendelTr_Us.qm" ]
}

@test "English is put where the till looks for it, and remembered" {
    "$launcher" --langue en
    cmp "$data/FormVendelTr_Us.qm" "$BATS_FILE_TMPDIR/tree/share/vendel/FormVendelTr_Us.qm"
    "$launcher"
    [ -e "$data/FormVendelTr_Us.qm" ]
    [ "$(grep -c '^0 arguments' "$TILL_LOG")" -eq 2 ]
}

@test "French again takes the translation away, for later starts too" {
    "$launcher" --langue en
    "$launcher" --langue fr
    [ ! -L "$data/FormVendelTr_Us.qm" ]
    "$launcher"
    [ ! -L "$data/FormVendelTr_Us.qm" ]
}

@test "English finds its translation again when the till has moved" {
    "$launcher" --langue en
    ln -sfn /gone/FormVendelTr_Us.qm "$data/FormVendelTr_Us.qm"
    "$launcher"
    [ -e "$data/FormVendelTr_Us.qm" ]
}

@test "the shop's own translation stays at plain starts" {
    mkdir -p "$data"
    echo own >"$data/FormVendelTr_Us.qm"
    "$launcher"
    [ "$(cat "$data/FormVendelTr_Us.qm")" = own ]
}

@test "an asked language moves the shop's own translation aside" {
    mkdir -p "$data"
    echo own >"$data/FormVendelTr_Us.qm"
    "$launcher" --langue en
    [ -L "$data/FormVendelTr_Us.qm" ]
    [ "$(cat "$data/FormVendelTr_Us.qm.2026-03-05-140731")" = own ]
}

@test "the shop's own translation is not lost when it cannot be moved aside" {
    mkdir -p "$data"
    echo own >"$data/FormVendelTr_Us.qm"
    echo earlier >"$data/FormVendelTr_Us.qm.2026-03-05-140731"
    "$launcher" --langue fr
    [ "$(cat "$data/FormVendelTr_Us.qm")" = own ]
    [ "$(cat "$data/FormVendelTr_Us.qm.2026-03-05-140731")" = earlier ]
}

@test "a translation that is not installed is said and the till starts" {
    cp -a "$BATS_FILE_TMPDIR/tree" "$BATS_TEST_TMPDIR/tree"
    rm "$BATS_TEST_TMPDIR/tree/share/vendel/FormVendelTr_Us.qm"
    run "$BATS_TEST_TMPDIR/tree/bin/vendel" --langue en
    [ "$status" -eq 0 ]
    [ "$output" = 'The English translation is not installed.' ]
    [ -s "$TILL_LOG" ]
}

@test "in English the launcher speaks English" {
    open_till --langue en
    run "$launcher"
    close_till
    [ "$output" = "The till is already open on the data in \"$data\"." ]
}

@test "a size is given to the till and remembered, until it is the session's again" {
    export TILL_DOES='echo "factor ${QT_SCALE_FACTOR-none}"'
    run "$launcher" --taille 150
    [ "$output" = 'factor 1.50' ]
    run "$launcher"
    [ "$output" = 'factor 1.50' ]
    [ "$(stat -c %a "$data/taille")" = 600 ]
    run "$launcher" --taille auto
    [ "$output" = 'factor none' ]
    QT_SCALE_FACTOR=2 run "$launcher"
    [ "$output" = 'factor 2' ]
}

@test "a till as large as the screen starts where there is no screen to measure" {
    export TILL_DOES='echo "factor ${QT_SCALE_FACTOR-none}"'
    run "$launcher" --taille ecran
    [ "$status" -eq 0 ]
    [ "$output" = 'factor none' ]
}

@test "an unknown size shows the usage and starts nothing" {
    for size in 90 301 abc ''; do
        run "$launcher" --taille "$size"
        [ "$status" -eq 2 ]
        [ "${lines[0]}" = 'Usage : vendel [--langue en|fr] [--taille TAILLE]' ]
    done
    run "$launcher" --taille
    [ "$status" -eq 2 ]
    [ ! -e "$data" ]
    [ ! -s "$TILL_LOG" ]
}

@test "an unknown language shows the usage and starts nothing" {
    run "$launcher" --langue de
    [ "$status" -eq 2 ]
    [ "${lines[0]}" = 'Usage : vendel [--langue en|fr] [--taille TAILLE]' ]
    [ ! -e "$data" ]
    [ ! -s "$TILL_LOG" ]
}

@test "a wrong option is answered in the till's language" {
    "$launcher" --langue en
    run "$launcher" --langue de
    [ "$status" -eq 2 ]
    [ "${lines[0]}" = 'Usage: vendel [--langue en|fr] [--taille SIZE]' ]
}

@test "a language that is left out shows the usage" {
    run "$launcher" --langue
    [ "$status" -eq 2 ]
}

@test "an unknown option shows the usage and starts nothing" {
    run "$launcher" --platform offscreen
    [ "$status" -eq 2 ]
    [ ! -s "$TILL_LOG" ]
}

@test "help and version start nothing and make nothing" {
    run "$launcher" --aide
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = 'Usage : vendel [--langue en|fr] [--taille TAILLE]' ]
    run "$launcher" --langue en --help
    [ "$status" -eq 0 ]
    [ "${lines[0]}" = 'Usage: vendel [--langue en|fr] [--taille SIZE]' ]
    run "$launcher" --version
    [ "$output" = 'Vendel 1.0.0' ]
    [ ! -e "$data" ]
    [ ! -s "$TILL_LOG" ]
}

@test "the help names the data directory that is used" {
    XDG_DATA_HOME=somewhere run "$launcher" --aide
    [[ "$output" == *"Démarre la caisse dans « $data »."* ]]
    XDG_DATA_HOME=/srv/shop run "$launcher" --unknown
    [[ "$output" == *"Démarre la caisse dans « /srv/shop/vendel »."* ]]
    run env -u HOME "$launcher" --langue en --help
    [[ "$output" == *'Starts the till in "~/.local/share/vendel".'* ]]
}

@test "a missing program is said" {
    cp -a "$BATS_FILE_TMPDIR/tree" "$BATS_TEST_TMPDIR/tree"
    rm "$(find "$BATS_TEST_TMPDIR/tree" -path '*/vendel/vendel')"
    run "$BATS_TEST_TMPDIR/tree/bin/vendel"
    [ "$status" -eq 1 ]
    [[ "$output" == 'Le programme « '*'/vendel/vendel » manque : Vendel est à réinstaller.' ]]
}

@test "a FIFO that the till would wait for is said" {
    mkdir -p "$data"
    mkfifo "$data/PiedFormulaire.dat"
    run "$launcher"
    [ "$status" -eq 1 ]
    [ "$output" = "Le dossier de données « $data » est inutilisable (« PiedFormulaire.dat » n'est pas un fichier) ; les copies de la base sont dans « $data/copies »." ]
    [ ! -s "$TILL_LOG" ]
}

@test "a till started without an input has one" {
    TILL_DOES='[ -e /proc/self/fd/0 ] && echo input' run sh -c 'exec "$0" <&-' "$launcher"
    [ "$output" = input ]
}
