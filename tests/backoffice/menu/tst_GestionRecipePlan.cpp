// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportPlan.h"
#include "store/Transaction.h"
#include "tests/backoffice/menu/PlanLook.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

namespace {
struct Kitchen : Shop
{
    Kitchen()
    {
        fill("insert into Article (id, article, prix) values (1, 'Café', 1.5), (2, 'Thé', 2), "
             "(3, 'Eau', 1), (4, 'EAU', 1), (5, 'Cidre', 3), (6, 'Jus', 2);"
             "insert into ArticleStock (id, article) values (1, 'Café'), (2, 'Thé'), "
             "(9, 'Disparu');"
             "insert into DoseStock (idlig, id, composition, dose, unite) values "
             "(10, 1, 'Lait', 2.5, 'cl'), (11, 1, 'Sucre', 5, 'g'), (12, 1, 'Rhum', 1, 'fl. oz'), "
             "(13, 2, 'Miel', 1, 'g'), (14, 2, 'miel', 2, 'g'), (15, 9, 'Lait', 1, 'cl')");
    }

    QString recipes() const
    {
        return cell("select group_concat(idlig || ' ' || id || composition || dose || unite) "
                    "from (select * from DoseStock order by idlig)");
    }
    QString stock() const { return cell("select group_concat(id || article) from ArticleStock"); }
};

QStringList planned(const char* bytes) { return look(bytes, ImportKind::Recipes); }
} // namespace

class TestGestionRecipePlan : public QObject
{
    Q_OBJECT

private slots:
    void eachLineIsNewChangedOrUnchanged()
    {
        const Kitchen shop;
        QCOMPARE(planned("article;composition;dose;unité\n"
                         "café;LAIT;3;cl\n"
                         "Café;Sucre;5,00;g\n"
                         "Café;Rhum;1;fl. oz\n"
                         "Café;Crème;1,5;CL\n"),
            (QStringList{"2 changed 2,5 cl → 3 cl", "3 unchanged", "4 unchanged", "5 new"}));
    }

    void aUnitMayChange()
    {
        const Kitchen shop;
        QCOMPARE(planned("Café;Sucre;5;cl\nCafé;Rhum;3;cl\nCafé;Lait;2,5;oz\n"),
            (QStringList{"1 changed 5 g → 5 cl", "2 changed 1 fl. oz → 3 cl",
                "3 refused Unité\u00a0: «\u00a0cl\u00a0» ou «\u00a0g\u00a0»"}));
    }

    void whatIsWrongIsSaid()
    {
        const Kitchen shop;
        QCOMPARE(planned("article;composition;dose;unité\n"
                         "Disparu;Lait;2;cl\n"
                         "Eau;Sel;2;g\n"
                         "Café; ;2;g\n"
                         "Café;Sel;un peu;g\n"
                         "Café;Sel;-1;g\n"
                         "Thé;Miel;3;g\n"
                         "Thé;Eau;20;l\n"
                         "Thé;Lait;20;cl;x\n"),
            (QStringList{"2 refused L'article n'est pas sur le menu",
                "3 refused L'article est plusieurs fois sur le menu",
                "4 refused Pas de composition", "5 refused Dose\u00a0: pas un nombre",
                "6 refused Dose négative", "7 refused Plusieurs fois dans la recette",
                "8 refused Unité\u00a0: «\u00a0cl\u00a0» ou «\u00a0g\u00a0»",
                "9 refused Plus de colonnes que de titres"}));
    }

    void aCompositionThatIsTwiceInTheFileIsRefusedBothTimes()
    {
        const Kitchen shop;
        QCOMPARE(planned("Café;Sel;1;g\nCAFé;sel ;2;g\nThé;Sel;1;g\n"),
            (QStringList{"1 refused Plusieurs fois dans le fichier\u00a0: lignes 1 et 2",
                "2 refused Plusieurs fois dans le fichier\u00a0: lignes 1 et 2", "3 new"}));
    }

    void theStatementsDoWhatWasSaid()
    {
        const Kitchen shop;
        const auto plan
            = planOf("Café;Lait;3;cl\nThé;L'eau;20;cl\nCafé;Sel;x;g\n", ImportKind::Recipes);
        QVERIFY(Transaction::run(plan.statements));
        QCOMPARE(shop.recipes(),
            QString("10 1Lait3cl,11 1Sucre5g,12 1Rhum1fl. oz,13 2Miel1g,14 2miel2g,15 9Lait1cl,"
                    "16 2L'eau20cl"));
        QCOMPARE(shop.stock(), QString("1Café,2Thé,9Disparu"));
    }

    void anArticleThatTheStockLacksEntersIt()
    {
        const Kitchen shop;
        const auto plan = planOf("Cidre;Pommes;200;g\nJus;Pommes;100;g\n", ImportKind::Recipes);
        // The check, one that updates the stock, and two lines.
        QCOMPARE(plan.statements.size(), std::size_t(4));
        QVERIFY(Transaction::run(plan.statements));
        QCOMPARE(shop.stock(), QString("1Café,2Thé,3Eau,4EAU,5Cidre,6Jus,9Disparu"));
        QCOMPARE(
            shop.cell("select group_concat(id || composition) from DoseStock where idlig > 15"),
            QString("5Pommes,6Pommes"));
    }

    void aPlanForOtherRecipesIsNotDone()
    {
        const Kitchen shop;
        for (const char* change : {"update DoseStock set dose = 2 where idlig = 11",
                 "delete from DoseStock where idlig = 12",
                 "insert into ArticleStock (id, article) values (5, 'Cidre')",
                 "update Article set prix = 4 where id = 5"}) {
            const auto plan = planOf("Café;Lait;3;cl\n", ImportKind::Recipes);
            shop.sql(change);
            const QString before = shop.recipes();
            const CapturedOutput output;
            QVERIFY(!Transaction::run(plan.statements));
            QCOMPARE(shop.recipes(), before);
        }
    }
};

VENDEL_TEST(TestGestionRecipePlan)
#include "tst_GestionRecipePlan.moc"
