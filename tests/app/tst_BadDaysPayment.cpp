// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QTableView>

#include <memory>

#include <sys/stat.h>

namespace {
const QString notWritten = QString("Errors FormVendel on_btn_Payer_clicked : the ticket could "
                                   "not be written to the history");
constexpr useconds_t longTime = 60'000'000;

const QByteArray insertion
    = "insert into Historique (id, article, prix) values(7, 'Th\xc3\xa9', 2.5)";
} // namespace

class TestBadDaysPayment : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsLockedForWritingKeepsTheTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.sell("Eau", "3");
        {
            const OtherProcess backup("begin immediate", longTime);
            CapturedLog log;
            CapturedOutput output;
            const AnswerBox box;
            till.pay();
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(), QStringList(notWritten));
            QCOMPARE(output.text(), databaseReport("begin immediate", "database is locked"));
            QVERIFY(till.receipt() == nullptr);
            QCOMPARE(till.shownLines(), 2);
        }
        QCOMPARE(till.ticket().size(), 2);
        QCOMPARE(till.history(), QStringList());
        till.pay();
        QCOMPARE(till.history().size(), 2);
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.takeReceipt().contains(QString("Total ticket\t\t    $5.50\n")));
        QVERIFY(till.sellsOnScreen());
    }

    void aDatabaseThatIsLockedForReadingShowsNoTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        {
            const OtherProcess repair("begin exclusive", longTime);
            CapturedOutput output;
            const AnswerBox box;
            till.pay();
            QCOMPARE(box.text(), QString("Le ticket est vide"));
            QCOMPARE(output.text(), databaseReport("select * from Ticket", "database is locked"));
        }
        QCOMPARE(till.ticket().size(), 1);
        till.pay();
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QVERIFY(!till.takeReceipt().isEmpty());
    }

    void aLockThatComesBetweenKeepsTheTicket()
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
            const AnswerBox box;
            till.pay();
            QVERIFY(repair != nullptr);
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(),
                QStringList(QString(
                    "Errors FormVendel on_btn_Payer_clicked : the ticket could not be read")));
            // The kept ticket cannot be listed either.
            const QByteArray report = databaseReport("select * from Ticket", "database is locked");
            QCOMPARE(output.text(), report + report);
            QVERIFY(till.receipt() == nullptr);
        }
        QCOMPARE(till.history(), QStringList());
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
    }

    void aShortLockIsWaitedFor()
    {
        Till till;
        till.sell("Thé", "2.5");
        const OtherProcess backup("begin immediate", 200'000);
        CapturedLog log;
        till.pay();
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QCOMPARE(till.ticket(), QStringList());
    }

    void aDatabaseThatIsReadOnlyKeepsTheTicket()
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
                const AnswerBox box;
                till.pay();
                QVERIFY(saysNotRecorded(box, till));
            }
            QCOMPARE(log.criticals(), QStringList(notWritten));
            QCOMPARE(
                output.text(), databaseReport(insertion, "attempt to write a readonly database"));
            QVERIFY(till.receipt() == nullptr);
            QCOMPARE(till.shownLines(), 1);
        }
        QCOMPARE(chmod("Vendel.db", 0644), 0);
        QCOMPARE(till.history(), QStringList());
        QCOMPARE(till.ticket().size(), 1);
        QVERIFY(till.sellsOnScreen());
    }

    void aDatabaseThatCannotGrowKeepsTheTicket()
    {
        Till till;
        till.sell("Eau", "3");
        till.sell(QByteArray(10'000, 'x'), "2.5");
        {
            CapturedLog log;
            CapturedOutput output;
            const FileSizeLimit limit(static_cast<rlim_t>(QFileInfo(QString("Vendel.db")).size()));
            const AnswerBox box;
            till.pay();
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(), QStringList(notWritten));
            QCOMPARE(output.text(), databaseReport("commit", "disk I/O error"));
            QVERIFY(till.receipt() == nullptr);
        }
        // The water alone would have fitted into the file.
        QCOMPARE(till.history(), QStringList());
        QCOMPARE(till.ticket().size(), 2);
        till.pay();
        QCOMPARE(till.history().size(), 2);
        QCOMPARE(till.ticket(), QStringList());
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }

    void withoutAHistoryTheTicketIsKept_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("on the screen") << QByteArray("0");
        QTest::newRow("on paper") << QByteArray("1");
    }

    void withoutAHistoryTheTicketIsKept()
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
            const AnswerBox box;
            till.pay();
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(), QStringList(notWritten));
            QCOMPARE(standardOutput.text(), databaseReport(insertion, "no such table: Historique"));
        }
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(printer.transfers().empty());
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.shownLines(), 1);
        till.run("alter table Ailleurs rename to Historique");
        till.pay();
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QCOMPARE(till.ticket(), QStringList());
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }

    void withoutSettingsTheTicketIsKept()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.run("drop table Config");
        CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendel on_btn_Payer_clicked : stoi")));
        QCOMPARE(output.text(),
            databaseReport("select valeur from Config where param like 'Epson TM-T20II'",
                "no such table: Config"));
        QCOMPARE(till.ticket().size(), 1);
        QCOMPARE(till.history().size(), 1);
        click(till.window, "btn_Ticket");
        QCOMPARE(till.shownLines(), 1);
    }

    void withoutATicketThereIsNothingToPay()
    {
        Till till;
        till.run("drop table Ticket");
        CapturedOutput output;
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(output.text(), databaseReport("select * from Ticket", "no such table: Ticket"));
        QCOMPARE(till.history(), QStringList());
    }

    void aDatabaseThatIsAFolderHasNothingToPay()
    {
        Till till;
        till.sell("Thé", "2.5");
        QVERIFY(QFile::rename(QString("Vendel.db"), QString("Vendel.old")));
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        {
            CapturedOutput output;
            const AnswerBox box;
            till.pay();
            QCOMPARE(box.text(), QString("Le ticket est vide"));
            QVERIFY(output.text().startsWith("Not open database successfully\n"));
        }
        QVERIFY(QDir().rmdir(QString("Vendel.db")));
        QVERIFY(QFile::rename(QString("Vendel.old"), QString("Vendel.db")));
        till.pay();
        QCOMPARE(till.history().size(), 1);
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }

    void aFileThatIsNoDatabaseHasNothingToPay()
    {
        Till till;
        till.shop.write(QString("Vendel.db"), QByteArray(8192, 'x'));
        CapturedOutput output;
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(output.text(), databaseReport("select * from Ticket", "file is not a database"));
        QCOMPARE(till.shop.read(QString("Vendel.db")), QByteArray(8192, 'x'));
    }

    void aLineThatTheHistoryRefusesKeepsTheWholeTicketHoweverOftenItIsPaid()
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
            const AnswerBox box;
            till.pay();
            till.pay();
            QCOMPARE(box.texts().size(), 2);
            QCOMPARE(log.criticals(), (QStringList{notWritten, notWritten}));
            QVERIFY(output.text().endsWith("(7, 'Eau', 3) no water\n"));
            QCOMPARE(output.text().count('\n'), 2);
        }
        QVERIFY(till.receipt() == nullptr);
        QCOMPARE(till.history(), QStringList());
        QCOMPARE(
            till.ticket(), (QStringList{QString("Thé 2.5"), QString("Eau 3"), QString("Vin 4")}));
        QCOMPARE(till.shownLines(), 3);
        till.run("drop trigger refusal");
        till.pay();
        QCOMPARE(till.history(),
            (QStringList{QString("7 Thé 2.5"), QString("7 Eau 3"), QString("7 Vin 4")}));
        QCOMPARE(till.ticket(), QStringList());
    }

    void aTicketThatCannotBeEmptiedIsStillThere()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.run(
            "create trigger refusal before delete on Ticket begin select raise(abort, 'no'); end");
        {
            CapturedOutput output;
            till.pay();
            QCOMPARE(output.text(), databaseReport("delete from Ticket", "no"));
        }
        QVERIFY(till.takeReceipt().contains(QString("1  Thé")));
        QCOMPARE(till.ticket().size(), 1);
        till.run("drop trigger refusal");
        QVERIFY(till.sellsOnScreen());
    }

    void aCommitThatAReaderHoldsUpKeepsTheTicket()
    {
        Till till;
        till.sell("Thé", "2.5");
        till.sell("Eau", "3");
        {
            const OtherProcess backup("begin; select * from Config", longTime);
            CapturedLog log;
            CapturedOutput output;
            const AnswerBox box;
            till.pay();
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(), QStringList(notWritten));
            QCOMPARE(output.text(), databaseReport("commit", "database is locked"));
            QVERIFY(till.receipt() == nullptr);
            QCOMPARE(till.shownLines(), 2);
        }
        QCOMPARE(till.history(), QStringList());
        till.pay();
        QCOMPARE(till.history().size(), 2);
    }
};

VENDEL_TEST(TestBadDaysPayment)
#include "tst_BadDaysPayment.moc"
