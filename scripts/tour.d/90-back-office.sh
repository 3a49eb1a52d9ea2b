# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The owner's evening: last year's pages in the back office, and a day's closing.

start_display 1366x768 "0,0 0,0"
start_gestion "$(new_shop gestion 730)"
year=$(($(date +%Y) - 1))

pick MainWindow period "L'année dernière"
await_text MainWindow subtitle "Année $year"
takings=$(ask "select printf('%.2f', sum(prix)) from Historique where date_heure like '$year%'")
# digits WORDS: without blanks, units and marks.
digits() { tr -cd 0-9 <<<"$1"; }
shows_takings() {
    local value
    while IFS= read -r value; do
        [ "$(digits "$value")" != "$(digits "$takings")" ] || return 0
    done < <(awk -F '\t' '$1 == "widget" && $3 == "value" { print $5 }' "$work/eye")
    return 1
}
await "the year's takings, $takings" shows_takings
picture gestion-ventes

# page NUMBER TITLE PICTURE
page() {
    xdotool key "ctrl+$1"
    await "the page $2" page_shows "$2"
    picture "$3"
}
page_shows() { awk -F '\t' -v title="$1" '$1 == "widget" && $3 == "title" && $5 == title { found = 1 }
    END { exit !found }' "$work/eye"; }
page 2 Articles gestion-articles
page 3 Heures gestion-heures
page 4 Consommation gestion-consommation
pick MainWindow period Hier
page 5 Clôture gestion-cloture

# A supplier's price list, with lines that an import does not take.
printf '%s\n' 'Article;Prix' 'Café;1,60' 'Plat du jour;14,50' 'Thé à la menthe;3,20' \
    'Jus de poire;3,80' 'Salade de chèvre chaud;9,80' 'Kir;offert' >"$work/prix.csv"
choose MainWindow Menu "Importer le menu…"
await_window ImportDialog
press ImportDialog choose
await_window QFileDialog
fill QFileDialog fileNameEdit "$work/prix.csv"
xdotool key Return
await_no_window QFileDialog
await_text ImportDialog counts \
    "1 nouvelle · 2 nouveaux prix · 1 inchangée · 2 refusées, qui restent de côté"
picture gestion-import
press ImportDialog start
await_rows "the imported price" "select count(*) from Article where article = 'Jus de poire'" 1
await_text ImportDialog cancel Fermer
stop_till
