// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

#include <iostream>

namespace {
const char* const someRowsThenAnError
    = "select abs(column1) from (values (7), (-9223372036854775807 - 1))";

auto openDescriptors()
{
    const auto kinds = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    return QDir("/proc/self/fd").entryList(kinds).size();
}
} // namespace

/// One statement on the working directory's database.
class TestDbLoad : public QObject
{
    Q_OBJECT

private slots:
    void columnsAreTextInTheStatementsOrder()
    {
        const Rows<QByteArray, DbRows> rows{
            {"numbers", "select 'b', 1, 2.5, -3, 'a'", {{"b", "1", "2.5", "-3", "a"}}},
            {"several rows", "values (3, 'Eau', 1), (2, 'Bière', 4), (1, 'Thé', 2.5)",
                {{"3", "Eau", "1"}, {"2", "Bière", "4"}, {"1", "Thé", "2.5"}}},
            {"NULL is the empty text", "select NULL, '', 0", {{"", "", "0"}}},
            {"the sum of an empty ticket", "select sum(prix) from Ticket",
                DbRows(1, {std::string()})},
            {"characters of several bytes", "select 'Crème brûlée €😀 שלום', 1",
                {{"Crème brûlée €😀 שלום", "1"}}},
            {"text ends at its first NUL", "select 'Thé' || char(0) || 'vert', 1", {{"Thé", "1"}}},
            {"no row", "select * from Article", {}},
            {"no result", "delete from Article", {}},
            {"nothing", "", {}},
            {"a comment", "  -- nothing to do", {}},
        };
        for (const auto& [row, sql, loaded] : rows) {
            const InRow inRow(row);
            const Shop shop;
            CapturedOutput output;
            QCOMPARE(Db::DbLoad(sql.constData()), loaded);
            QCOMPARE(output.text(), QByteArray());
        }
    }

    void whatIsInsertedComesBack()
    {
        const Shop shop;
        CapturedOutput output;
        const std::string name(10'000, 'x');
        const std::string insertion
            = "insert into Article (article, prix) values ('Crème €😀', 2.5), ('" + name + "', 4)";
        QVERIFY(Db::DbLoad(insertion.c_str()).empty());
        QCOMPARE(Db::DbLoad("select id, article, prix from Article order by id desc"),
            (DbRows{{"2", name, "4"}, {"1", "Crème €😀", "2.5"}}));
        QCOMPARE(output.text(), QByteArray());
    }

    void onlyTheFirstStatementRuns()
    {
        const Shop shop;
        CapturedOutput output;
        Db::DbLoad("insert into Article (article, prix) values ('Thé', 1); delete from Article");
        QCOMPARE(shop.cell("select article from Article"), QString("Thé"));
        QCOMPARE(output.text(), QByteArray());
    }

    void anErrorIsOneLineWithTheStatement()
    {
        const Rows<QByteArray, QByteArray> rows{
            {"a syntax error", "selct * from Article", "near \"selct\": syntax error"},
            {"an unknown column", "insert into Ticket(id, article, prix) values (0, '----', inf)",
                "no such column: inf"},
            {"a statement of two lines", "select 'Thé\n€' from Nowhere", "no such table: Nowhere"},
        };
        for (const auto& [row, sql, reason] : rows) {
            const InRow inRow(row);
            const Shop shop;
            CapturedOutput output;
            QVERIFY(Db::DbLoad(sql.constData()).empty());
            QCOMPARE(
                output.text(), "Errors Db::DbLoad sqlite3_errmsg : " + sql + ' ' + reason + '\n');
        }
    }

    void anErrorAfterSomeRowsKeepsThem()
    {
        const Shop shop;
        CapturedOutput output;
        QCOMPARE(Db::DbLoad(someRowsThenAnError), DbRows(1, {std::string("7")}));
        QCOMPARE(output.text(), databaseReport(someRowsThenAnError, "integer overflow"));
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
        shop.fill(
            "insert into ArticleStock (id, article) values (7, 'Kir');"
            "insert into DoseStock (id, composition, dose, unite) values (7, 'Cassis', 2, 'cl')");
        CapturedOutput output;
        Db::DbLoad("delete from ArticleStock where id = 7");
        QVERIFY(Db::DbLoad("select * from ArticleStock").empty());
        QCOMPARE(Db::DbLoad("select id, composition from DoseStock"), (DbRows{{"7", "Cassis"}}));
        Db::DbLoad(
            "insert into DoseStock (id, composition, dose, unite) values (99, 'Rien', 1, 'g')");
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("2"));
        QCOMPARE(output.text(), QByteArray());
    }

    void noDescriptorStaysOpen()
    {
        const Shop shop;
        CapturedOutput output;
        const auto before = openDescriptors();
        for (int call = 0; call < 10'000; ++call) {
            Db::DbLoad("select valeur from Config where param like 'TVA'");
        }
        for (int call = 0; call < 100; ++call) {
            Db::DbLoad(someRowsThenAnError);
            Db::DbLoad("selct");
            Db::DbLoad(nullptr);
        }
        QCOMPARE(openDescriptors(), before);
        QVERIFY(Db::DbTransact({"delete from Ticket"}));
        QVERIFY(!Db::DbTransact({"delete from Ticket", "refused"}));
        QCOMPARE(openDescriptors(), before);
        QVERIFY(!QFile::exists("Vendel.db-journal"));
    }

    void theDatabaseIsTheOneOfTheWorkingDirectory()
    {
        const Shop outer;
        outer.sql("insert into Article (article, prix) values ('Thé', 1)");
        {
            const Shop inner;
            QVERIFY(Db::DbLoad("select * from Article").empty());
        }
        QCOMPARE(outer.cell("select count(*) from Article"), QString("1"));
    }

    void aMissingDatabaseIsMade()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        QCOMPARE(Db::DbLoad("select 1"), DbRows(1, {std::string("1")}));
        QVERIFY(QFile::exists("Vendel.db"));
        QCOMPARE(output.text(), QByteArray());
    }
};

VENDEL_TEST(TestDbLoad)
#include "tst_Db_load.moc"
