// SPDX-License-Identifier: MIT
#include "common/Messages.h"

const Messages::Entry<2> Messages::Messages0{"Le ticket est vide", "Effacer ticket"};
const Messages::Entry<2> Messages::Messages1{"Le ticket est vide", "Ticket"};
const Messages::Entry<1> Messages::Messages2{"Total ticket"};
const Messages::Entry<1> Messages::Messages3{"TVA "};
const Messages::Entry<1> Messages::Messages4{"TOTAL "};
const Messages::Entry<2> Messages::Messages5{"Le ticket est vide", "Total"};
const Messages::Entry<2> Messages::Messages6{"Le ticket est vide", "Payer"};
const Messages::Entry<1> Messages::Messages7{"Produit"};
const Messages::Entry<4> Messages::Messages8{"Qtité  ", "Article", "Prix U", "Prix * Qtité"};
const Messages::Entry<1> Messages::Messages9{"Total ticket"};
const Messages::Entry<1> Messages::Messages10{"TVA "};
const Messages::Entry<1> Messages::Messages11{"TOTAL "};
const Messages::Entry<2> Messages::Messages12{"Saisir un montant", "+/-"};
const Messages::Entry<2> Messages::Messages13{"Saisir un montant valide", "+/-"};
const Messages::Entry<2> Messages::Messages14{"Saisir un article avec son montant", "Ajouter"};
const Messages::Entry<2> Messages::Messages15{"Saisir un montant valide", "Ajouter"};
const Messages::Entry<3> Messages::Messages16{"Voulez-vous supprimer : ", " ...", "Supprimer"};
const Messages::Entry<2> Messages::Messages17{
    "Selectionner un/des article(s) dans le menu", "Supprimer"};
const Messages::Entry<2> Messages::Messages18{"Saisir un montant valide", "Renommer"};
const Messages::Entry<3> Messages::Messages19{"Voulez-vous renommer : ", " ...", "Renommer"};
const Messages::Entry<2> Messages::Messages20{
    "Selectionner 1 article dans le menu à renommer", "Renommer"};
const Messages::Entry<2> Messages::Messages21{"Saisir un article et son montant", "Renommer"};
const Messages::Entry<2> Messages::Messages22{"Saisir un article", "Rechercher"};
const Messages::Entry<2> Messages::Messages23{
    "Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"};
const Messages::Entry<2> Messages::Messages24{
    "Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"};
const Messages::Entry<2> Messages::Messages25{
    "Le menu est vide\nAjouter des articles\nAllez dans le menu Vendel Saisie Article", "Afficher"};
const Messages::Entry<2> Messages::Messages26{
    "Supprimer le(s) %n doublon(s) note(s) X...\nAllez dans le menu Vendel Saisie Article",
    "Doublon"};
const Messages::Entry<2> Messages::Messages27{"Le menu est vide\nAjouter des articles", "Afficher"};
const Messages::Entry<2> Messages::Messages28{
    "Nombre de caractères ne doient pas dépasser : ", "Nbre caractères"};
const Messages::Entry<1> Messages::Messages29{"Article Nbre caractères : "};
const Messages::Entry<2> Messages::Messages30{
    "Historique est vide\nAjouter des articles et faite PAYER", "Historique"};
const Messages::Entry<2> Messages::Messages31{
    "Première date doit-être < seconde date", "Valide date"};
const Messages::Entry<2> Messages::Messages32{"Saisir une date valide", "Valide date"};
const Messages::Entry<2> Messages::Messages33{
    "Première date doit-être < seconde date\nAjouter 1 jour à la seconde date", "Valide date"};
const Messages::Entry<3> Messages::Messages34{
    "Historique est vide pour la pèriode du ", " au ", "Historique"};
const Messages::Entry<2> Messages::Messages35{
    "Première date doit-être <= seconde date", "Valide date"};
const Messages::Entry<2> Messages::Messages36{
    "Saisir une date valide dans première date et seconde date\nClick sur Afficher Date",
    "Valide date"};
