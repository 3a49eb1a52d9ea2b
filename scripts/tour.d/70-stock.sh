# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# New articles are added to the stock, one gets a recipe, a withdrawn one's recipe moves to its
# successor, and the month's consumption is computed.

start_till "$(new_shop stock)"
dismiss_splash
choose FormVendel Vendel Historique
await_window FormVendelHistorique
choose FormVendelHistorique Stock "Saisie Stock"
await_window FormVendelSaisieStock
press FormVendelSaisieStock btn_Display
await_row FormVendelSaisieStock tableView1 "Périmé"

press FormVendelSaisieStock btn_Update
await_window FormVendelSaisieStockMaj
await_list FormVendelSaisieStockMaj tableView 2
picture stock-update
press FormVendelSaisieStockMaj btn_Update
await_no_window FormVendelSaisieStockMaj
expect "the stock" "$(ask "select count(*) from Article where id not in
    (select id from ArticleStock)")" 0

press_row FormVendelSaisieStock tableView1 "Apéritif maison"
double_press_row FormVendelSaisieStock tableView1 "Apéritif maison"
await_window FormVendelSaisieStockComposition
fill FormVendelSaisieStockComposition txt_Composition "Vin d'orange"
fill FormVendelSaisieStockComposition txt_Dose "7,5"
picture recipe
press FormVendelSaisieStockComposition btn_Add
await_no_window FormVendelSaisieStockComposition
await_row FormVendelSaisieStock tableView2 "Vin d'orange"
picture stock

press FormVendelSaisieStock btn_Cut_Paste
await_window FormVendelSaisieStockCutPaste
press_row FormVendelSaisieStockCutPaste tableView1 "Bière bouteille"
await_row FormVendelSaisieStockCutPaste tableView2 "Citron vert"
successor=$(ask "select id from Article where article = 'Bière blonde'")
pick FormVendelSaisieStockCutPaste cbx_Article "$successor, Bière blonde, Valide"
press_row FormVendelSaisieStockCutPaste tableView2 "Citron vert"
picture recipe-move
press FormVendelSaisieStockCutPaste btn_Modify
answer Modifier Oui
await_rows "the moved line" \
    "select id from DoseStock where composition = 'Citron vert'" "$successor"
await_list FormVendelSaisieStockCutPaste tableView2 1
leave FormVendelSaisieStockCutPaste
leave FormVendelSaisieStock

month_from=$(ask "select strftime('%m/%d/%Y', min(date_heure)) from Historique")
month_to=$(ask "select strftime('%m/%d/%Y', max(date_heure), '+1 day') from Historique")
fill FormVendelHistorique txt_First_Date "$month_from"
fill FormVendelHistorique txt_Second_Date "$month_to"
choose FormVendelHistorique Stock "Calcul Stock"
await_window FormVendelStockCalculation
await_text FormVendelStockCalculation lbl_Period_Date1 "$month_from"
press FormVendelStockCalculation btn_Display
sold=$(ask "select count(*) from Historique where article = 'Apéritif maison'")
await_row FormVendelStockCalculation tableView1 \
    "$sold|Apéritif maison|Vin d'orange|7.50 cl|$(ask "select printf('%.2f', $sold * 7.5)") cl"
picture consumption
leave FormVendelStockCalculation
stop_till
