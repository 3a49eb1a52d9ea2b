// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Captured.h"
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

    void theFirstRefusedStatementTakesAllOthersBack_data()
    {
        QTest::addColumn<QByteArray>("refused");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("a table that is missing")
            << QByteArray("insert into Nowhere values (1)") << QByteArray("no such table: Nowhere");
        QTest::newRow("a value that is missing")
            << QByteArray("insert into Article (article) values ('Eau')")
            << QByteArray("NOT NULL constraint failed: Article.prix");
        QTest::newRow("no SQL") << QByteArray("Bonjour")
                                << QByteArray("near \"Bonjour\": syntax error");
    }

    void theFirstRefusedStatementTakesAllOthersBack()
    {
        QFETCH(QByteArray, refused);
        QFETCH(QByteArray, reason);
        const Shop shop;
        CapturedOutput output;
        QVERIFY(!Db::DbTransact({addTea, refused.toStdString(), addMilk, "neither is this"}));
        QCOMPARE(output.text(), databaseReport(refused, reason));
        QVERIFY(shop.sql("select article from Article").empty());
        QVERIFY(Db::DbTransact({addMilk}));
        QCOMPARE(shop.sql("select article, prix from Article"), (DbRows{{"Lait", "1"}}));
    }
};

VENDEL_TEST(TestDbTransaction)
#include "tst_Db_transaction.moc"
