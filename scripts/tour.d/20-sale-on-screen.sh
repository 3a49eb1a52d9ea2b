# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A sale in the sample shop; the receipt is shown on the screen.

start_till "$(new_shop screen)"
sold_before=$(ask "select count(*) from Historique")
await_window FormVendelStart
dismiss_splash
show_menu duplicate

point_at_row FormVendel tableView1 "$menu_blank" 3
await "a tip over the menu" tip_is_shown
picture tip
# The tip stands for ten seconds under the mouse, and a click goes through it.
xdotool click 1
await_rows "an article through the tip" "select article from Ticket" "Bière blonde"
press_row FormVendel tableView2 "$ticket_blank" 0
await_rows "the line is gone" "select count(*) from Ticket" 0

sell "Café" 2
sell "Bière pression" 3
sell "Jus d'orange"
sell "Île flottante"
type_amount 3 11 5 10 12
await_rows "an amount" "select prix from Ticket where id = 0" "3.5"
press FormVendel btn_Effacer_Saisie
type_amount 1 13
await_rows "a discount" "select prix from Ticket where id = 0 and prix < 0" "-1"
sell "Croque-monsieur"
# The newest line is the tenth: the croque-monsieur goes again.
await_list FormVendel tableView2 "$ticket_blank" 10
press_row FormVendel tableView2 "$ticket_blank" 9
await_rows "the line taken off" "select count(*) from Ticket" 9
picture sale

# 2 x 1.50, 3 x 3.30, 3.20, 4.90, 3.50, -1
expect "the sum" "$(ask "select printf('%.2f', sum(prix)) from Ticket")" "23.50"
press FormVendel btn_Total_Ticket
await_list FormVendel tableView2 "$ticket_blank" 12
picture total

press FormVendel btn_Payer
await_window FormVendelTicket
picture receipt-on-screen
expect "sold lines" "$(ask "select count(*) from Historique")" $((sold_before + 9))
await_rows "the ticket is empty" "select count(*) from Ticket" 0
answer FormVendelTicket Escape
stop_till
