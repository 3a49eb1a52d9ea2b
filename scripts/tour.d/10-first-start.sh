# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The till starts for the first time, in an empty directory.

mkdir "$work/first"
start_till "$work/first"
await_window FormVendelStart
picture first-start

expect "tables" "$(ask "select group_concat(name) from (select name from sqlite_master
    where type = 'table' and name not like 'sqlite%' order by name)")" \
    "Article,ArticleStock,Config,DoseStock,Historique,Ticket"
expect "settings" "$(ask "select group_concat(param || '=' || valeur) from Config")" \
    "TVA=0,Epson TM-T20II=0"

await_no_window FormVendelStart
press FormVendel btn_Afficher
await_box Afficher
expect "what is said" "$(seen box Afficher)" \
    "Le menu est vide Ajouter des articles Allez dans le menu Vendel Saisie Article"
answer Afficher OK empty-menu
press FormVendel btn_Payer
await_box Payer
expect "what is said" "$(seen box Payer)" "Le ticket est vide"
answer Payer OK
stop_till
