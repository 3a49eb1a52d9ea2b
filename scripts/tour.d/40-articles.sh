# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The owner puts an article on the menu, looks one up, changes its price and removes a duplicate.

start_till "$(new_shop articles)"
dismiss_splash
choose FormVendel Vendel "Saisie Article"
await_window FormVendelSaisieArticle
press FormVendelSaisieArticle btn_Afficher
answer Doublon OK
await_row FormVendelSaisieArticle tableView "|Apéritif maison|4.50\$"
picture articles

fill FormVendelSaisieArticle txt_Article "Sirop d'orgeat"
fill FormVendelSaisieArticle txt_Montant "2,40"
press FormVendelSaisieArticle btn_Ajouter
answer Doublon OK
await_rows "the new article" "select prix from Article where article = 'Sirop d''orgeat'" "2.4"

fill FormVendelSaisieArticle txt_Article "d'or"
press FormVendelSaisieArticle btn_Rechercher
await_list FormVendelSaisieArticle tableView 2
picture article-search
double_press_row FormVendelSaisieArticle tableView "Sirop d'orgeat"
await_text FormVendelSaisieArticle txt_Montant "2.40"
fill FormVendelSaisieArticle txt_Montant "2.60"
press FormVendelSaisieArticle btn_Renommer
await_box Renommer
expect "the question" "$(seen box Renommer)" "Voulez-vous renommer : Sirop d'orgeat ..."
answer Renommer Oui
answer Doublon OK
await_rows "the new price" "select prix from Article where article = 'Sirop d''orgeat'" "2.6"

fill FormVendelSaisieArticle txt_Article "limon"
press FormVendelSaisieArticle btn_Rechercher
answer Doublon OK
press_row FormVendelSaisieArticle tableView "X|Limonade|2.60\$"
press FormVendelSaisieArticle btn_Supprimer
answer Supprimer Non article-removal
expect "after a no" "$(ask "select count(*) from Article where article = 'Limonade'")" 2
press FormVendelSaisieArticle btn_Supprimer
answer Supprimer Oui
await_rows "the duplicate article is gone" \
    "select group_concat(prix) from Article where article = 'Limonade'" "2.9"
leave FormVendelSaisieArticle

# There is no duplicate any more: the menu comes without a box.
press FormVendel btn_Afficher
scroll_menu_to "Sirop d'orgeat"
stop_till
