# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The rate, the printer switch, the receipt's header, and the about window.

start_till "$(new_shop settings)"
dismiss_splash
choose FormVendel Vendel Config
await_window FormVendelConfig
await_text FormVendelConfig txt_TVA "20.00"
picture settings
fill FormVendelConfig txt_TVA "5,5"
press FormVendelConfig btn_Maj_TVA
await_no_window FormVendelConfig
expect "the rate" "$(ask "select valeur from Config where param = 'TVA'")" "5.5"

choose FormVendel Vendel Config
await_window FormVendelConfig
await_text FormVendelConfig txt_TVA "5.50"
pick FormVendelConfig cbx_Epson ON
picture printer-on
press FormVendelConfig btn_Maj_Epson
await_no_window FormVendelConfig
expect "the switch" "$(ask "select valeur from Config where param like 'Epson%'")" "1"

choose FormVendel Vendel Config
await_window FormVendelConfig
press FormVendelConfig btn_Maj_Formulaire
await_window FormVendelFormulaireTicket
picture header
press FormVendelFormulaireTicket txt_Form
xdotool key ctrl+Home
xdotool type --delay 5 -- "titre:Bienvenue"
xdotool key Return
press FormVendelFormulaireTicket btn_Entete_Page
answer Sauvegarde Oui
saved() { [ "$(head -n 1 "$shop/EnteteFormulaire.dat")" = "titre:Bienvenue" ]; }
await "the saved header" saved
expect "the header's lines" "$(grep -c '' "$shop/EnteteFormulaire.dat")" 5
choose FormVendelFormulaireTicket Afficher "Pied Page"
await_text FormVendelFormulaireTicket lbl_Formulaire "Pied de page"
leave FormVendelFormulaireTicket
leave FormVendelConfig

choose FormVendel "?" "A propos de"
await_window FormVendelAbout
picture about
leave FormVendelAbout
stop_till
