# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# After the last sale the owner looks up what the day has brought, in the guide's five steps.

start_till "$(new_shop evening)"
dismiss_splash
show_menu
sell "Café" 2
press FormVendel btn_Payer
await_window FormVendelTicket
leave FormVendelTicket
today=$(ask "select strftime('%m/%d/%Y', max(date_heure)) from Historique")
tomorrow=$(ask "select strftime('%m/%d/%Y', max(date_heure), '+1 day') from Historique")
takings=$(ask "select printf('%.2f', sum(prix)) from Historique
    where date(date_heure) = (select date(max(date_heure)) from Historique)")

choose FormVendel Vendel Historique
await_window FormVendelHistorique
press FormVendelHistorique btn_Show_Date
await_row FormVendelHistorique tableView2 ""
point_at row FormVendelHistorique tableView2
to_today() {
    has_place row FormVendelHistorique tableView2 "$today" \
        || { xdotool click --repeat 5 --delay 1 5 && false; }
}
await "today in the list" to_today
last_sum=""
await "a quiet screen" stands_still
press_row FormVendelHistorique tableView2 "$today"
await_text FormVendelHistorique txt_First_Date "$today"
fill FormVendelHistorique txt_Second_Date "$tomorrow"
press FormVendelHistorique btn_Total
await_row FormVendelHistorique tableView1 "Total historique|$takings\$|<-"
picture evening
stop_till
