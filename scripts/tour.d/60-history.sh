# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A day's sales, their total, and a purge answered No and then Yes.

start_till "$(new_shop history)"
dismiss_splash
choose FormVendel Vendel Historique
await_window FormVendelHistorique
press FormVendelHistorique btn_Show_Date

# day NUMBER: a day with sales as the till writes it, the first being 1.
day() {
    ask "select distinct strftime('%m/%d/%Y', date_heure) from Historique order by date_heure
        limit 1 offset $1 - 1"
}
first_day=$(day 2)
second_day=$(day 3)
press_row FormVendelHistorique tableView2 "$first_day"
await_text FormVendelHistorique txt_First_Date "$first_day"
press FormVendelHistorique rb_Second_Date
press_row FormVendelHistorique tableView2 "$second_day"
await_text FormVendelHistorique txt_Second_Date "$second_day"
press FormVendelHistorique btn_View_Historical
await_row FormVendelHistorique tableView1 ""
await_row FormVendelHistorique tableView3 ""
picture history

press FormVendelHistorique btn_Total
period="date_heure between (select distinct date(date_heure) from Historique order by 1 limit 1
    offset 1) and (select distinct date(date_heure) from Historique order by 1 limit 1 offset 2)"
sum=$(ask "select printf('%.2f', sum(prix)) from Historique where $period")
lines_sold=$(ask "select count(*) from Historique where $period")
all_lines=$(ask "select count(*) from Historique")
point_at row FormVendelHistorique tableView1
to_total() {
    has_place row FormVendelHistorique tableView1 "Total historique|$sum\$|<-" \
        || { xdotool click --repeat 5 --delay 1 5 && false; }
}
await "the total row" to_total
picture history-total

press FormVendelHistorique btn_Clear
await_box Purger
expect "the question" "$(seen box Purger)" "Voulez-vous purger de $first_day au $second_day"
answer Purger Non purge
expect "after a no" "$(ask "select count(*) from Historique")" "$all_lines"
press FormVendelHistorique btn_Clear
answer Purger Oui
await_box Historique
expect "what is said" "$(seen box Historique)" \
    "Historique est vide pour la pèriode du $first_day au $second_day"
answer Historique OK
expect "after a yes" "$(ask "select count(*) from Historique")" $((all_lines - lines_sold))
leave FormVendelHistorique
stop_till
