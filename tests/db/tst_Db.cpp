// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <algorithm>
#include <iostream>

namespace {
long openDescriptors()
{
    return QDir(QString("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}
} // namespace

class TestDb : public QObject
{
    Q_OBJECT

private slots:
    void rowsComeAsTextInSelectOrder()
    {
        const Shop shop;
        QCOMPARE(Db::DbLoad("select 'b', 1, 2.5, -3, 'a'"), (DbRows{{"b", "1", "2.5", "-3", "a"}}));
    }

    void rowsComeInTheOrderOfTheStatement()
    {
        const Shop shop;
        shop.sql(
            "insert into Article (article, prix) values ('Thé', 2.5), ('Bière', 4), ('Eau', 1)");
        QCOMPARE(Db::DbLoad("select id, article, prix from Article order by id desc"),
            (DbRows{{"3", "Eau", "1"}, {"2", "Bière", "4"}, {"1", "Thé", "2.5"}}));
    }

    void anEmptyResultIsSilent()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad("select * from Article").empty());
        QCOMPARE(output.text(), QByteArray());
    }

    void aStatementWithoutRowsIsSilent()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad("insert into Article (article, prix) values ('Thé', 2.5)").empty());
        QVERIFY(Db::DbLoad("delete from Article").empty());
        QCOMPARE(output.text(), QByteArray());
    }

    void anEmptyStatementIsSilent()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad("").empty());
        QVERIFY(Db::DbLoad("  -- nothing to do").empty());
        QCOMPARE(output.text(), QByteArray());
    }

    void nullIsTheEmptyText()
    {
        const Shop shop;
        QCOMPARE(Db::DbLoad("select NULL, '', 0"), (DbRows{{"", "", "0"}}));
    }

    void theSumOfAnEmptyTicketIsTheEmptyText()
    {
        const Shop shop;
        CapturedOutput output;
        QCOMPARE(Db::DbLoad("select sum(prix) from Ticket"), DbRows(1, {std::string()}));
        QCOMPARE(output.text(), QByteArray());
    }

    void manyByteTextComesBackUnchanged()
    {
        const Shop shop;
        Db::DbLoad("insert into Article (article, prix) values ('Crème brûlée €😀 שלום', 1)");
        QCOMPARE(Db::DbLoad("select article from Article").at(0).at(0),
            std::string("Crème brûlée €😀 שלום"));
    }

    void textEndsAtItsFirstNul()
    {
        const Shop shop;
        QCOMPARE(Db::DbLoad("select 'Thé' || char(0) || 'vert'").at(0).at(0), std::string("Thé"));
    }

    void tenThousandCharactersComeBackUnchanged()
    {
        const Shop shop;
        const std::string name(10000, 'x');
        Db::DbLoad(("insert into Article (article, prix) values ('" + name + "', 1)").c_str());
        QCOMPARE(Db::DbLoad("select article from Article").at(0).at(0), name);
    }

    void onlyTheFirstStatementRuns()
    {
        const Shop shop;
        CapturedOutput output;
        Db::DbLoad("insert into Article (article, prix) values ('Thé', 1); delete from Article");
        QCOMPARE(Db::DbLoad("select article from Article"), DbRows(1, {std::string("Thé")}));
        QCOMPARE(output.text(), QByteArray());
    }

    void aSyntaxErrorIsOneLine()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad("selct * from Article").empty());
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : selct * from Article "
                       "near \"selct\": syntax error\n"));
    }

    void anUnknownColumnIsOneLine()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(
            Db::DbLoad("insert into Ticket(id, article, prix) values (0, '----', inf)").empty());
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket(id, article, prix) "
                       "values (0, '----', inf) no such column: inf\n"));
    }

    void anErrorAfterSomeRowsKeepsThem()
    {
        const Shop shop;
        CapturedOutput output;
        const char* sql = "select abs(column1) from (values (7), (-9223372036854775807 - 1))";
        QCOMPARE(Db::DbLoad(sql), DbRows(1, {std::string("7")}));
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : ") + sql + " integer overflow\n");
    }

    void theStatementIsReportedAsItStands()
    {
        const Shop shop;
        CapturedOutput output;
        Db::DbLoad("select 'Thé\n€' from Nowhere");
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : select 'Thé\n€' from Nowhere "
                       "no such table: Nowhere\n"));
    }

    void nullAsStatementIsSilent()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbLoad(nullptr).empty());
        QVERIFY(!std::cout.fail());
        QCOMPARE(output.text(), QByteArray());
    }

    void aDeletedStockArticleLeavesItsRecipe()
    {
        const Shop shop;
        shop.sql("insert into ArticleStock (id, article) values (7, 'Kir')");
        shop.sql(
            "insert into DoseStock (id, composition, dose, unite) values (7, 'Cassis', 2, 'cl')");
        CapturedOutput output;
        Db::DbLoad("delete from ArticleStock where id = 7");
        QVERIFY(Db::DbLoad("select * from ArticleStock").empty());
        QCOMPARE(Db::DbLoad("select id, composition from DoseStock"), (DbRows{{"7", "Cassis"}}));
        Db::DbLoad(
            "insert into DoseStock (id, composition, dose, unite) values (99, 'Rien', 1, 'g')");
        QCOMPARE(Db::DbLoad("select count(*) from DoseStock").at(0).at(0), std::string("2"));
        QCOMPARE(output.text(), QByteArray());
    }

    void tenThousandCallsLeaveNoDescriptorOpen()
    {
        const Shop shop;
        const long before = openDescriptors();
        for (int call = 0; call < 10000; ++call) {
            Db::DbLoad("select valeur from Config where param like 'TVA'");
        }
        QCOMPARE(openDescriptors(), before);
    }

    void failingCallsLeaveNoDescriptorOpen()
    {
        const Shop shop;
        CapturedOutput output;
        const long before = openDescriptors();
        for (int call = 0; call < 100; ++call) {
            Db::DbLoad("select abs(column1) from (values (7), (-9223372036854775807 - 1))");
            Db::DbLoad("selct");
            Db::DbLoad(nullptr);
        }
        QCOMPARE(openDescriptors(), before);
    }

    void theDatabaseIsTheOneOfTheWorkingDirectory()
    {
        const Shop outer;
        outer.sql("insert into Article (article, prix) values ('Thé', 1)");
        {
            const Shop inner;
            QVERIFY(Db::DbLoad("select * from Article").empty());
        }
        QCOMPARE(Db::DbLoad("select count(*) from Article").at(0).at(0), std::string("1"));
    }

    void aMissingDatabaseIsMade()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        QCOMPARE(Db::DbLoad("select 1"), DbRows(1, {std::string("1")}));
        QVERIFY(QFile::exists(QString("Vendel.db")));
        QCOMPARE(output.text(), QByteArray());
    }
};

VENDEL_TEST(TestDb)
#include "tst_Db.moc"
