// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/WindowFailures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTableView>

#include <memory>

#include <sys/stat.h>

namespace {
constexpr useconds_t longTime = 60'000'000;
const QString payError = "Errors FormVendel on_btn_Payer_clicked : ";
const QString notWritten = payError + "the ticket could not be written to the history";

/// What the database writes when the history refuses a line.
QByteArray refusedLine(const QByteArray& line, const QByteArray& reason)
{
    return databaseReport(
        "insert into Historique (id, article, prix) values(" + line + ")", reason);
}

/// Pays in vain: the till says that nothing is recorded, keeps the ticket and logs \a error, the
/// database writes \a report.
void payUnrecorded(Till& till, const QByteArray& report, const QString& error = notWritten)
{
    const auto lines = till.ticket().size();
    const CapturedLog log;
    CapturedOutput output;
    const AnswerBox box;
    till.pay();
    QVERIFY(saysNotRecorded(box, till));
    QCOMPARE(log.criticals(), QStringList(error));
    QCOMPARE(output.text(), report);
    QVERIFY(till.receipt() == nullptr);
    QCOMPARE(till.shownLines(), lines);
}

/// Pays a ticket that looks empty, since the database writes \a report instead of its lines.
void payNothing(Till& till, const QByteArray& report)
{
    CapturedOutput output;
    const AnswerBox box;
    till.pay();
    QCOMPARE(box.texts(), QStringList("Le ticket est vide"));
    QCOMPARE(output.text(), report);
}

/// Pays a ticket whose receipt is not filled, because of \a reason: the sale is recorded, the
/// ticket is kept.
void payWithoutReceipt(Till& till, const char* reason)
{
    const CapturedLog log;
    CapturedOutput output;
    till.pay();
    QCOMPARE(
        log.criticals(), QStringList("Errors FormVendelTicket Constructor : " + QString(reason)));
    QVERIFY(!output.text().contains("delete"));
    QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
}
} // namespace