const Messages::Entry<1> Messages::Messages37{"Total historique"};
const Messages::Entry<3> Messages::Messages38{"Voulez-vous purger de ", " au ", "Purger"};
const Messages::Entry<2> Messages::Messages39{"Aucun Article\nFaite Mise à jour", "Afficher"};
const Messages::Entry<1> Messages::Messages40{"Valide"};
const Messages::Entry<1> Messages::Messages41{"Périmé"};
const Messages::Entry<1> Messages::Messages42{"Ajouter"};
const Messages::Entry<1> Messages::Messages43{"Renommer"};
const Messages::Entry<2> Messages::Messages44{"Vous n'avez rien à mettre à jour ", "Mettre à jour"};
const Messages::Entry<3> Messages::Messages45{"Voulez-vous supprimer : ", " ...", "Supprimer"};
const Messages::Entry<2> Messages::Messages46{
    "Selectionner un/des article(s) dans le menu", "Supprimer"};
const Messages::Entry<2> Messages::Messages47{"Saisir une dose valide", "Ajouter"};
const Messages::Entry<2> Messages::Messages48{"Choisir Unité soit g ou cl", "Ajouter"};
const Messages::Entry<2> Messages::Messages49{
    "Saisir Composition / Dose / Choisir Unité", "Ajouter"};
const Messages::Entry<1> Messages::Messages50{"Valide"};
const Messages::Entry<1> Messages::Messages51{"Périmé"};
const Messages::Entry<3> Messages::Messages52{"Voulez-vous modifier : ", " ... dans ", "Modifier"};
const Messages::Entry<2> Messages::Messages53{
    "Selectionner un/des composition(s) / dose(s) dans la list", "Modifier"};
const Messages::Entry<2> Messages::Messages54{"Vous n'avez rien à couper / coller", "Modifier"};
const Messages::Entry<2> Messages::Messages55{"Composition est vide\nAller dans le menu Stock "
                                              "Saisie Stock\nDoubleClick sur article et composez",
    "Calcul Stock"};
const Messages::Entry<2> Messages::Messages57{"Saisir une TVA valide", "TVA"};
const Messages::Entry<2> Messages::Messages58{"Choisir entre ON ou OFF", "Epson TM-T20II"};
const Messages::Entry<1> Messages::Messages59{"Entête de page"};
const Messages::Entry<1> Messages::Messages60{"Pied de page"};
const Messages::Entry<2> Messages::Messages61{"Sauvegarde", "Sauvegarde"};
const Messages::Entry<1> Messages::Messages62{"titre:"};
const Messages::Entry<2> Messages::Messages63{"Imprimante non connectée", "Payer"};
const Messages::Entry<4> Messages::Messages64{"Qtité  ", "Article", "Prix U", "Prix * Qtité"};
const Messages::Entry<2> Messages::Messages65{"Menu\nClick sur : ", "\nPour l'ajouter au ticket"};
const Messages::Entry<2> Messages::Messages66{
    "Ticket\nClick sur : ", "\nPour supprimer l'article du ticket"};
const Messages::Entry<2> Messages::Messages67{
    "Menu\nDblClick sur : ", "\nPour l'afficher dans Article et Montant"};
const Messages::Entry<2> Messages::Messages68{"Date\nClick sur : ",
    "\nPour sélectionner la date dans première date ou seconde date\nClick Options Pre date ou Sec "
    "date"};
const Messages::Entry<2> Messages::Messages69{"Date Heure\nClick sur : ",
    "\nPour sélectionner la date dans première date ou seconde date\nClick Options Pre date ou Sec "
    "date"};
const Messages::Entry<2> Messages::Messages70{
    "Article\nDoubleClick sur : ", "\nPour faire composition"};
const Messages::Entry<2> Messages::Messages71{
    "Composition\nDoubleClick sur : ", "\nPour supprimer l'article de la composition"};
const Messages::Entry<2> Messages::Messages72{
    "Composition\nFaire votre choix dans la liste déroulante\nSélectionner la composition : ",
    "\nPuis Modifier"};
