# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# What a cashier does on the sales screen.

# Blank columns of the two lists, in pixels.
menu_blank=34
ticket_blank=315

# article_row NAME: the newest article's place in the menu, from 0.
article_row() {
    ask "select place from (select article, id, row_number() over (order by article, id) - 1
        as place from Article) where article = $(quoted "$1") order by id desc limit 1"
}

# bring_into_view ROW: turns the wheel until the menu shows the row, and says where it then stands.
bring_into_view() {
    local rows_seen=19 rows_a_notch=3 count notches top
    count=$(ask "select count(*) from Article")
    notches=$((($1 - rows_seen + rows_a_notch) / rows_a_notch))
    [ "$notches" -gt 0 ] || notches=0
    point_at_row FormVendel tableView1 "$menu_blank" 5
    xdotool click --repeat 30 --delay 1 4
    [ "$notches" -eq 0 ] || xdotool click --repeat "$notches" --delay 1 5
    top=$((notches * rows_a_notch))
    [ $top -le $((count - rows_seen)) ] || top=$((count - rows_seen))
    shown_row=$(($1 - top))
}

lines_of() { ask "select count(*) from Ticket where article = $(quoted "$1")"; }

# sell NAME [TIMES]: clicks an article of the menu.
sell() {
    local before times=${2-1}
    before=$(lines_of "$1")
    bring_into_view "$(article_row "$1")"
    point_at_row FormVendel tableView1 "$menu_blank" "$shown_row"
    xdotool click --repeat "$times" --delay 100 1
    await_rows "$1 on the ticket" "select count(*) from Ticket where article = $(quoted "$1")" \
        $((before + times))
}

# show_menu [PICTURE]: "Afficher" tells of the doubled name in the sample shop.
show_menu() {
    press FormVendel btn_Afficher
    answer Doublon Return "${1-}"
}
