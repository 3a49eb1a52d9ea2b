// SPDX-License-Identifier: MIT
#include "db/Db.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QElapsedTimer>

namespace {
constexpr useconds_t aMinute = 60'000'000;

const std::string addTea = "insert into Article (article, prix) values ('Thé', 2.5)";
const std::string addMilk = "insert into Article (article, prix) values ('Lait', 1)";

std::string names()
{
    return Db::DbLoad("select group_concat(article) from Article").at(0).at(0);
}

int openDescriptors()
{
    return static_cast<int>(QDir(QString("/proc/self/fd"))
                                .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                                .size());
}
} // namespace

class TestDbTransact : public QObject
{
    Q_OBJECT

private slots:
    void allStatementsAreCarriedOutInOrder()
    {
        const Shop shop;
        CapturedOutput output;
        QVERIFY(Db::DbTransact({addTea, addMilk, "update Article set prix = 3 where prix = 1"}));
        QCOMPARE(names(), std::string("Thé,Lait"));
        QCOMPARE(shop.cell("select prix from Article where article = 'Lait'"), QString("3"));
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
        QCOMPARE(names(), std::string());
        QVERIFY(Db::DbTransact({addMilk}));
        QCOMPARE(names(), std::string("Lait"));
    }

    void aLockedDatabaseIsWaitedForAndNothingIsWritten()
    {
        const Shop shop;
        {
            const OtherProcess backup("begin immediate", aMinute);
            CapturedOutput output;
            QElapsedTimer timer;
            timer.start();
            QVERIFY(!Db::DbTransact({addTea}));
            QVERIFY(timer.elapsed() >= 1500);
            QCOMPARE(output.text(), databaseReport("begin immediate", "database is locked"));
        }
        QCOMPARE(names(), std::string());
    }

    void aCommitThatAReaderHoldsUpTakesAllBack()
    {
        const Shop shop;
        {
            const OtherProcess reader("begin; select * from Config", aMinute);
            CapturedOutput output;
            QVERIFY(!Db::DbTransact({addTea, addMilk}));
            QCOMPARE(output.text(), databaseReport("commit", "database is locked"));
        }
        QCOMPARE(names(), std::string());
        QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
    }

    void aFullFileSystemTakesAllBack()
    {
        const Shop shop;
        shop.sql(addTea.c_str());
        {
            const FileSizeLimit limit(100'000);
            CapturedOutput output;
            const std::string large
                = "insert into Article (article, prix) values (hex(zeroblob(200000)), 1)";
            QVERIFY(!Db::DbTransact({addMilk, large}));
            QVERIFY(output.text().startsWith("Errors Db::DbLoad sqlite3_errmsg : "));
            QVERIFY(output.text().endsWith(" disk I/O error\n"));
        }
        QCOMPARE(names(), std::string("Thé"));
        QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
    }

    void noDescriptorStaysOpen()
    {
        const Shop shop;
        const int before = openDescriptors();
        QVERIFY(Db::DbTransact({addTea}));
        QVERIFY(!Db::DbTransact({addMilk, "refused"}));
        QCOMPARE(openDescriptors(), before);
        QVERIFY(!QFile::exists(QString("Vendel.db-journal")));
    }
};

VENDEL_TEST(TestDbTransact)
#include "tst_DbTransact.moc"
