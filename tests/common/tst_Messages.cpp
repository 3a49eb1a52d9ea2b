// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"

#include <array>
#include <string>
#include <vector>

namespace {
template <std::size_t Count>
void compare(const char* name, const std::array<std::string, Count>& entry,
    const std::vector<std::string>& expected)
{
    QStringList actual;
    for (const std::string& text : entry) {
        actual << QString::fromStdString(text);
    }
    QStringList literal;
    for (const std::string& text : expected) {
        literal << QString::fromStdString(text);
    }
    QTest::newRow(name) << actual << literal;
}
} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void everyTextStandsAsItIsShown_data()
    {
        QTest::addColumn<QStringList>("actual");
        QTest::addColumn<QStringList>("expected");
        compare("0", Messages::Messages0, {"Le ticket est vide", "Effacer ticket"});
        compare("1", Messages::Messages1, {"Le ticket est vide", "Ticket"});
        compare("2", Messages::Messages2, {"Total ticket"});
        compare("3", Messages::Messages3, {"TVA "});
        compare("4", Messages::Messages4, {"TOTAL "});
        compare("5", Messages::Messages5, {"Le ticket est vide", "Total"});
        compare("6", Messages::Messages6, {"Le ticket est vide", "Payer"});
        compare("7", Messages::Messages7, {"Produit"});
        compare("8", Messages::Messages8, {"Qtité  ", "Article", "Prix U", "Prix * Qtité"});
        compare("9", Messages::Messages9, {"Total ticket"});
        compare("10", Messages::Messages10, {"TVA "});
        compare("11", Messages::Messages11, {"TOTAL "});
        compare("12", Messages::Messages12, {"Saisir un montant", "+/-"});
        compare("13", Messages::Messages13, {"Saisir un montant valide", "+/-"});
        compare("14", Messages::Messages14, {"Saisir un article avec son montant", "Ajouter"});
        compare("15", Messages::Messages15, {"Saisir un montant valide", "Ajouter"});
        compare("16", Messages::Messages16, {"Voulez-vous supprimer : ", " ...", "Supprimer"});
        compare("17", Messages::Messages17,
            {"Selectionner un/des article(s) dans le menu", "Supprimer"});
        compare("18", Messages::Messages18, {"Saisir un montant valide", "Renommer"});
        compare("19", Messages::Messages19, {"Voulez-vous renommer : ", " ...", "Renommer"});
        compare("20", Messages::Messages20,
            {"Selectionner 1 article dans le menu à renommer", "Renommer"});
        compare("21", Messages::Messages21, {"Saisir un article et son montant", "Renommer"});
        compare("22", Messages::Messages22, {"Saisir un article", "Rechercher"});
        compare(
            "23", Messages::Messages23, {"Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"});
        compare(
            "24", Messages::Messages24, {"Supprimer le(s) %n doublon(s) note(s) X...", "Doublon"});
        compare("25", Messages::Messages25,
            {"Le menu est vide\nAjouter des articles\nAllez dans le menu Vendel Saisie Article",
                "Afficher"});
        compare("26", Messages::Messages26,
            {"Supprimer le(s) %n doublon(s) note(s) X...\nAllez dans le menu Vendel Saisie Article",
                "Doublon"});
        compare("27", Messages::Messages27, {"Le menu est vide\nAjouter des articles", "Afficher"});
        compare("28", Messages::Messages28,
            {"Nombre de caractères ne doient pas dépasser : ", "Nbre caractères"});
        compare("29", Messages::Messages29, {"Article Nbre caractères : "});
        compare("30", Messages::Messages30,
            {"Historique est vide\nAjouter des articles et faite PAYER", "Historique"});
        compare(
            "31", Messages::Messages31, {"Première date doit-être < seconde date", "Valide date"});
        compare("32", Messages::Messages32, {"Saisir une date valide", "Valide date"});
        compare("33", Messages::Messages33,
            {"Première date doit-être < seconde date\nAjouter 1 jour à la seconde date",
                "Valide date"});
        compare("34", Messages::Messages34,
            {"Historique est vide pour la pèriode du ", " au ", "Historique"});
        compare(
            "35", Messages::Messages35, {"Première date doit-être <= seconde date", "Valide date"});
        compare("36", Messages::Messages36,
            {"Saisir une date valide dans première date et seconde date\nClick sur Afficher Date",
                "Valide date"});
        compare("37", Messages::Messages37, {"Total historique"});
        compare("38", Messages::Messages38, {"Voulez-vous purger de ", " au ", "Purger"});
        compare("39", Messages::Messages39, {"Aucun Article\nFaite Mise à jour", "Afficher"});
        compare("40", Messages::Messages40, {"Valide"});
        compare("41", Messages::Messages41, {"Périmé"});
        compare("42", Messages::Messages42, {"Ajouter"});
        compare("43", Messages::Messages43, {"Renommer"});
        compare("44", Messages::Messages44, {"Vous n'avez rien à mettre à jour ", "Mettre à jour"});
        compare("45", Messages::Messages45, {"Voulez-vous supprimer : ", " ...", "Supprimer"});
        compare("46", Messages::Messages46,
            {"Selectionner un/des article(s) dans le menu", "Supprimer"});
        compare("47", Messages::Messages47, {"Saisir une dose valide", "Ajouter"});
        compare("48", Messages::Messages48, {"Choisir Unité soit g ou cl", "Ajouter"});
        compare(
            "49", Messages::Messages49, {"Saisir Composition / Dose / Choisir Unité", "Ajouter"});
        compare("50", Messages::Messages50, {"Valide"});
        compare("51", Messages::Messages51, {"Périmé"});
        compare("52", Messages::Messages52, {"Voulez-vous modifier : ", " ... dans ", "Modifier"});
        compare("53", Messages::Messages53,
            {"Selectionner un/des composition(s) / dose(s) dans la list", "Modifier"});
        compare("54", Messages::Messages54, {"Vous n'avez rien à couper / coller", "Modifier"});
        compare("55", Messages::Messages55,
            {"Composition est vide\nAller dans le menu Stock Saisie Stock\nDoubleClick sur article "
             "et "
             "composez",
                "Calcul Stock"});
        compare("57", Messages::Messages57, {"Saisir une TVA valide", "TVA"});
        compare("58", Messages::Messages58, {"Choisir entre ON ou OFF", "Epson TM-T20II"});
        compare("59", Messages::Messages59, {"Entête de page"});
        compare("60", Messages::Messages60, {"Pied de page"});
        compare("61", Messages::Messages61, {"Sauvegarde", "Sauvegarde"});
        compare("62", Messages::Messages62, {"titre:"});
        compare("63", Messages::Messages63, {"Imprimante non connectée", "Payer"});
        compare("64", Messages::Messages64, {"Qtité  ", "Article", "Prix U", "Prix * Qtité"});
        compare("65", Messages::Messages65, {"Menu\nClick sur : ", "\nPour l'ajouter au ticket"});
        compare("66", Messages::Messages66,
            {"Ticket\nClick sur : ", "\nPour supprimer l'article du ticket"});
        compare("67", Messages::Messages67,
            {"Menu\nDblClick sur : ", "\nPour l'afficher dans Article et Montant"});
        compare("68", Messages::Messages68,
            {"Date\nClick sur : ",
                "\nPour sélectionner la date dans première date ou seconde date\nClick Options Pre "
                "date ou Sec date"});
        compare("69", Messages::Messages69,
            {"Date Heure\nClick sur : ",
                "\nPour sélectionner la date dans première date ou seconde date\nClick Options Pre "
                "date ou Sec date"});
        compare("70", Messages::Messages70,
            {"Article\nDoubleClick sur : ", "\nPour faire composition"});
        compare("71", Messages::Messages71,
            {"Composition\nDoubleClick sur : ", "\nPour supprimer l'article de la composition"});
        compare("72", Messages::Messages72,
            {"Composition\nFaire votre choix dans la liste déroulante\nSélectionner la composition "
             ": ",
                "\nPuis Modifier"});
        compare("80", Messages::Messages80, {"Menu"});
        compare("81", Messages::Messages81, {"Ticket"});
        compare("82", Messages::Messages82, {"Montant"});
        compare("83", Messages::Messages83, {"Effacer Saisie"});
        compare("84", Messages::Messages84, {"Afficher"});
        compare("85", Messages::Messages85, {"Ticket"});
        compare("86", Messages::Messages86, {"Effacer Ticket"});
        compare("87", Messages::Messages87, {"Total Ticket"});
        compare("88", Messages::Messages88, {","});
        compare("89", Messages::Messages89, {"Payer"});
        compare("90", Messages::Messages90, {"Vendel"});
        compare("91", Messages::Messages91, {"Config"});
        compare("92", Messages::Messages92, {"Saisie Article"});
        compare("93", Messages::Messages93, {"Historique"});
        compare("94", Messages::Messages94, {"?"});
        compare("95", Messages::Messages95, {"A propos de"});
        compare("96", Messages::Messages96, {"Vendel"});
        compare("97", Messages::Messages97, {"#", "X", "Article", "Prix"});
        compare("98", Messages::Messages98, {"dd/MM/yyyy"});
        compare("99", Messages::Messages99, {"#", "Id", "Article", "Prix"});
        compare("100", Messages::Messages100, {"Impression Ticket"});
        compare("101", Messages::Messages101, {","});
        compare("102", Messages::Messages102, {"TVA"});
        compare("103", Messages::Messages103, {"Epson TM-T20II"});
        compare("104", Messages::Messages104, {"Formulaire Impression Ticket"});
        compare("105", Messages::Messages105, {"MAJ"});
        compare("106", Messages::Messages106, {"MAJ"});
        compare("107", Messages::Messages107, {"MAJ"});
        compare("108", Messages::Messages108, {"Config"});
        compare("109", Messages::Messages109, {"Formulaire Impression Ticket"});
        compare("110", Messages::Messages110, {"Afficher"});
        compare("111", Messages::Messages111, {"Entête Page"});
        compare("112", Messages::Messages112, {"Pied Page"});
        compare("113", Messages::Messages113, {"Formulaire"});
        compare("114", Messages::Messages114, {"Sauv Pied Page"});
        compare("115", Messages::Messages115, {"Sauv Entête Page"});
        compare("116", Messages::Messages116, {"Saisie Article"});
        compare("117", Messages::Messages117, {"Menu"});
        compare("118", Messages::Messages118, {"Article"});
        compare("119", Messages::Messages119, {"Montant"});
        compare("120", Messages::Messages120, {"Effacer Saisie"});
        compare("121", Messages::Messages121, {"Afficher"});
        compare("122", Messages::Messages122, {"Ajouter"});
        compare("123", Messages::Messages123, {"Supprimer"});
        compare("124", Messages::Messages124, {"Renommer"});
        compare("125", Messages::Messages125, {"Rechercher"});
        compare("126", Messages::Messages126, {"Article", "Prix", "Date Heure"});
        compare("127", Messages::Messages127, {"Date"});
        compare("128", Messages::Messages128, {"Qtité", "Article", "Prix", "Qtité * Prix"});
        compare("129", Messages::Messages129, {"Vendel Historique"});
        compare("130", Messages::Messages130, {"Afficher Historique"});
        compare("131", Messages::Messages131, {"Afficher Date"});
        compare("132", Messages::Messages132, {"Total"});
        compare("133", Messages::Messages133, {"Purge"});
        compare("134", Messages::Messages134, {"Première Date"});
        compare("135", Messages::Messages135, {"Seconde Date"});
        compare("136", Messages::Messages136, {"Pre Date"});
        compare("137", Messages::Messages137, {"Sec Date"});
        compare("138", Messages::Messages138, {"Effacer Saisie"});
        compare("139", Messages::Messages139, {"Stock"});
        compare("140", Messages::Messages140, {"Saisie Stock"});
        compare("141", Messages::Messages141, {"Calcul Stock"});
        compare("142", Messages::Messages142, {"Options"});
        compare("143", Messages::Messages143, {"#", "Article", "Validité"});
        compare("144", Messages::Messages144, {"#", "id", "Composition", "Dose", "Unité"});
        compare("145", Messages::Messages145, {"cl"});
        compare("146", Messages::Messages146, {"g"});
        compare("147", Messages::Messages147, {"#", "Article", "Mise à jour"});
        compare("148", Messages::Messages148, {"Saisie Stock"});
        compare("149", Messages::Messages149, {"Composition"});
        compare("150", Messages::Messages150, {"Dose"});
        compare("151", Messages::Messages151, {"Unité"});
        compare("152", Messages::Messages152, {"Article :"});
        compare("153", Messages::Messages153, {"Ajouter"});
        compare("154", Messages::Messages154, {"Mise à jour Stock"});
        compare("155", Messages::Messages155, {"Mettre à jour"});
        compare("156", Messages::Messages156, {"#", "Article", "Validité"});
        compare("157", Messages::Messages157, {"#", "Id", "Composition", "Dose", "Unité"});
        compare("158", Messages::Messages158, {"Couper / Coller"});
        compare("159", Messages::Messages159, {"Modifier"});
        compare("160", Messages::Messages160, {"Saisie Stock"});
        compare("161", Messages::Messages161, {"Afficher"});
        compare("162", Messages::Messages162, {"Mise à Jour"});
        compare("163", Messages::Messages163, {"Supprimer"});
        compare("164", Messages::Messages164, {"Couper /\nColler"});
        compare("165", Messages::Messages165,
            {"Qtité", "Article", "Composition", "Dose Unitaire", "Qtité * Dose"});
        compare("166", Messages::Messages166,
            {"Composition", "Consommation", "Unité", "Conversion", "Unité"});
        compare("167", Messages::Messages167, {"Calcul Stock"});
        compare("168", Messages::Messages168, {"Afficher"});
        compare("169", Messages::Messages169, {"Pèriode du", "au"});
        compare("170", Messages::Messages170, {""});
        compare(
            "171", Messages::Messages171, {"Le texte n'a pas pu être enregistré", "Sauvegarde"});
        compare("172", Messages::Messages172,
            {"La vente n'est pas enregistrée\nLe ticket est gardé", "Payer"});
    }

    void everyTextStandsAsItIsShown()
    {
        QFETCH(QStringList, actual);
        QTEST(actual, "expected");
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
