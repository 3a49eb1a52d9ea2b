# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The sales history: a day's sales, their total, and a purge, first refused and then granted.

# The window is laid out by itself, so that the keyboard goes from field to button.
title_of[FormVendelHistorique]="Vendel Historique"
yellow_rows() {
    import -window root -depth 8 rgb:- | convert -size 1366x768 -depth 8 rgb:- -fill black \
        +opaque yellow -fill white -opaque yellow -format '%[fx:mean > 0]' info: | grep -qx 1
}

start_till "$(new_shop history)"
await_window FormVendelStart
dismiss_splash
point_at FormVendel 25 -10
xdotool click 1 key Up Return
await_window FormVendelHistorique
await "the keyboard" has_keyboard FormVendelHistorique

busiest=$(ask "select substr(date_heure, 1, 10) from Historique group by 1
    order by count(*) desc, 1 limit 1")
day=$(ask "select strftime('%m/%d/%Y', '$busiest')")
next_day=$(ask "select strftime('%m/%d/%Y', '$busiest', '+1 day')")
sales_of_the_day="select count(*) from Historique where date(date_heure) = '$busiest'"
sold=$(ask "select count(*) from Historique")
sold_on_the_day=$(ask "$sales_of_the_day")

xdotool type "$day"
xdotool key Tab
xdotool type "$day"
xdotool key Tab Tab Tab space Tab space
answer "Valide date" Return
xdotool key shift+Tab shift+Tab shift+Tab shift+Tab ctrl+a
xdotool type "$next_day"
xdotool key Tab Tab Tab Tab space
picture day FormVendelHistorique
xdotool key Tab space
await "the total" yellow_rows
picture day-total FormVendelHistorique

xdotool key Tab space
await_window Purger
picture purge FormVendelHistorique
answer Purger Escape
expect "sales after the refused purge" "$(ask "select count(*) from Historique")" "$sold"
xdotool key space
answer Purger Return
answer Historique Return
expect "sales of the purged day" "$(ask "$sales_of_the_day")" 0
expect "sales of the other days" "$(ask "select count(*) from Historique")" \
    $((sold - sold_on_the_day))
picture purged FormVendelHistorique
stop_till
