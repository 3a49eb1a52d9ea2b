# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A sale on a screen that is narrower than the sales screen.

start_display 1024x768 "795,104 995,132"
start_till "$(new_shop small)"
dismiss_splash
show_menu
sell "Café" 2
sell "Croque-monsieur"
press FormVendel btn_Total_Ticket
await_row FormVendel tableView2 "Total ticket|9.90\$"
await_list FormVendel tableView2 6
picture small-screen
press FormVendel btn_Payer
await_window FormVendelTicket
await_rows "the ticket is empty" "select count(*) from Ticket" 0
leave FormVendelTicket

choose FormVendel Vendel Historique
await_window FormVendelHistorique
press FormVendelHistorique btn_Show_Date
leave FormVendelHistorique
stop_till
