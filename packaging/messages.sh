# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# The launcher's messages in the till's language; uses data, database, copies and language.
# shellcheck disable=SC2154

# text FRENCH ENGLISH: the one in the till's language.
text() {
    if [ "$language" = en ]; then
        printf '%s' "$2"
    else
        printf '%s' "$1"
    fi
}

# useUtf8: dialogs show accents only in a UTF-8 locale.
useUtf8() {
    if [ "$(locale charmap 2>/dev/null)" != UTF-8 ]; then
        export LC_ALL=C.UTF-8
    fi
}

hasDisplay() {
    [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]
}

# inLines: standard input in lines of 64 letters, because no dialog wraps a long path. French blanks next
# to punctuation do not break.
inLines() {
    sed -E 's/« /« /g; s/ ([»;:?])/ \1/g; s/[^ ]{64}/& /g' |
        sed -E 's/.{1,64}( |$)/&\n/g; s/\n$//'
}

# box KIND MESSAGE: shows a dialog (error, warning or info) where there is a display. Nothing that
# the dialog leaves running keeps the lock.
box() {
    hasDisplay || return 0
    (
        exec 9>&-
        useUtf8
        lines=$(printf '%s\n' "$2" | inLines)
        if command -v zenity; then
            zenity "--$1" --no-markup --no-wrap --title=Vendel --text="$lines"
        elif command -v kdialog; then
            case $1 in
            error) kdialog --title Vendel --error "$lines" ;;
            warning) kdialog --title Vendel --sorry "$lines" ;;
            *) kdialog --title Vendel --msgbox "$lines" ;;
            esac
        elif command -v xmessage; then
            xmessage -center -title Vendel -buttons OK -default OK -xrm '*international: true' \
                "$lines"
        fi
    ) >/dev/null 2>&1
    return 0
}

# die: exits; warn: waits for OK; note: stderr only.
die() {
    printf '%s\n' "$1" >&2
    exec 9>&-
    box error "$1"
    exit 1
}

warn() {
    printf '%s\n' "$1" >&2
    box warning "$1"
}

note() {
    printf '%s\n' "$1" >&2
}

usage() {
    # The tilde is shown, not expanded.
    # shellcheck disable=SC2088
    shownData=${data:-'~/.local/share/vendel'}
    text "Usage : vendel [--langue en|fr]
        vendel --restaurer [COPIE]
        vendel --aide | --version

Démarre la caisse dans « $shownData ».

  --langue en|fr       démarre en anglais ou en français et s'en souvient
  --restaurer [COPIE]  montre les copies de la base et en remet une en place
  --aide               montre ce texte
  --version            montre la version
" "Usage: vendel [--langue en|fr]
       vendel --restaurer [COPY]
       vendel --help | --version

Starts the till in \"$shownData\".

  --langue en|fr      starts in English or French and remembers it
  --restaurer [COPY]  shows the copies of the database and puts one back
  --help              shows this text
  --version           shows the version
"
}

badUsage() {
    findData
    readLanguage
    usage >&2
    exit 2
}

dataUnusable() {
    die "$(text "Le dossier de données « $data » est inutilisable ($1) ; les copies de la base sont dans « $data/$copies »." \
        "The data directory \"$data\" cannot be used ($2); the copies of the database are in \"$data/$copies\".")"
}

databaseUnusable() {
    die "$(text "La base de données « $data/$database » est inutilisable ($1) ; les copies sont dans « $data/$copies » et « vendel --restaurer » en remet une en place." \
        "The database \"$data/$database\" cannot be used ($2); the copies are in \"$data/$copies\" and \"vendel --restaurer\" puts one back.")"
}

# explainDatabase ERROR: SQLite's error in a shopkeeper's words.
explainDatabase() {
    case $1 in
    *locked*) databaseUnusable "un autre programme l'occupe" "another program is using it" ;;
    *'not a database'*)
        databaseUnusable "ce n'est pas une base de données" "it is not a database"
        ;;
    *malformed*) databaseUnusable "elle est endommagée" "it is damaged" ;;
    *) databaseUnusable "$1" "$1" ;;
    esac
}
