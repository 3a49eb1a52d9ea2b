# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A sale in the sample shop; the receipt is shown on the screen.

start_till "$(new_shop screen)"
sold_before=$(ask "select count(*) from Historique")
dismiss_splash
show_menu duplicate

point_at row FormVendel tableView1 "Bière blonde"
await "a tip over the menu" is_seen tip
expect "the tip" "$(seen tip)" "Menu Click sur : Bière blonde Pour l'ajouter au ticket"
picture tip
# The tip is under the mouse, and a click goes through it.
xdotool click 1
await_rows "an article through the tip" "select article from Ticket" "Bière blonde"
press_row FormVendel tableView2 "Bière blonde"
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
point_at row FormVendel tableView2 "Croque-monsieur"
correction="Ticket Click sur : Croque-monsieur Pour supprimer l'article du ticket"
tells_how_to_correct() { [ "$(seen tip)" = "$correction" ]; }
await "a tip over the ticket" tells_how_to_correct
picture correction
xdotool click 1
await_rows "the line taken off" "select count(*) from Ticket" 9
await_list FormVendel tableView2 9
picture sale

# 2 x 1.50, 3 x 3.30, 3.20, 4.90, 3.50, -1; the tax is 4.70 and half a cent
press FormVendel btn_Total_Ticket
await_row FormVendel tableView2 "Total ticket|23.50\$"
await_row FormVendel tableView2 "TVA 20.00%|4.70\$"
await_row FormVendel tableView2 "TOTAL |\$28.20"
await_list FormVendel tableView2 12
picture total

press FormVendel btn_Payer
await_window FormVendelTicket
picture receipt-on-screen
expect "sold lines" "$(ask "select count(*) from Historique")" $((sold_before + 9))
await_rows "the ticket is empty" "select count(*) from Ticket" 0
leave FormVendelTicket
stop_till
