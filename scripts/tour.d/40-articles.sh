# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The menu gets a new article, which is then found, renamed and withdrawn.

title_of[FormVendelSaisieArticle]="Saisie Article"
article_blank=34

start_till "$(new_shop articles)"
await_window FormVendelStart
dismiss_splash
choose FormVendel 30 2
await_window FormVendelSaisieArticle
expect "an empty list" "$(rows_of FormVendelSaisieArticle tableView "$article_blank")" ""
press FormVendelSaisieArticle btn_Afficher
answer Doublon Return
picture articles FormVendelSaisieArticle

write FormVendelSaisieArticle txt_Article "Menthe a l'eaux!"
answer "Nbre caractères" Return article-too-long FormVendelSaisieArticle
xdotool key BackSpace
write FormVendelSaisieArticle txt_Montant "2,8"
press FormVendelSaisieArticle btn_Ajouter
answer Doublon Return
await_rows "the new article" "select prix from Article where article = 'Menthe a l''eau'" 2.8

write FormVendelSaisieArticle txt_Article "menthe"
press FormVendelSaisieArticle btn_Rechercher
await_list FormVendelSaisieArticle tableView "$article_blank" 3
picture article-search FormVendelSaisieArticle
point_at_row FormVendelSaisieArticle tableView "$article_blank" 1
xdotool click --repeat 2 --delay 50 1
write FormVendelSaisieArticle txt_Montant "3,10"
press FormVendelSaisieArticle btn_Renommer
answer Renommer o
answer Doublon Return
await_rows "the new price" "select prix from Article where article = 'Menthe a l''eau'" 3.1

write FormVendelSaisieArticle txt_Article "menthe a"
press FormVendelSaisieArticle btn_Rechercher
await_list FormVendelSaisieArticle tableView "$article_blank" 1
press_row FormVendelSaisieArticle tableView "$article_blank" 0
press FormVendelSaisieArticle btn_Supprimer
answer Supprimer n article-remove FormVendelSaisieArticle
await_rows "No keeps it" "select count(*) from Article where article like 'menthe a%'" 1
press FormVendelSaisieArticle btn_Supprimer
answer Supprimer o
answer Doublon Return
await_rows "Yes removes it" "select count(*) from Article where article like 'menthe a%'" 0
leave FormVendelSaisieArticle
stop_till
