// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

namespace {
const std::string addTea = "insert into Article (article, prix) values ('Thé', 2.5)";
const std::string addMilk = "insert into Article (article, prix) values ('Lait', 1)";
} // namespace

/// Statements of which all are carried out or none.
class TestDbTransaction : public QObject
{
    Q_OBJECT

private slots:
    void allStatementsAreCarriedOutInOrder()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbTransact({addTea, addMilk, "update Article set prix = 3 where prix = 1"}));
        QCOMPARE(
            shop.sql("select article, prix from Article"), (DbRows{{"Thé", "2.5"}, {"Lait", "3"}}));
        QCOMPARE(output.text(), QByteArray());
    }

    void noStatementIsNoFailure()
    {
        const Shop shop;
        QVERIFY(Db::DbTransact({}));
    }

    void theFirstRefusedStatementTakesAllOthersBack()
    {
        const Rows<QByteArray, QByteArray> rows{
            {"a table that is missing", "insert into Nowhere values (1)", "no such table: Nowhere"},
            {"a value that is missing", "insert into Article (article) values ('Eau')",
                "NOT NULL constraint failed: Article.prix"},
            {"no SQL", "Bonjour", "near \"Bonjour\": syntax error"},
        };
        for (const auto& [row, refused, reason] : rows) {
            const InRow inRow(row);
            const Shop shop;
            CapturedOutput output;
            QVERIFY(!Db::DbTransact({addTea, refused.toStdString(), addMilk, "neither is this"}));
            QCOMPARE(output.text(), databaseReport(refused, reason));
            QVERIFY(shop.sql("select article from Article").empty());
            QVERIFY(Db::DbTransact({addMilk}));
            QCOMPARE(shop.sql("select article, prix from Article"), (DbRows{{"Lait", "1"}}));
        }
    }
};

VENDEL_TEST(TestDbTransaction)
#include "tst_Db_transaction.moc"
