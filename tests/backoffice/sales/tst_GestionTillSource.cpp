// SPDX-License-Identifier: MIT
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/TestProgram.h"

/// What the till's database says of sales, menu and settings.
class TestGestionTillSource : public QObject
{
    Q_OBJECT

private slots:
    void hoursAreAddedUp()
    {
        const GestionShop shop;
        shop.sell("2026-11-19 23:59:59.999", "Thé", "3");
        shop.sell("2026-11-20 00:00:00.000", "Café", "1.5");
        shop.sell("2026-11-20 09:00:00.000", "Café", "1.5");
        shop.sell("2026-11-20 09:59:59.999", "----", "-0.25");
        shop.sell("2026-11-20 10:00:00.000", "Thé", "2.005");
        shop.sell("2026-11-21 23:59:59.999", "Thé", "'3.5'");
        shop.sell("2026-11-22 00:00:00.000", "Thé", "3");
        TillSource source(shop.path());
        QCOMPARE(shown(source.hours(days("2026-11-20", "2026-11-21"), {})),
            QStringList({"2026-11-20 0h 1 15000", "2026-11-20 9h 2 12500", "2026-11-20 10h 1 20050",
                "2026-11-21 23h 1 35000"}));
    }

    void articlesAreAddedUpWithoutTheirCase()
    {
        const GestionShop shop;
        shop.sell("2026-11-20 09:00:00.000", "cafe", "1.5");
        shop.sell("2026-11-20 10:00:00.000", "Cafe", "1.75");
        shop.sell("2026-11-20 11:00:00.000", "Émile", "4");
        shop.sell("2026-11-20 11:00:00.000", "émile", "4");
        shop.sell("2026-11-21 09:00:00.000", "CAFE", "1");
        shop.sell("2026-11-21 09:00:00.000", "----", "-1");
        shop.sell("2026-11-22 09:00:00.000", "Thé", "1");
        TillSource source(shop.path());
        QCOMPARE(shown(source.articles(days("2026-11-20", "2026-11-21"), {})),
            QStringList({"---- 1 -10000", "CAFE 3 42500", "Émile 1 40000", "émile 1 40000"}));
    }

    void usesAreOfTheRangeAndOfEachDay()
    {
        const GestionShop shop;
        shop.fill(
            "insert into ArticleStock values (1, 'Café'), (2, 'Bière');"
            "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl'), (2, 2, 'Bière', 8, 'oz')");
        shop.sell("2026-11-20 09:00:00.000", "Café", "1.5");
        shop.sell("2026-11-20 09:00:00.000", "Café", "1.5");
        shop.sell("2026-11-21 09:00:00.000", "Café", "1.5");
        shop.sell("2026-11-21 09:00:00.000", "Bière", "4");
        shop.sell("2026-11-21 09:00:00.000", "Bière", "4");
        TillSource source(shop.path());
        QCOMPARE(shown(source.uses(days("2026-11-20", "2026-11-21"), {})),
            QStringList({"* Bière 16 oz = 1 pound", "* Lait 7.5 cl", "2026-11-20 Lait 5 cl",
                "2026-11-21 Bière 16 oz = 1 pound", "2026-11-21 Lait 2.5 cl"}));
    }

    void theMenuIsInTheOrderOfTheNames()
    {
        const GestionShop shop;
        shop.fill("insert into Article (article, prix) values ('thé', 2.5), ('Café', 1.2), ('Thé', "
                  "3), ('bière', 4.125)");
        TillSource source(shop.path());
        QStringList menu;
        for (const MenuArticle& article : source.menu()) {
            menu << article.article + ' ' + QString::number(article.price);
        }
        QCOMPARE(menu, QStringList({"bière 41250", "Café 12000", "thé 25000", "Thé 30000"}));
    }

    void theTaxRateIsTheConfiguredOne()
    {
        const GestionShop shop;
        TillSource source(shop.path());
        QCOMPARE(source.taxRate(), 0.0);
        shop.sql("update Config set valeur = 5.5 where param = 'TVA'");
        QCOMPARE(source.taxRate(), 5.5);
    }

    void anEmptyShopHasSoldNothing()
    {
        const GestionShop shop;
        TillSource source(shop.path());
        QCOMPARE(source.tills(), std::vector<QString>({QString("Caisse")}));
        QVERIFY(source.hours(days("2026-11-20", "2026-11-21"), {}).empty());
        QVERIFY(source.articles(days("2026-11-20", "2026-11-21"), {}).empty());
        QVERIFY(source.uses(days("2026-11-20", "2026-11-21"), {}).empty());
        QVERIFY(source.menu().empty());
    }

    void aChangeIsNoticedOnce()
    {
        const GestionShop shop;
        TillSource source(shop.path());
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
        shop.sell("2026-11-20 09:00:00.000", "Café", "1.5");
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
    }
};

VENDEL_TEST(TestGestionTillSource)
#include "tst_GestionTillSource.moc"
