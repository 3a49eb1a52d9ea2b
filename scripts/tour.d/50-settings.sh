# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The rate, the printer's switch and the receipt's footer are set; the about window tells of the till.

title_of[FormVendelConfig]="Config"
title_of[FormVendelFormulaireTicket]="Formulaire Impression Ticket"
title_of[FormVendelAbout]="A propos de Système Vendel"
setting() { echo "select valeur from Config where param = '$1'"; }

start_till "$(new_shop settings)"
await_window FormVendelStart
dismiss_splash

choose FormVendel 30 1
await_window FormVendelConfig
picture settings FormVendelConfig
write FormVendelConfig txt_TVA "abc"
press FormVendelConfig btn_Maj_TVA
answer TVA Return bad-rate
write FormVendelConfig txt_TVA "5,5"
press FormVendelConfig btn_Maj_TVA
await_no_window FormVendelConfig
await_rows "the rate" "$(setting TVA)" 5.5

choose FormVendel 30 1
await_window FormVendelConfig
press FormVendelConfig cbx_Epson
xdotool key Down Return
press FormVendelConfig btn_Maj_Epson
await_no_window FormVendelConfig
await_rows "the printer's switch" "$(setting "Epson TM-T20II")" 1

choose FormVendel 30 1
await_window FormVendelConfig
press FormVendelConfig btn_Maj_Formulaire
await_window FormVendelFormulaireTicket
picture receipt-header FormVendelFormulaireTicket
choose FormVendelFormulaireTicket 30 2
press FormVendelFormulaireTicket txt_Form
xdotool key ctrl+End Return
xdotool type --delay 20 "A demain"
picture receipt-footer FormVendelFormulaireTicket
press FormVendelFormulaireTicket btn_Pied_Page
answer Sauvegarde o save-footer
await "the saved footer" grep -qx 'A demain' "$shop/PiedFormulaire.dat"
leave FormVendelFormulaireTicket
leave FormVendelConfig

choose FormVendel 68 1
await_window FormVendelAbout
picture about FormVendelAbout
answer FormVendelAbout Return
stop_till