const Messages::Entry<1> Messages::Messages80{"Menu"};
const Messages::Entry<1> Messages::Messages81{"Ticket"};
const Messages::Entry<1> Messages::Messages82{"Montant"};
const Messages::Entry<1> Messages::Messages83{"Effacer Saisie"};
const Messages::Entry<1> Messages::Messages84{"Afficher"};
const Messages::Entry<1> Messages::Messages85{"Ticket"};
const Messages::Entry<1> Messages::Messages86{"Effacer Ticket"};
const Messages::Entry<1> Messages::Messages87{"Total Ticket"};
const Messages::Entry<1> Messages::Messages88{","};
const Messages::Entry<1> Messages::Messages89{"Payer"};
const Messages::Entry<1> Messages::Messages90{"Vendel"};
const Messages::Entry<1> Messages::Messages91{"Config"};
const Messages::Entry<1> Messages::Messages92{"Saisie Article"};
const Messages::Entry<1> Messages::Messages93{"Historique"};
const Messages::Entry<1> Messages::Messages94{"?"};
const Messages::Entry<1> Messages::Messages95{"A propos de"};
const Messages::Entry<1> Messages::Messages96{"Vendel"};
const Messages::Entry<4> Messages::Messages97{"#", "X", "Article", "Prix"};
const Messages::Entry<1> Messages::Messages98{"dd/MM/yyyy"};
const Messages::Entry<4> Messages::Messages99{"#", "Id", "Article", "Prix"};
const Messages::Entry<1> Messages::Messages100{"Impression Ticket"};
const Messages::Entry<1> Messages::Messages101{","};
const Messages::Entry<1> Messages::Messages102{"TVA"};
const Messages::Entry<1> Messages::Messages103{"Epson TM-T20II"};
const Messages::Entry<1> Messages::Messages104{"Formulaire Impression Ticket"};
const Messages::Entry<1> Messages::Messages105{"MAJ"};
const Messages::Entry<1> Messages::Messages106{"MAJ"};
const Messages::Entry<1> Messages::Messages107{"MAJ"};
const Messages::Entry<1> Messages::Messages108{"Config"};
const Messages::Entry<1> Messages::Messages109{"Formulaire Impression Ticket"};
const Messages::Entry<1> Messages::Messages110{"Afficher"};
const Messages::Entry<1> Messages::Messages111{"Entête Page"};
const Messages::Entry<1> Messages::Messages112{"Pied Page"};
const Messages::Entry<1> Messages::Messages113{"Formulaire"};
const Messages::Entry<1> Messages::Messages114{"Sauv Pied Page"};
const Messages::Entry<1> Messages::Messages115{"Sauv Entête Page"};
const Messages::Entry<1> Messages::Messages116{"Saisie Article"};
const Messages::Entry<1> Messages::Messages117{"Menu"};
const Messages::Entry<1> Messages::Messages118{"Article"};
const Messages::Entry<1> Messages::Messages119{"Montant"};
const Messages::Entry<1> Messages::Messages120{"Effacer Saisie"};
const Messages::Entry<1> Messages::Messages121{"Afficher"};
const Messages::Entry<1> Messages::Messages122{"Ajouter"};
const Messages::Entry<1> Messages::Messages123{"Supprimer"};
const Messages::Entry<1> Messages::Messages124{"Renommer"};
const Messages::Entry<1> Messages::Messages125{"Rechercher"};
const Messages::Entry<3> Messages::Messages126{"Article", "Prix", "Date Heure"};
const Messages::Entry<1> Messages::Messages127{"Date"};
const Messages::Entry<4> Messages::Messages128{"Qtité", "Article", "Prix", "Qtité * Prix"};
const Messages::Entry<1> Messages::Messages129{"Vendel Historique"};
const Messages::Entry<1> Messages::Messages130{"Afficher Historique"};
const Messages::Entry<1> Messages::Messages131{"Afficher Date"};
const Messages::Entry<1> Messages::Messages132{"Total"};
const Messages::Entry<1> Messages::Messages133{"Purge"};
const Messages::Entry<1> Messages::Messages134{"Première Date"};
const Messages::Entry<1> Messages::Messages135{"Seconde Date"};
const Messages::Entry<1> Messages::Messages136{"Pre Date"};
const Messages::Entry<1> Messages::Messages137{"Sec Date"};
const Messages::Entry<1> Messages::Messages138{"Effacer Saisie"};
const Messages::Entry<1> Messages::Messages139{"Stock"};
const Messages::Entry<1> Messages::Messages140{"Saisie Stock"};
const Messages::Entry<1> Messages::Messages141{"Calcul Stock"};
const Messages::Entry<1> Messages::Messages142{"Options"};
const Messages::Entry<3> Messages::Messages143{"#", "Article", "Validité"};
const Messages::Entry<5> Messages::Messages144{"#", "id", "Composition", "Dose", "Unité"};
const Messages::Entry<1> Messages::Messages145{"cl"};
const Messages::Entry<1> Messages::Messages146{"g"};
const Messages::Entry<3> Messages::Messages147{"#", "Article", "Mise à jour"};
const Messages::Entry<1> Messages::Messages148{"Saisie Stock"};
const Messages::Entry<1> Messages::Messages149{"Composition"};
const Messages::Entry<1> Messages::Messages150{"Dose"};
const Messages::Entry<1> Messages::Messages151{"Unité"};
const Messages::Entry<1> Messages::Messages152{"Article :"};
const Messages::Entry<1> Messages::Messages153{"Ajouter"};
const Messages::Entry<1> Messages::Messages154{"Mise à jour Stock"};
const Messages::Entry<1> Messages::Messages155{"Mettre à jour"};
const Messages::Entry<3> Messages::Messages156{"#", "Article", "Validité"};
const Messages::Entry<5> Messages::Messages157{"#", "Id", "Composition", "Dose", "Unité"};
const Messages::Entry<1> Messages::Messages158{"Couper / Coller"};
const Messages::Entry<1> Messages::Messages159{"Modifier"};
const Messages::Entry<1> Messages::Messages160{"Saisie Stock"};
const Messages::Entry<1> Messages::Messages161{"Afficher"};
const Messages::Entry<1> Messages::Messages162{"Mise à Jour"};
const Messages::Entry<1> Messages::Messages163{"Supprimer"};
const Messages::Entry<1> Messages::Messages164{"Couper /\nColler"};
const Messages::Entry<5> Messages::Messages165{
    "Qtité", "Article", "Composition", "Dose Unitaire", "Qtité * Dose"};
