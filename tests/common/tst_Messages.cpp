// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"

#include <array>
#include <string>
#include <vector>

namespace {
using Words = std::vector<std::string>;

/// An entry and what is shown of it.
struct Row
{
    template <std::size_t Count>
    Row(const std::array<std::string, Count>& entry, Words words)
        : texts(entry.begin(), entry.end())
        , shown(std::move(words))
    { }

    Words texts;
    Words shown;
};

struct Catalogue : Messages
{
    const std::vector<Row> rows{{Messages0, {"Le ticket est vide", "Effacer ticket"}},
        {Messages1, {"Le ticket est vide", "Ticket"}}, {Messages2, {"Total ticket"}},
        {Messages3, {"TVA "}}, {Messages4, {"TOTAL "}},
        {Messages5, {"Le ticket est vide", "Total"}}, {Messages6, {"Le ticket est vide", "Payer"}},
        {Messages7, {"Produit"}}, {Messages8, {"Qtité  ", "Article", "Prix U", "Prix * Qtité"}},
        {Messages9, {"Total ticket"}}, {Messages10, {"TVA "}}, {Messages11, {"TOTAL "}},
        {Messages12, {"Saisir un montant", "+/-"}},
        {Messages13, {"Saisir un montant valide", "+/-"}},
        {Messages14, {"Saisir un article avec son montant", "Ajouter"}},
        {Messages15, {"Saisir un montant valide", "Ajouter"}},
        {Messages16, {"Voulez-vous supprimer : ", " ...", "Supprimer"}},
        {Messages17, {"Selectionner un/des article(s) dans le menu", "Supprimer"}},
        {Messages18, {"Saisir un montant valide", "Renommer"}},
        {Messages19, {"Voulez-vous renommer : ", " ...", "Renommer"}},
        {Messages20, {"Selectionner 1 article dans le menu à renommer", "Renommer"}},
        {Messages21, {"Saisir un article et son montant", "Renommer"}},
        {Messages22, {"Saisir un article", "Rechercher"}},
        {Messages23, {"Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"}},
        {Messages24, {"Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"}},
        {Messages25,
            {"Le menu est vide\nAjouter des articles\nAllez dans le menu Vendel Saisie Article",
                "Afficher"}},
        {Messages26,
            {"Supprimer le(s) %n doublon(s) note(s) X...\nAllez dans le menu Vendel Saisie "
             "Article",
                "Doublon"}},
        {Messages27, {"Le menu est vide\nAjouter des articles", "Afficher"}},
        {Messages28, {"Nombre de caractères ne doient pas dépasser : ", "Nbre caractères"}},
        {Messages29, {"Article Nbre caractères : "}},
        {Messages30, {"Historique est vide\nAjouter des articles et faite PAYER", "Historique"}},
        {Messages31, {"Première date doit-être < seconde date", "Valide date"}},
        {Messages32, {"Saisir une date valide", "Valide date"}},
        {Messages33,
            {"Première date doit-être < seconde date\nAjouter 1 jour à la seconde date",
                "Valide date"}},
        {Messages34, {"Historique est vide pour la pèriode du ", " au ", "Historique"}},
        {Messages35, {"Première date doit-être <= seconde date", "Valide date"}},
        {Messages36,
            {"Saisir une date valide dans première date et seconde date\nClick sur Afficher "
             "Date",
                "Valide date"}},
        {Messages37, {"Total historique"}},
        {Messages38, {"Voulez-vous purger de ", " au ", "Purger"}},
        {Messages39, {"Aucun Article\nFaite Mise à jour", "Afficher"}}, {Messages40, {"Valide"}},
        {Messages41, {"Périmé"}}, {Messages42, {"Ajouter"}}, {Messages43, {"Renommer"}},
        {Messages44, {"Vous n'avez rien à mettre à jour ", "Mettre à jour"}},
        {Messages45, {"Voulez-vous supprimer : ", " ...", "Supprimer"}},
        {Messages46, {"Selectionner un/des article(s) dans le menu", "Supprimer"}},
        {Messages47, {"Saisir une dose valide", "Ajouter"}},
        {Messages48, {"Choisir Unité soit g ou cl", "Ajouter"}},
        {Messages49, {"Saisir Composition / Dose / Choisir Unité", "Ajouter"}},
        {Messages50, {"Valide"}}, {Messages51, {"Périmé"}},
        {Messages52, {"Voulez-vous modifier : ", " ... dans ", "Modifier"}},
        {Messages53, {"Selectionner un/des composition(s) / dose(s) dans la list", "Modifier"}},
        {Messages54, {"Vous n'avez rien à couper / coller", "Modifier"}},
        {Messages55,
            {"Composition est vide\nAller dans le menu Stock Saisie Stock\nDoubleClick sur "
             "article et composez",
                "Calcul Stock"}},
        {Messages57, {"Saisir une TVA valide", "TVA"}},
        {Messages58, {"Choisir entre ON ou OFF", "Epson TM-T20II"}},
        {Messages59, {"Entête de page"}}, {Messages60, {"Pied de page"}},
        {Messages61, {"Sauvegarde", "Sauvegarde"}}, {Messages62, {"titre:"}},
        {Messages63, {"Imprimante non connectée", "Payer"}},
        {Messages64, {"Qtité  ", "Article", "Prix U", "Prix * Qtité"}},
        {Messages65, {"Menu\nClick sur : ", "\nPour l'ajouter au ticket"}},
        {Messages66, {"Ticket\nClick sur : ", "\nPour supprimer l'article du ticket"}},
        {Messages67, {"Menu\nDblClick sur : ", "\nPour l'afficher dans Article et Montant"}},
        {Messages68,
            {"Date\nClick sur : ",
                "\nPour sélectionner la date dans première date ou seconde date\nClick Options "
                "Pre date ou Sec date"}},
        {Messages69,
            {"Date Heure\nClick sur : ",
                "\nPour sélectionner la date dans première date ou seconde date\nClick Options "
                "Pre date ou Sec date"}},
        {Messages70, {"Article\nDoubleClick sur : ", "\nPour faire composition"}},
        {Messages71,
            {"Composition\nDoubleClick sur : ", "\nPour supprimer l'article de la composition"}},
        {Messages72,
            {"Composition\nFaire votre choix dans la liste déroulante\nSélectionner la "
             "composition : ",
                "\nPuis Modifier"}},
        {Messages80, {"Menu"}}, {Messages81, {"Ticket"}}, {Messages82, {"Montant"}},
        {Messages83, {"Effacer Saisie"}}, {Messages84, {"Afficher"}}, {Messages85, {"Ticket"}},
        {Messages86, {"Effacer Ticket"}}, {Messages87, {"Total Ticket"}}, {Messages88, {","}},
        {Messages89, {"Payer"}}, {Messages90, {"Vendel"}}, {Messages91, {"Config"}},
        {Messages92, {"Saisie Article"}}, {Messages93, {"Historique"}}, {Messages94, {"?"}},
        {Messages95, {"A propos de"}}, {Messages96, {"Vendel"}},
        {Messages97, {"#", "X", "Article", "Prix"}}, {Messages98, {"dd/MM/yyyy"}},
        {Messages99, {"#", "Id", "Article", "Prix"}}, {Messages100, {"Impression Ticket"}},
        {Messages101, {","}}, {Messages102, {"TVA"}}, {Messages103, {"Epson TM-T20II"}},
        {Messages104, {"Formulaire Impression Ticket"}}, {Messages105, {"MAJ"}},
        {Messages106, {"MAJ"}}, {Messages107, {"MAJ"}}, {Messages108, {"Config"}},
        {Messages109, {"Formulaire Impression Ticket"}}, {Messages110, {"Afficher"}},
        {Messages111, {"Entête Page"}}, {Messages112, {"Pied Page"}}, {Messages113, {"Formulaire"}},
        {Messages114, {"Sauv Pied Page"}}, {Messages115, {"Sauv Entête Page"}},
        {Messages116, {"Saisie Article"}}, {Messages117, {"Menu"}}, {Messages118, {"Article"}},
        {Messages119, {"Montant"}}, {Messages120, {"Effacer Saisie"}}, {Messages121, {"Afficher"}},
        {Messages122, {"Ajouter"}}, {Messages123, {"Supprimer"}}, {Messages124, {"Renommer"}},
        {Messages125, {"Rechercher"}}, {Messages126, {"Article", "Prix", "Date Heure"}},
        {Messages127, {"Date"}}, {Messages128, {"Qtité", "Article", "Prix", "Qtité * Prix"}},
        {Messages129, {"Vendel Historique"}}, {Messages130, {"Afficher Historique"}},
        {Messages131, {"Afficher Date"}}, {Messages132, {"Total"}}, {Messages133, {"Purge"}},
        {Messages134, {"Première Date"}}, {Messages135, {"Seconde Date"}},
        {Messages136, {"Pre Date"}}, {Messages137, {"Sec Date"}}, {Messages138, {"Effacer Saisie"}},
        {Messages139, {"Stock"}}, {Messages140, {"Saisie Stock"}}, {Messages141, {"Calcul Stock"}},
        {Messages142, {"Options"}}, {Messages143, {"#", "Article", "Validité"}},
        {Messages144, {"#", "id", "Composition", "Dose", "Unité"}}, {Messages145, {"cl"}},
        {Messages146, {"g"}}, {Messages147, {"#", "Article", "Mise à jour"}},
        {Messages148, {"Saisie Stock"}}, {Messages149, {"Composition"}}, {Messages150, {"Dose"}},
        {Messages151, {"Unité"}}, {Messages152, {"Article :"}}, {Messages153, {"Ajouter"}},
        {Messages154, {"Mise à jour Stock"}}, {Messages155, {"Mettre à jour"}},
        {Messages156, {"#", "Article", "Validité"}},
        {Messages157, {"#", "Id", "Composition", "Dose", "Unité"}},
        {Messages158, {"Couper / Coller"}}, {Messages159, {"Modifier"}},
        {Messages160, {"Saisie Stock"}}, {Messages161, {"Afficher"}},
        {Messages162, {"Mise à Jour"}}, {Messages163, {"Supprimer"}},
        {Messages164, {"Couper /\nColler"}},
        {Messages165, {"Qtité", "Article", "Composition", "Dose Unitaire", "Qtité * Dose"}},
        {Messages166, {"Composition", "Consommation", "Unité", "Conversion", "Unité"}},
        {Messages167, {"Calcul Stock"}}, {Messages168, {"Afficher"}},
        {Messages169, {"Pèriode du", "au"}}, {Messages170, {""}},
        {Messages171, {"Le texte n'a pas pu être enregistré", "Sauvegarde"}},
        {Messages172, {"La vente n'est pas enregistrée\nLe ticket est gardé", "Payer"}},
        {Messages173, {"Virgule"}}, {Messages174, {"Plus"}}, {Messages175, {"Moins"}},
        {Messages176, {"Ventes par article"}}, {Messages177, {"Remplaçant"}},
        {Messages178, {"Consommation par article"}}, {Messages179, {"MAJ TVA"}},
        {Messages180, {"MAJ Epson TM-T20II"}}, {Messages181, {"MAJ Formulaire Impression Ticket"}},
        {Messages182, {"Numéro"}},
        {Messages183, {"Le texte n'est pas sauvegardé\nL'abandonner ?", "Sauvegarde"}}};
};
} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsShownAsItIsWritten()
    {
        const Catalogue catalogue;
        QCOMPARE(catalogue.rows.size(), std::size_t{176});
        for (const Row& row : catalogue.rows) {
            QVERIFY2(row.texts == row.shown, row.shown.front().c_str());
        }
    }

    void entriesHaveFixedLengths()
    {
        static_assert(std::tuple_size_v<decltype(Messages::Messages2)> == 1);
        static_assert(std::tuple_size_v<decltype(Messages::Messages12)> == 2);
        static_assert(std::tuple_size_v<decltype(Messages::Messages16)> == 3);
        static_assert(std::tuple_size_v<decltype(Messages::Messages97)> == 4);
        static_assert(std::tuple_size_v<decltype(Messages::Messages165)> == 5);
        static_assert(std::is_const_v<decltype(Messages::Messages0)>);
    }
};

VENDEL_TEST(TestMessages)
#include "tst_Messages.moc"
