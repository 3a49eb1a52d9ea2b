// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/BadDays.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFileInfo>
#include <QTableView>

#include <memory>

#include <sys/stat.h>

namespace {
const QString notWritten = QStringLiteral("Errors FormVendel on_btn_Payer_clicked : a line of the "
                                          "ticket could not be written to the history");
constexpr useconds_t longTime = 60'000'000;

const QByteArray insertion
    = "insert into Historique (id, article, prix) values(7, 'Th\xc3\xa9', 2.5)";
} // namespace

class TestBadDaysPayment : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsLockedForWritingKeepsTheTicket();
    void aDatabaseThatIsLockedForReadingShowsNoTicket();
    void aLockThatComesBetweenKeepsTheTicket();
    void aShortLockIsWaitedFor();
    void aDatabaseThatIsReadOnlyKeepsTheTicket();
    void aDatabaseThatCannotGrowKeepsTheTicket();
    void withoutAHistoryTheTicketIsKept_data();
    void withoutAHistoryTheTicketIsKept();
    void withoutSettingsTheTicketIsKept();
    void withoutATicketThereIsNothingToPay();
    void aDatabaseThatIsAFolderHasNothingToPay();
    void aFileThatIsNoDatabaseHasNothingToPay();
    void aLineThatTheHistoryRefusesKeepsTheWholeTicket();
    void aPriceThatIsNoNumberKeepsTheTicket_data();
    void aPriceThatIsNoNumberKeepsTheTicket();
    void anArticleWhosePriceIsNoNumberIsNotSold_data();
    void anArticleWhosePriceIsNoNumberIsNotSold();
    void aTicketThatCannotBeEmptiedIsStillThere();
};

void TestBadDaysPayment::aDatabaseThatIsLockedForWritingKeepsTheTicket()
{
    Till till;
    till.sell("Thé", "2.5");
    till.sell("Eau", "3");
    {
        const OtherProcess backup("begin immediate", longTime);
        CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QCOMPARE(output.text(), databaseReport(insertion, "database is locked"));
        QVERIFY(till.receipt() == nullptr);
    }
    QCOMPARE(till.ticket().size(), 2);
    QCOMPARE(till.history(), QStringList());
    till.pay();
    QCOMPARE(till.history().size(), 2);
    QCOMPARE(till.ticket(), QStringList());
    QVERIFY(till.takeReceipt().contains(QStringLiteral("Total ticket\t\t    $5.50\n")));
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::aDatabaseThatIsLockedForReadingShowsNoTicket()
{
    Till till;
    till.sell("Thé", "2.5");
    {
        const OtherProcess repair("begin exclusive", longTime);
        CapturedOutput output;
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QStringLiteral("Le ticket est vide"));
        QCOMPARE(output.text(), databaseReport("select * from Ticket", "database is locked"));
    }
    QCOMPARE(till.ticket().size(), 1);
    till.pay();
    QCOMPARE(till.history(), QStringList(QStringLiteral("7 Thé 2.5")));
    QVERIFY(!till.takeReceipt().isEmpty());
}

void TestBadDaysPayment::aLockThatComesBetweenKeepsTheTicket()
{
    Till till;
    till.sell("Thé", "2.5");
    {
        std::unique_ptr<OtherProcess> repair;
        connect(child<QTableView>(till.window, "tableView2").model(),
            &QAbstractItemModel::rowsRemoved, &till.window,
            [&] { repair = std::make_unique<OtherProcess>("begin exclusive", longTime); });
        CapturedLog log;
        CapturedOutput output;
        till.pay();
        QVERIFY(repair != nullptr);
        QCOMPARE(log.criticals(),
            QStringList(QStringLiteral(
                "Errors FormVendel on_btn_Payer_clicked : the ticket could not be read")));
        QCOMPARE(output.text(), databaseReport("select * from Ticket", "database is locked"));
        QVERIFY(till.receipt() == nullptr);
    }
    QCOMPARE(till.history(), QStringList());
    QCOMPARE(till.ticket(), QStringList(QStringLiteral("Thé 2.5")));
}