/// A database that refuses a sale, and what else goes wrong before its receipt.
class TestPaymentFailures : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsLockedForWritingKeepsTheTicket()
    {
        const Rows<QByteArray, QByteArray> rows{
            {"by a writer", "begin immediate", "begin immediate"},
            {"by a reader", "begin; select * from Config", "commit"},
        };
        for (const auto& [row, lock, refused] : rows) {
            const InRow inRow(row);
            TillWithTea till;
            till.sell("Eau", "3");
            {
                const OtherProcess backup(lock.constData(), longTime);
                payUnrecorded(till, databaseReport(refused, "database is locked"));
            }
            QCOMPARE(till.books(), QString("sold: ; ticket: Thé 2.5, Eau 3; 2 shown"));
            till.pay();
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Eau 3; ticket: ; 0 shown"));
            QVERIFY(till.takeReceipt().contains("Total ticket\t\t    $5.50\n"));
            QVERIFY(till.sellsOnScreen());
        }
    }

    void aDatabaseThatIsLockedForReadingShowsNoTicket()
    {
        TillWithTea till;
        {
            const OtherProcess repair("begin exclusive", longTime);
            payNothing(till, databaseReport("select * from Ticket", "database is locked"));
        }
        QCOMPARE(till.ticket().size(), 1);
        till.pay();
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        QVERIFY(!till.takeReceipt().isEmpty());
    }

    void aLockThatComesBetweenKeepsTheTicket()
    {
        TillWithTea till;
        {
            std::unique_ptr<OtherProcess> repair;
            connect(child<QTableView>(till.window, "tableView2").model(),
                &QAbstractItemModel::rowsRemoved, &till.window,
                [&] { repair = std::make_unique<OtherProcess>("begin exclusive", longTime); });
            const CapturedLog log;
            CapturedOutput output;
            const AnswerBox box;
            till.pay();
            QVERIFY(repair != nullptr);
            QVERIFY(saysNotRecorded(box, till));
            QCOMPARE(log.criticals(), QStringList(payError + "the ticket could not be read"));
            // The kept ticket cannot be listed either.
            const QByteArray report = databaseReport("select * from Ticket", "database is locked");
            QCOMPARE(output.text(), report + report);
            QVERIFY(till.receipt() == nullptr);
        }
        QCOMPARE(till.books(), QString("sold: ; ticket: Thé 2.5; 0 shown"));
    }

    void aShortLockIsWaitedFor()
    {
        TillWithTea till;
        const OtherProcess backup("begin immediate", 200'000);
        const CapturedLog log;
        till.pay();
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: ; 0 shown"));
    }

    void aDatabaseThatIsReadOnlyKeepsTheTicket()
    {
        TillWithTea till;
        QCOMPARE(chmod(".", 0755), 0);
        QCOMPARE(chmod("Vendel.db", 0444), 0);
        {
            const OrdinaryUser user;
            payUnrecorded(
                till, refusedLine("7, 'Thé', 2.5", "attempt to write a readonly database"));
        }
        QCOMPARE(chmod("Vendel.db", 0644), 0);
        QCOMPARE(till.books(), QString("sold: ; ticket: Thé 2.5; 1 shown"));
        QVERIFY(till.sellsOnScreen());
    }

    void aDatabaseThatCannotGrowKeepsTheTicket()
    {
        Till till;
        till.sell("Eau", "3");
        till.sell(QByteArray(10'000, 'x'), "2.5");
        {
            const FileSizeLimit limit(static_cast<rlim_t>(QFileInfo("Vendel.db").size()));
            payUnrecorded(till, databaseReport("commit", "disk I/O error"));
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

    void withoutAHistoryTheTicketIsKept()
    {
        for (const char* output : {"0", "1"}) {
            const InRow inRow(output);
            const EmulatedPrinter printer;
            Till till;
            till.setSwitch(output);
            till.sell("Thé", "2.5");
            till.run("alter table Historique rename to Ailleurs");
            payUnrecorded(till, refusedLine("7, 'Thé', 2.5", "no such table: Historique"));
            QVERIFY(printer.transfers().empty());
            QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
            till.run("alter table Ailleurs rename to Historique");
            till.pay();
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: ; 0 shown"));
            till.takeReceipt();
            QVERIFY(till.sellsOnScreen());
        }
    }

    void aLineThatTheHistoryRefusesKeepsTheWholeTicketHoweverOftenItIsPaid()
    {
        TillWithTea till;
        till.sell("Eau", "3");
        till.sell("Vin", "4");
        till.run("create trigger refusal before insert on Historique when new.article = 'Eau' "
                 "begin select raise(abort, 'no water'); end");
        payUnrecorded(till, refusedLine("7, 'Eau', 3", "no water"));
        payUnrecorded(till, refusedLine("7, 'Eau', 3", "no water"));
        QCOMPARE(till.books(), QString("sold: ; ticket: Thé 2.5, Eau 3, Vin 4; 3 shown"));
        till.run("drop trigger refusal");
        till.pay();
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Eau 3, 7 Vin 4; ticket: ; 0 shown"));
    }

    void aTicketThatCannotBeEmptiedIsStillThere()
    {
        TillWithTea till;
        till.run(
            "create trigger refusal before delete on Ticket begin select raise(abort, 'no'); end");
        {
            CapturedOutput output;
            till.pay();
            QCOMPARE(output.text(), databaseReport("delete from Ticket", "no"));
        }
        QVERIFY(till.takeReceipt().contains("1  Thé"));
        QCOMPARE(till.ticket().size(), 1);
        till.run("drop trigger refusal");
        QVERIFY(till.sellsOnScreen());
    }

    void withoutSettingsTheTicketIsKept()
    {
        TillWithTea till;
        till.run("drop table Config");
        const CapturedLog log;
        CapturedOutput output;
        till.pay();
        QCOMPARE(log.criticals(), QStringList(payError + "stoi"));
        QCOMPARE(output.text(),
            databaseReport("select valeur from Config where param like 'Epson TM-T20II'",
                "no such table: Config"));
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
        click(till.window, "btn_Ticket");
        QCOMPARE(till.shownLines(), 1);
    }

    void withoutATicketThereIsNothingToPay()
    {
        Till till;
        till.run("drop table Ticket");
        payNothing(till, databaseReport("select * from Ticket", "no such table: Ticket"));
        QCOMPARE(till.history(), QStringList());
    }

    void aDatabaseThatIsAFolderHasNothingToPay()
    {
        TillWithTea till;
        QVERIFY(QFile::rename("Vendel.db", "Vendel.old"));
        QVERIFY(QDir().mkdir("Vendel.db"));
        payNothing(till,
            "Not open database successfully\n"
                + databaseReport("select * from Ticket", "unable to open database file"));
        QVERIFY(QDir().rmdir("Vendel.db"));
        QVERIFY(QFile::rename("Vendel.old", "Vendel.db"));
        till.pay();
        QCOMPARE(till.history().size(), 1);
        till.takeReceipt();
        QVERIFY(till.sellsOnScreen());
    }

    void aFileThatIsNoDatabaseHasNothingToPay()
    {
        Till till;
        till.shop.write("Vendel.db", QByteArray(8192, 'x'));
        payNothing(till, databaseReport("select * from Ticket", "file is not a database"));
        QCOMPARE(till.shop.read("Vendel.db"), QByteArray(8192, 'x'));
    }

    /// Another program may have stored it.
    void aPriceThatIsNoNumberIsNeitherRecordedNorSold()
    {
        const Rows<QByteArray, QByteArray, QByteArray> rows{
            {"a word", "'abc'", "abc", "no such column: abc"},
            {"nothing", "''", "", "near \")\": syntax error"},
            {"a comma", "'2,5'", "2,5", "4 values for 3 columns"},
            {"too large", "9e999", "Inf", "no such column: Inf"},
        };
        for (const auto& [row, price, spliced, reason] : rows) {
            const InRow inRow(row);
            Till till;
            till.sell("Eau", price);
            payUnrecorded(till, refusedLine("7, 'Eau', " + spliced, reason));
            QCOMPARE(till.history(), QStringList());
            // The cashier takes the line off, and tries the menu.
            clickCell(till.window, "tableView2", 0, 2);
            QCOMPARE(till.ticket(), QStringList());
            till.run("insert into Article (article, prix) values ('Eau', " + price + ")");
            click(till.window, "btn_Afficher");
            {
                CapturedOutput output;
                clickCell(till.window, "tableView1", 0, 2);
                QVERIFY(output.text().startsWith(
                    "Errors Db::DbLoad sqlite3_errmsg : insert into Ticket"));
            }
            QCOMPARE(till.shownLines(), 0);
            payNothing(till, "");
            QCOMPARE(till.history(), QStringList());
            QVERIFY(till.sellsOnScreen());
        }
    }

    void aReceiptThatCannotBeComposedOrShownKeepsTheTicket()
    {
        TillWithTea till;
        {
            const FailingText failing("Produit");
            payWithoutReceipt(till, "no text");
        }
        QVERIFY(till.receipt() != nullptr);
        QCOMPARE(till.takeReceipt(), QString());
        const FailingEvent failing(QEvent::WindowTitleChange, "FormVendelTicket");
        payWithoutReceipt(till, "trouble");
    }
};

VENDEL_TEST(TestPaymentFailures)
#include "tst_Payment_failures.moc"
