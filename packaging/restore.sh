# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Shows the copies of the database and puts one back; runs in the data directory.
# shellcheck disable=SC2154

# listCopies: one line each, the name that --restaurer takes and the size: newest first, replaced
# databases after the daily copies.
listCopies() {
    for kind in '[0-9]' remplacee-; do
        # The pattern must stay unquoted to match.
        # shellcheck disable=SC2231
        for file in "$copies"/Vendel-$kind*.db; do
            [ -f "$file" ] || continue
            name=${file#"$copies"/Vendel-}
            printf '%s\t%s\n' "${name%.db}" "$(du -h --apparent-size "$file" | cut -f 1)"
        done | sort -r
    done
}

# chooseCopy: asks which copy, on the terminal or in a dialog, and sets "wanted".
chooseCopy() {
    question=$(text "Quelle copie de la base remettre en place ?" \
        "Which copy of the database shall be put back?")
    if [ -t 0 ]; then
        listCopies | cat -n
        printf '%s ' "$question"
        read -r number || number=
        case $number in
        *[!0-9]*) ;;
        ?*) wanted=$(listCopies | sed -n "${number}p" | cut -f 1) ;;
        esac
        wanted=${wanted:-$number}
    elif hasDisplay && command -v zenity >/dev/null; then
        wanted=$(
            useUtf8
            listCopies | tr '\t' '\n' | zenity --list --title=Vendel --text="$question" \
                --width=420 --height=360 --column="$(text Copie Copy)" \
                --column="$(text Taille Size)" 9>&- 2>/dev/null
        )
    elif hasDisplay && command -v kdialog >/dev/null; then
        useUtf8
        # A copy's name has no blank: the list splits into the words that kdialog expects.
        # shellcheck disable=SC2046
        wanted=$(kdialog --title Vendel --menu "$question" $(listCopies) 9>&- 2>/dev/null)
    else
        listCopies
        box info "$(listCopies)
vendel --restaurer $(text COPIE COPY)"
    fi
}

# restore: puts a copy back and keeps what it replaces, whose journal must not be applied to the
# restored file.
restore() {
    if [ -z "$(listCopies)" ]; then
        die "$(text "Il n'y a aucune copie de la base dans « $data/$copies »." \
            "There is no copy of the database in \"$data/$copies\".")"
    fi
    [ -n "$wanted" ] || chooseCopy
    [ -n "$wanted" ] || exit 0
    copy=$copies/Vendel-$wanted.db
    if [ ! -f "$copy" ] || [ "$wanted" != "${wanted##*/}" ]; then
        die "$(text "Il n'y a pas de copie « $wanted » dans « $data/$copies »." \
            "There is no copy \"$wanted\" in \"$data/$copies\".")"
    fi
    target=$(readlink -f "$database") ||
        databaseUnusable "ce n'est pas un fichier" "it is not a file"
    part=$target.neuf
    copyDatabase "$copy" "$part" || partUnwritten
    if [ "$(sqlite "$part" 'pragma integrity_check' 2>&1)" != ok ] ||
        [ "$(sqlite "$part" "$tillTables" 2>&1)" != 6 ]; then
        rm -f "$part" "$part-journal"
        die "$(text "La copie « $wanted » est endommagée ; la base n'a pas été changée." \
            "The copy \"$wanted\" is damaged; the database has not been changed.")"
    fi
    sync "$part"
    keepReplaced
    mv -f "$part" "$target" 2>/dev/null || partUnwritten
    done=$(text "La copie « $wanted » est remise en place$kept." "The copy \"$wanted\" is back in place$kept.")
    printf '%s\n' "$done"
    [ -t 0 ] || box info "$done"
    exit 0
}

partUnwritten() {
    rm -f "$part" "$part-journal"
    dataUnusable "rien ne peut y être écrit" "nothing can be written there"
}

# copyDatabase FROM TO: the file and the journal of an interrupted change, without which the file may be
# half changed.
copyDatabase() {
    rm -f "$2-journal"
    if [ -f "$1-journal" ]; then
        cp -p "$1-journal" "$2-journal" 2>/dev/null || return 1
    fi
    cp -p "$1" "$2" 2>/dev/null
}

# keepReplaced: keeps the present database among the copies, whatever it is.
keepReplaced() {
    kept=
    [ -e "$target" ] || return
    nameKept remplacee
    if [ -f "$target" ]; then
        copyDatabase "$target" "$keptName"
    else
        mv "$target" "$keptName" 2>/dev/null
    fi || {
        rm -f "$part" "$keptName" "$keptName-journal"
        dataUnusable "la base à remplacer ne peut pas y être gardée" \
            "the database to be replaced cannot be kept there"
    }
    rm -f "$target-journal"
    kept=$(text " ; la base remplacée est gardée dans « $data/$keptName »" \
        "; the replaced database is kept in \"$data/$keptName\"")
}
