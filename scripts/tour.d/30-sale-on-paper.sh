# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The printer switch is on: without a printer the ticket stays, with one the receipt is printed.

paper_shop=$(new_shop paper)
sqlite3 "$paper_shop/Vendel.db" "update Config set valeur = 1 where param = 'Epson TM-T20II'"

# A machine without any device, whatever is plugged in here.
mkdir "$work/no-devices"
export UMOCKDEV_DIR="$work/no-devices"
start_till "$paper_shop"
dismiss_splash
type_amount 7 12
await_rows "an amount" "select prix from Ticket" "7"
press FormVendel btn_Payer
await_box Payer
expect "what is said" "$(seen box Payer)" "Imprimante non connectée"
answer Payer OK no-printer
expect "the ticket" "$(ask "select count(*) from Ticket")" 1
await_list FormVendel tableView2 0
press FormVendel btn_Ticket
await_list FormVendel tableView2 1
press FormVendel btn_Effacer_Ticket
await_rows "the ticket is empty" "select count(*) from Ticket" 0
stop_till
unset UMOCKDEV_DIR

start_printer
start_till "$paper_shop"
dismiss_splash
show_menu
sell "Café" 2
sell "Thé à la menthe"
sell "Plat du jour"
type_amount 10 11 5 13
await_rows "a discount" "select prix from Ticket where id = 0" "-0.5"
press FormVendel btn_Payer
await_rows "the ticket is empty" "select count(*) from Ticket" 0

hex=$(od -An -v -tx1 "$out/receipt.bytes" | tr -d ' \n')
[[ $hex == *1d564196 ]] || broken "the receipt does not end with a cut"
[[ $hex == *"$(printf 'Caf\x82 de l'"'"'\x90toile' | od -An -v -tx1 | tr -d ' \n')"* ]] \
    || broken "the shop's name is not on the receipt in code page 858"
[[ $hex == *31342c353020d5* ]] || broken "the euro sign is not on the receipt"
stop_till
stop_printer

"$build/tests/support/escpos-page" "$out/receipt.bytes" "$out/receipt.png" "$out/receipt.txt" \
    || broken "the printed receipt cannot be read"
grep -q 'TOTAL' "$out/receipt.txt" || broken "the printed receipt shows no total"
say "  build/tour/receipt.bytes, receipt.txt and receipt.png"
