// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

namespace {
const QString notWritten = QString("Errors FormVendel on_btn_Payer_clicked : the ticket could "
                                   "not be written to the history");
} // namespace

/// Prices that are no numbers, as another program may have stored them.
class TestBadDaysPrices : public QObject
{
    Q_OBJECT

private slots:
    void aPriceThatIsNoNumberKeepsTheTicket_data()
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
        QTest::newRow("too large")
            << QByteArray("9e999") << QByteArray("Inf") << QByteArray("no such column: Inf");
    }

    void aPriceThatIsNoNumberKeepsTheTicket()
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
            const AnswerBox box;
            till.pay();
            QVERIFY(saysNotRecorded(box, till));
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
        clickCell(till.window, "tableView2", 0, 2);
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void anArticleWhosePriceIsNoNumberIsNotSold_data()
    {
        QTest::addColumn<QByteArray>("price");
        QTest::newRow("a word") << QByteArray("'abc'");
        QTest::newRow("nothing") << QByteArray("''");
        QTest::newRow("a comma") << QByteArray("'2,5'");
        QTest::newRow("too large") << QByteArray("9e999");
    }

    void anArticleWhosePriceIsNoNumberIsNotSold()
    {
        QFETCH(QByteArray, price);
        Till till;
        till.run("insert into Article (article, prix) values ('Eau', " + price + ")");
        click(till.window, "btn_Afficher");
        {
            CapturedOutput output;
            clickCell(till.window, "tableView1", 0, 2);
            QVERIFY(
                output.text().startsWith("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket"));
        }
        QCOMPARE(till.shownLines(), 0);
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(till.history(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }
};

VENDEL_TEST(TestBadDaysPrices)
#include "tst_BadDaysPrices.moc"
