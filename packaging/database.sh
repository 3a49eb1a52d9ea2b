# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Checks the database and makes its daily copy; runs in the data directory.
# shellcheck disable=SC2154

# sqlite FILE STATEMENT: runs one statement or dot command of SQLite's shell.
sqlite() {
    sqlite3 -batch -bail -init /dev/null -cmd '.timeout 2000' "$1" "$2"
}

# ask STATEMENT: sets "answer" to its result; exits the launcher on an error.
ask() {
    answer=$(sqlite "$database" "$1" 2>&1) || explainDatabase "$answer"
}

# Counts the till's six tables.
tillTables="select count(*) from sqlite_master where type = 'table' and name in
    ('Article', 'ArticleStock', 'Historique', 'DoseStock', 'Config', 'Ticket')"

# holdsRows: whether any table has a row that is not left by a first start interrupted before its last
# setting.
holdsRows() {
    ask "select group_concat(case name
        when 'Config' then 'select * from (select 1 from Config
            where not (param = ''TVA'' and valeur = 0) limit 1)'
        else 'select * from (select 1 from \"' || replace(name, '\"', '\"\"') || '\" limit 1)'
        end, ' union all ')
        from sqlite_master where type = 'table' and name not like 'sqlite~_%' escape '~'"
    [ -n "$answer" ] || return 1
    ask "$answer"
    [ -n "$answer" ]
}

# checkDatabase: says why a database cannot be used; sets aside one that a first start did not
# finish, so that the program makes a new one.
checkDatabase() {
    if [ ! -e "$database" ] && [ ! -L "$database" ]; then
        return
    fi
    if [ ! -f "$database" ]; then
        databaseUnusable "ce n'est pas un fichier" "it is not a file"
    fi
    if [ ! -r "$database" ] || [ ! -w "$database" ]; then
        databaseUnusable "elle ne peut pas être lue et écrite" "it cannot be read and written"
    fi
    ask "$tillTables"
    tables=$answer
    if ! holdsRows; then
        setAsideUnfinished
    elif [ "$tables" != 6 ]; then
        databaseUnusable "il lui manque des tables" "it lacks tables"
    fi
}

# nameKept KIND: an unused name among the copies, with the present time and this kind.
nameKept() {
    keptName=$copies/Vendel-$1-$(date +%F-%H%M%S)
    count=
    while [ -e "$keptName$count.db" ]; do
        count=$((${count:--1} - 1))
    done
    keptName=$keptName$count.db
}

setAsideUnfinished() {
    nameKept inachevee
    unfinished=$keptName
    if ! mkdir -p "$copies" 2>/dev/null || ! mv "$database" "$unfinished" 2>/dev/null; then
        dataUnusable "rien ne peut y être déplacé" "nothing can be moved there"
    fi
    note "$(text "Une base de données inachevée et vide est mise de côté : « $data/$unfinished »." \
        "An unfinished, empty database is set aside: \"$data/$unfinished\".")"
}

# keepCopy: today's copy, made by SQLite itself so that it is consistent, and kept only if it passes.
keepCopy() {
    copy=$copies/Vendel-$(date +%F).db
    if [ ! -e "$database" ] || [ -e "$copy" ]; then
        return
    fi
    part=$copies/.Vendel.neuf
    answer=
    found=
    if mkdir -p "$copies" 2>/dev/null && rm -f "$part" "$part-journal" &&
        answer=$(sqlite "$database" ".backup main $part" 2>&1) &&
        found=$(sqlite "$part" 'pragma integrity_check' 2>&1) &&
        [ "$found" = ok ] && sync "$part" && mv "$part" "$copy"; then
        pruneCopies
        return
    fi
    rm -f "$part" "$part-journal"
    # A copy fails for many reasons: only what the check finds, or SQLite calls damaged, is damage.
    case $answer$found in
    *malformed* | *'not a database'*) explainDatabase malformed ;;
    '' | ok | *[Ee]rror*) ;;
    *) explainDatabase malformed ;;
    esac
    warn "$(text "La copie du jour de la base n'a pas pu être faite dans « $data/$copies »." \
        "Today's copy of the database could not be made in \"$data/$copies\".")"
}

pruneCopies() {
    set -- "$copies"/Vendel-[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9].db
    while [ $# -gt "$copiesKept" ]; do
        rm -f "$1"
        shift
    done
}
