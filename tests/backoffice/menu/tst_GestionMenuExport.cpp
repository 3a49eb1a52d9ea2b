// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportPlan.h"
#include "backoffice/menu/MenuExport.h"
#include "backoffice/menu/SheetText.h"
#include "backoffice/output/CsvFile.h"
#include "tests/backoffice/menu/PlanLook.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

namespace {
const CsvFormat french{';', ','};
const CsvFormat english{',', '.'};

/// Fails the running test unless an import of \a bytes leaves everything as it is.
void compareUnchanged(const QByteArray& bytes, ImportKind kind, int lines)
{
    const auto plan = planOf(bytes, kind);
    QVERIFY2(
        plan.count(ImportAction::Unchanged) == lines && plan.lines.size() == std::size_t(lines),
        qPrintable(bytes + look(plan).join('\n')));
}
} // namespace

class TestGestionMenuExport : public QObject
{
    Q_OBJECT

private slots:
    void theMenuIsATable()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('Thé', 2), ('Café', 1.5), "
                  "('=1+1', -3)");
        QCOMPARE(csv(MenuExport::menu(), french),
            QByteArray("\xef\xbb\xbf\"Article\";\"Prix\"\r\n\"'=1+1\";-3,00\r\n\"Café\";1,50\r\n"
                       "\"Thé\";2,00\r\n"));
        QCOMPARE(csv(MenuExport::menu(), english),
            QByteArray("\xef\xbb\xbf\"Article\",\"Prix\"\r\n\"'=1+1\",-3.00\r\n\"Café\",1.50\r\n"
                       "\"Thé\",2.00\r\n"));
    }

    void theRecipesAreATable()
    {
        const Shop shop;
        shop.fill("insert into Article (id, article, prix) values (1, 'Café', 1.5), (2, 'Thé', 2);"
                  "insert into ArticleStock (id, article) values (1, 'Kawa'), (9, 'Disparu');"
                  "insert into DoseStock (id, composition, dose, unite) values (1, 'Lait', 2.5, "
                  "'cl'), (9, 'Sel', 1, 'g'), (1, 'Sucre', 0.125, 'g')");
        QCOMPARE(csv(MenuExport::recipes(), french),
            QByteArray("\xef\xbb\xbf\"Article\";\"Composition\";\"Dose\";\"Unité\"\r\n"
                       "\"Café\";\"Lait\";2,5;\"cl\"\r\n\"Café\";\"Sucre\";0,125;\"g\"\r\n"));
    }

    void hostileNamesAreReadBackAsTheyAre()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('a;b', 1), ('a,b', 2), ('a\"b', 3), "
                  "('\"', 4), ('a' || char(10) || 'b', 5), ('a' || char(13, 10) || 'b', 6), "
                  "('=1+1', 7), ('----', 8), ('''=x', 9), ('''''@', 10), ('''x', 11), (' x ', 12), "
                  "(char(9) || 'y', 13), ('@z', 14), ('+', 15), ('12,50', 16), ('Prix', 17), "
                  "('article', 18), ('  ', 19), ('茶', 20), ('sep=;', 21), (char(10), 22)");
        compareUnchanged(csv(MenuExport::menu(), french), ImportKind::Menu, 22);
        compareUnchanged(csv(MenuExport::menu(), english), ImportKind::Menu, 22);
    }

    void pricesAreReadBackAsTheyAre_data()
    {
        QTest::addColumn<QString>("prices");
        QTest::addColumn<int>("lines");
        QTest::newRow("money") << QString("(1234.5), (-2), (0), (0.05), (999999999.99)") << 5;
        QTest::newRow("a thousand") << QString("(1234)") << 1;
        QTest::newRow("fractions of a coin") << QString("(1.25), (1.255), (0.123456)") << 3;
        QTest::newRow("one that could be a thousand") << QString("(1.255)") << 1;
        QTest::newRow("one with four digits") << QString("(1234.5678)") << 1;
    }

    void pricesAreReadBackAsTheyAre()
    {
        QFETCH(QString, prices);
        QFETCH(int, lines);
        const Shop shop;
        shop.fill(("create table p (prix numeric); insert into p values " + prices
            + "; insert into Article (article, prix) select 'n' || rowid, prix from p")
                      .toUtf8()
                      .constData());
        compareUnchanged(csv(MenuExport::menu(), french), ImportKind::Menu, lines);
        compareUnchanged(csv(MenuExport::menu(), english), ImportKind::Menu, lines);
    }

    void whatIsNoPriceChangesNothing()
    {
        const Shop shop;
        shop.fill("insert into Article (article, prix) values ('a', 'abc'), ('b', 1e20), ('c', 2)");
        for (const CsvFormat& format : {french, english}) {
            const auto plan = planOf(csv(MenuExport::menu(), format), ImportKind::Menu);
            QCOMPARE(plan.changes(), 0);
            QCOMPARE(plan.count(ImportAction::Refused), 2);
        }
    }

    void recipesAreReadBackAsTheyAre()
    {
        const Shop shop;
        shop.fill("insert into Article (id, article, prix) values (1, '=Café;', 1.5), (2, '----', "
                  "2); insert into ArticleStock (id, article) select id, article from Article;"
                  "insert into DoseStock (id, composition, dose, unite) values "
                  "(1, 'a' || char(10) || 'b', 1.125, 'cl'), (1, '-\"-', 2, 'oz'), "
                  "(2, ' Lait ', 0, 'fl. oz'), (2, 'x', 1250, '')");
        compareUnchanged(csv(MenuExport::recipes(), french), ImportKind::Recipes, 4);
        compareUnchanged(csv(MenuExport::recipes(), english), ImportKind::Recipes, 4);
    }

    void anEmptyMenuIsAHeading()
    {
        const Shop shop;
        compareUnchanged(csv(MenuExport::menu(), french), ImportKind::Menu, 0);
        compareUnchanged(csv(MenuExport::recipes(), english), ImportKind::Recipes, 0);
    }

    void aDatabaseThatDoesNotAnswerIsNoEmptyMenu()
    {
        const Shop shop(Shop::Database::None);
        const CapturedOutput output;
        QVERIFY_EXCEPTION_THROWN(MenuExport::menu(), ImportError);
        QVERIFY_EXCEPTION_THROWN(MenuExport::recipes(), ImportError);
    }
};

VENDEL_TEST(TestGestionMenuExport)
#include "tst_GestionMenuExport.moc"