const Messages::Entry<5> Messages::Messages166{
    "Composition", "Consommation", "Unité", "Conversion", "Unité"};
const Messages::Entry<1> Messages::Messages167{"Calcul Stock"};
const Messages::Entry<1> Messages::Messages168{"Afficher"};
const Messages::Entry<2> Messages::Messages169{"Pèriode du", "au"};
const Messages::Entry<1> Messages::Messages170{""};
const Messages::Entry<2> Messages::Messages171{"Le texte n'a pas pu être enregistré", "Sauvegarde"};
const Messages::Entry<2> Messages::Messages172{
    "La vente n'est pas enregistrée\nLe ticket est gardé", "Payer"};
const Messages::Entry<1> Messages::Messages173{"Virgule"};
const Messages::Entry<1> Messages::Messages174{"Plus"};
const Messages::Entry<1> Messages::Messages175{"Moins"};
const Messages::Entry<1> Messages::Messages176{"Ventes par article"};
const Messages::Entry<1> Messages::Messages177{"Remplaçant"};
const Messages::Entry<1> Messages::Messages178{"Consommation par article"};
const Messages::Entry<1> Messages::Messages179{"MAJ TVA"};
const Messages::Entry<1> Messages::Messages180{"MAJ Epson TM-T20II"};
const Messages::Entry<1> Messages::Messages181{"MAJ Formulaire Impression Ticket"};
const Messages::Entry<1> Messages::Messages182{"Numéro"};
const Messages::Entry<2> Messages::Messages183{
    "Le texte n'est pas sauvegardé\nL'abandonner ?", "Sauvegarde"};
