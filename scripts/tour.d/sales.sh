# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# What a cashier does on the sales screen.

# type_amount BUTTON...: presses keypad buttons, by their number in the form.
type_amount() {
    local button
    for button in "$@"; do
        press FormVendel "btn_$button"
    done
}

# scroll_menu_to NAME: turns the wheel until the menu shows the article.
scroll_menu_to() {
    await_row FormVendel tableView1 ""
    has_place row FormVendel tableView1 "$1" && return
    point_at row FormVendel tableView1
    xdotool click --repeat 30 --delay 1 4
    # shellcheck disable=SC2317  # awaited
    scroll_on() {
        has_place row FormVendel tableView1 "$1" || { xdotool click 5 && false; }
    }
    await "$1 in the menu" scroll_on "$1"
}

# sell NAME [TIMES]: clicks an article of the menu.
sell() {
    local before times=${2-1} lines
    lines="select count(*) from Ticket where article = $(quoted "$1")"
    before=$(ask "$lines")
    scroll_menu_to "$1"
    # The wheel may still be turning.
    last_sum=""
    await "a quiet screen" stands_still
    point_at row FormVendel tableView1 "$1"
    xdotool click --repeat "$times" --delay 100 1
    await_rows "$1 on the ticket" "$lines" $((before + times))
}

# show_menu [PICTURE]: "Afficher" reports the duplicate name in the sample shop.
show_menu() {
    press FormVendel btn_Afficher
    answer Doublon OK "${1-}"
}