void TestBadDaysPayment::aShortLockIsWaitedFor()
{
    Till till;
    till.sell("Thé", "2.5");
    const OtherProcess backup("begin immediate", 200'000);
    CapturedLog log;
    till.pay();
    QCOMPARE(log.criticals(), QStringList());
    QCOMPARE(till.history(), QStringList(QStringLiteral("7 Thé 2.5")));
    QCOMPARE(till.ticket(), QStringList());
}

void TestBadDaysPayment::aDatabaseThatIsReadOnlyKeepsTheTicket()
{
    Till till;
    till.sell("Thé", "2.5");
    QCOMPARE(chmod(".", 0755), 0);
    QCOMPARE(chmod("Vendel.db", 0444), 0);
    {
        CapturedLog log;
        CapturedOutput output;
        {
            const OrdinaryUser user;
            till.pay();
            click(till.window, "btn_Ticket");
        }
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QCOMPARE(output.text(), databaseReport(insertion, "attempt to write a readonly database"));
        QVERIFY(till.receipt() == nullptr);
        QCOMPARE(till.shownLines(), 1);
    }
    QCOMPARE(chmod("Vendel.db", 0644), 0);
    QCOMPARE(till.history(), QStringList());
    QCOMPARE(till.ticket().size(), 1);
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::aDatabaseThatCannotGrowKeepsTheTicket()
{
    Till till;
    till.sell("Eau", "3");
    till.sell(QByteArray(10'000, 'x'), "2.5");
    {
        CapturedLog log;
        CapturedOutput output;
        const FileSizeLimit limit(
            static_cast<rlim_t>(QFileInfo(QStringLiteral("Vendel.db")).size()));
        till.pay();
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QVERIFY(
            output.text().startsWith("Errors Db::DbLoad sqlite3_errmsg : insert into Historique"));
        QVERIFY(till.receipt() == nullptr);
    }
    // The water fitted into the file, and is sold once more with the rest.
    QCOMPARE(till.history(), QStringList(QStringLiteral("7 Eau 3")));
    QCOMPARE(till.ticket().size(), 2);
    till.pay();
    QCOMPARE(till.history().size(), 3);
    QCOMPARE(till.ticket(), QStringList());
    till.takeReceipt();
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::withoutAHistoryTheTicketIsKept_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("on the screen") << QByteArray("0");
    QTest::newRow("on paper") << QByteArray("1");
}

void TestBadDaysPayment::withoutAHistoryTheTicketIsKept()
{
    QFETCH(QByteArray, output);
    const EmulatedPrinter printer;
    Till till;
    till.setSwitch(output);
    till.sell("Thé", "2.5");
    till.run("alter table Historique rename to Ailleurs");
    {
        CapturedLog log;
        CapturedOutput standardOutput;
        till.pay();
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QCOMPARE(standardOutput.text(), databaseReport(insertion, "no such table: Historique"));
    }
    QVERIFY(till.receipt() == nullptr);
    QVERIFY(printer.transfers().empty());
    QCOMPARE(till.ticket(), QStringList(QStringLiteral("Thé 2.5")));
    QCOMPARE(till.shownLines(), 0);
    till.run("alter table Ailleurs rename to Historique");
    till.pay();
    QCOMPARE(till.history(), QStringList(QStringLiteral("7 Thé 2.5")));
    QCOMPARE(till.ticket(), QStringList());
    till.takeReceipt();
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::withoutSettingsTheTicketIsKept()
{
    Till till;
    till.sell("Thé", "2.5");
    till.run("drop table Config");
    CapturedLog log;
    CapturedOutput output;
    till.pay();
    QCOMPARE(log.criticals(),
        QStringList(QStringLiteral("Errors FormVendel on_btn_Payer_clicked : stoi")));
    QCOMPARE(output.text(),
        databaseReport("select valeur from Config where param like 'Epson TM-T20II'",
            "no such table: Config"));
    QCOMPARE(till.ticket().size(), 1);
    QCOMPARE(till.history().size(), 1);
    click(till.window, "btn_Ticket");
    QCOMPARE(till.shownLines(), 1);
}

void TestBadDaysPayment::withoutATicketThereIsNothingToPay()
{
    Till till;
    till.run("drop table Ticket");
    CapturedOutput output;
    const AnswerBox box;
    till.pay();
    QCOMPARE(box.text(), QStringLiteral("Le ticket est vide"));
    QCOMPARE(output.text(), databaseReport("select * from Ticket", "no such table: Ticket"));
    QCOMPARE(till.history(), QStringList());
}

void TestBadDaysPayment::aDatabaseThatIsAFolderHasNothingToPay()
{
    Till till;
    till.sell("Thé", "2.5");
    QVERIFY(QFile::rename(QStringLiteral("Vendel.db"), QStringLiteral("Vendel.old")));
    QVERIFY(QDir().mkdir(QStringLiteral("Vendel.db")));
    {
        CapturedOutput output;
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QStringLiteral("Le ticket est vide"));
        QVERIFY(output.text().startsWith("Not open database successfully\n"));
    }
    QVERIFY(QDir().rmdir(QStringLiteral("Vendel.db")));
    QVERIFY(QFile::rename(QStringLiteral("Vendel.old"), QStringLiteral("Vendel.db")));
    till.pay();
    QCOMPARE(till.history().size(), 1);
    till.takeReceipt();
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::aFileThatIsNoDatabaseHasNothingToPay()
{
    Till till;
    till.shop.write(QStringLiteral("Vendel.db"), QByteArray(8192, 'x'));
    CapturedOutput output;
    const AnswerBox box;
    till.pay();
    QCOMPARE(box.text(), QStringLiteral("Le ticket est vide"));
    QCOMPARE(output.text(), databaseReport("select * from Ticket", "file is not a database"));
    QCOMPARE(till.shop.read(QStringLiteral("Vendel.db")), QByteArray(8192, 'x'));
}

void TestBadDaysPayment::aLineThatTheHistoryRefusesKeepsTheWholeTicket()
{
    Till till;
    till.sell("Thé", "2.5");
    till.sell("Eau", "3");
    till.sell("Vin", "4");
    till.run("create trigger refusal before insert on Historique when new.article = 'Eau' "
             "begin select raise(abort, 'no water'); end");
    {
        CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QVERIFY(output.text().endsWith("(7, 'Eau', 3) no water\n"));
    }
    QVERIFY(till.receipt() == nullptr);
    QCOMPARE(till.history(), QStringList(QStringLiteral("7 Thé 2.5")));
    QCOMPARE(till.ticket().size(), 3);
    till.run("drop trigger refusal");
    till.pay();
    QCOMPARE(till.history().size(), 4);
    QCOMPARE(till.ticket(), QStringList());
}

void TestBadDaysPayment::aPriceThatIsNoNumberKeepsTheTicket_data()
{
    QTest::addColumn<QByteArray>("price");
    QTest::addColumn<QByteArray>("spliced");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("a word") << QByteArray("'abc'") << QByteArray("abc")
                            << QByteArray("no such column: abc");
    QTest::newRow("nothing") << QByteArray("''") << QByteArray()
                             << QByteArray("near \")\": syntax error");
    QTest::newRow("a comma") << QByteArray("'2,5'") << QByteArray("2,5")
                             << QByteArray("4 values for 3 columns");
    QTest::newRow("too large") << QByteArray("9e999") << QByteArray("Inf")
                               << QByteArray("no such column: Inf");
}

void TestBadDaysPayment::aPriceThatIsNoNumberKeepsTheTicket()
{
    QFETCH(QByteArray, price);
    QFETCH(QByteArray, spliced);
    QFETCH(QByteArray, reason);
    Till till;
    till.sell("Eau", price);
    QCOMPARE(till.shownLines(), 1);
    {
        CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(log.criticals(), QStringList(notWritten));
        QCOMPARE(output.text(),
            databaseReport(
                "insert into Historique (id, article, prix) values(7, 'Eau', " + spliced + ")",
                reason));
    }
    QVERIFY(till.receipt() == nullptr);
    QCOMPARE(till.ticket().size(), 1);
    QCOMPARE(till.history(), QStringList());
    // The cashier takes the line off, and sells on.
    click(till.window, "btn_Ticket");
    clickCell(till.window, "tableView2", 0, 2);
    QCOMPARE(till.ticket(), QStringList());
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::anArticleWhosePriceIsNoNumberIsNotSold_data()
{
    QTest::addColumn<QByteArray>("price");
    QTest::newRow("a word") << QByteArray("'abc'");
    QTest::newRow("nothing") << QByteArray("''");
    QTest::newRow("a comma") << QByteArray("'2,5'");
    QTest::newRow("too large") << QByteArray("9e999");
}

void TestBadDaysPayment::anArticleWhosePriceIsNoNumberIsNotSold()
{
    QFETCH(QByteArray, price);
    Till till;
    till.run("insert into Article (article, prix) values ('Eau', " + price + ")");
    click(till.window, "btn_Afficher");
    {
        CapturedOutput output;
        clickCell(till.window, "tableView1", 0, 2);
        QVERIFY(output.text().startsWith("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket"));
    }
    QCOMPARE(till.shownLines(), 0);
    const AnswerBox box;
    till.pay();
    QCOMPARE(box.text(), QStringLiteral("Le ticket est vide"));
    QCOMPARE(till.history(), QStringList());
    QVERIFY(till.sellsOnScreen());
}

void TestBadDaysPayment::aTicketThatCannotBeEmptiedIsStillThere()
{
    Till till;
    till.sell("Thé", "2.5");
    till.run("create trigger refusal before delete on Ticket begin select raise(abort, 'no'); end");
    {
        CapturedOutput output;
        till.pay();
        QCOMPARE(output.text(), databaseReport("delete from Ticket", "no"));
    }
    QVERIFY(till.takeReceipt().contains(QStringLiteral("1  Thé")));
    QCOMPARE(till.ticket().size(), 1);
    till.run("drop trigger refusal");
    QVERIFY(till.sellsOnScreen());
}

VENDEL_TEST_MAIN(TestBadDaysPayment)
#include "tst_BadDaysPayment.moc"
