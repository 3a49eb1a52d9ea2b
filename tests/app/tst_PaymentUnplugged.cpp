// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

namespace {
const std::string cut = "\x1d\x56\x41\x96";
const QByteArray writeError = "Write Error\n";
} // namespace

class TestPaymentUnplugged : public QObject
{
    Q_OBJECT

private slots:
    void unpluggedBeforeTheReceipt()
    {
        EmulatedPrinter printer;
        Till till;
        const AnswerBox box;
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        CapturedOutput output;

        printer.unplug();
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);

        // Still away: the marked printer is given up, the ticket is kept.
        till.sellOnPaper();
        QCOMPARE(output.text(),
            writeError + writeError + "Cannot Release Interface\nCannot open device\n");
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.history().size(), 3);

        printer.plug();
        till.pay();
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 4);
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(box.strays(), 0);
    }

    void unpluggedDuringTheReceipt()
    {
        EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        const AnswerBox box;
        printer.unplugDuring(10);
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 1);
        QCOMPARE(printer.transfers().at(0).bytes.size(), 10U);

        printer.plug();
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError + "Cannot Release Interface\n");
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void unpluggedBeforeTheCut()
    {
        EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        printer.unplugAfter(1);
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError);
        QCOMPARE(till.ticket(), QStringList());
        printer.plug();
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + "Cannot Release Interface\n");
        QCOMPARE(printer.transfers().back().bytes, cut);
    }

    void unpluggedAfterTheReceipt()
    {
        EmulatedPrinter printer;
        Till till;
        till.sellOnPaper();
        CapturedOutput output;
        printer.unplug();
        printer.plug();
        // The till still holds the printer of before and learns of it from its first write.
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError);
        QCOMPARE(till.ticket(), QStringList());
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError + "Cannot Release Interface\n");
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(till.history().size(), 3);
    }

    void aWriteThatFails_data()
    {
        QTest::addColumn<bool>("stalls");
        QTest::newRow("a stall") << true;
        QTest::newRow("a short write") << false;
    }

    void aWriteThatFails()
    {
        QFETCH(bool, stalls);
        EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        const AnswerBox box;
        if (stalls) {
            printer.stall();
        } else {
            printer.shortWrite(20);
        }
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList());
        // The printer is there: the next sale takes it anew.
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + "Released Interface\n");
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(printer.transfers().size(), 4U);
        QCOMPARE(till.history().size(), 2);
    }
};

VENDEL_TEST(TestPaymentUnplugged)
#include "tst_PaymentUnplugged.moc"
