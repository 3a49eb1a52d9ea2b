# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A shop whose prices include the tax: its rate is 0, and the half cent shows.

tax_shop=$(new_shop tax)
sqlite3 "$tax_shop/Vendel.db" "update Config set valeur = 0 where param = 'TVA'"
start_till "$tax_shop"
dismiss_splash
show_menu
sell "Bière pression"
press FormVendel btn_Total_Ticket
await_row FormVendel tableView2 "Total ticket|3.30\$"
await_row FormVendel tableView2 "TVA 0.00%|0.00\$"
await_row FormVendel tableView2 "TOTAL |\$3.31"
picture total-without-tax

# The amount stays in its field, and the keypad writes behind it.
press FormVendel btn_Effacer_Ticket
type_amount 3 11 5 10 12
await_rows "an amount" "select prix from Ticket" "3.5"
type_amount 1 12
await_rows "an amount with the one before" "select max(idlig), prix from Ticket" "2|3.501"
stop_till
