// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

namespace {
void addRows(std::initializer_list<const char*> values)
{
    QTest::addColumn<QByteArray>("value");
    for (const char* value : values) {
        QTest::newRow(value) << QByteArray(value);
    }
}
} // namespace

/// Where the printer's switch sends a receipt: 0 is the screen, 1 is paper.
class TestPaymentSwitch : public QObject
{
    Q_OBJECT

private slots:
    void whatReadsAsZeroIsTheScreen_data()
    {
        addRows({"0", "-0", " 0", "0 ", "0.9", "0,5", "0x1", "00", "0 oui"});
    }

    void whatReadsAsZeroIsTheScreen()
    {
        QFETCH(QByteArray, value);
        Till till;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        QCOMPARE(till.ticket(), QStringList());
    }

    void whatReadsAsOneIsPaper()
    {
        const EmulatedPrinter printer;
        Till till;
        for (const char* value : {"1", " 1", "1.9", "1 oui", "+1"}) {
            till.setSwitch(value);
            till.sell("Thé", "2.5");
            till.pay();
            QCOMPARE(till.ticket(), QStringList());
        }
        QCOMPARE(printer.transfers().size(), 10U);
    }

    void anotherNumberKeepsTheTicket_data()
    {
        addRows({"2", "-1", "10", "2147483647"});
    }

    void anotherNumberKeepsTheTicket()
    {
        QFETCH(QByteArray, value);
        Till till;
        const CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        till.pay();
        QCOMPARE(till.history(), QStringList({"7 Thé 2.5", "7 Thé 2.5"}));
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(till.sellsOnScreen());
    }

    void whatIsNoNumberKeepsTheTicket_data()
    {
        addRows({"", " ", "oui", "-", "99999999999", "é"});
    }

    void whatIsNoNumberKeepsTheTicket()
    {
        QFETCH(QByteArray, value);
        Till till;
        const CapturedLog log;
        const AnswerBox box;
        till.setSwitch(value);
        till.sell("Thé", "2.5");
        till.pay();
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel on_btn_Payer_clicked : stoi"));
        QVERIFY(till.receipt() == nullptr);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        QCOMPARE(till.shownLines(), 0);
        QVERIFY(till.sellsOnScreen());
    }

    void withoutASwitchTheTicketIsKept()
    {
        Till till;
        const CapturedLog log;
        till.run("delete from Config where param = 'Epson TM-T20II'");
        till.sell("Thé", "2.5");
        till.pay();
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel on_btn_Payer_clicked : stoi"));
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        QVERIFY(till.sellsOnScreen());
    }

    void theLastOfTwoSwitchesCounts()
    {
        Till till;
        till.setSwitch("2");
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
        till.takeReceipt();
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 3)");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() == nullptr);
        QCOMPARE(till.ticket().size(), 1);
    }

    void theSwitchIsFoundInAnyCase()
    {
        Till till;
        till.run("update Config set param = 'epson tm-T20ii' where param = 'Epson TM-T20II'");
        till.sell("Thé", "2.5");
        till.pay();
        QVERIFY(till.receipt() != nullptr);
    }
};

VENDEL_TEST(TestPaymentSwitch)
#include "tst_Payment_switch.moc"
