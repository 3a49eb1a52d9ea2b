// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

/// Where the printer's switch sends a receipt: 0 is the screen, 1 is paper.
class TestPaymentSwitch : public QObject
{
    Q_OBJECT

private slots:
    void whatReadsAsZeroIsTheScreen()
    {
        for (const char* value : {"0", "-0", " 0", "0 ", "0.9", "0,5", "0x1", "00", "0 oui"}) {
            const InRow inRow(value);
            Till till;
            till.setSwitch(value);
            till.sellTea();
            QVERIFY(till.receipt() != nullptr);
            QCOMPARE(till.ticket(), QStringList());
        }
    }

    void whatReadsAsOneIsPaper()
    {
        const EmulatedPrinter printer;
        Till till;
        for (const char* value : {"1", " 1", "1.9", "1 oui", "+1"}) {
            till.setSwitch(value);
            till.sellTea();
            QCOMPARE(till.ticket(), QStringList());
        }
        QCOMPARE(printer.transfers().size(), 10U);
    }

    void anotherNumberKeepsTheTicket()
    {
        for (const char* value : {"2", "-1", "10", "2147483647"}) {
            const InRow inRow(value);
            Till till;
            const CapturedLog log;
            CapturedOutput output;
            const AnswerBox box;
            till.setSwitch(value);
            till.sellTea();
            QVERIFY(till.receipt() == nullptr);
            QVERIFY(!box.wasShown());
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
            till.pay();
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
            QCOMPARE(log.criticals(), QStringList());
            QCOMPARE(output.text(), QByteArray());
            QVERIFY(till.sellsOnScreen());
        }
    }

    void whatIsNoNumberKeepsTheTicket()
    {
        for (const char* value : {"", " ", "oui", "-", "99999999999", "é"}) {
            const InRow inRow(value);
            Till till;
            const CapturedLog log;
            const AnswerBox box;
            till.setSwitch(value);
            till.sellTea();
            QCOMPARE(log.criticals(), QStringList("Errors FormVendel on_btn_Payer_clicked : stoi"));
            QVERIFY(till.receipt() == nullptr);
            QVERIFY(!box.wasShown());
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
            QVERIFY(till.sellsOnScreen());
        }
    }

    void withoutASwitchTheTicketIsKept()
    {
        Till till;
        const CapturedLog log;
        till.run("delete from Config where param = 'Epson TM-T20II'");
        till.sellTea();
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel on_btn_Payer_clicked : stoi"));
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        QVERIFY(till.sellsOnScreen());
    }

    void theLastOfTwoSwitchesCounts()
    {
        Till till;
        till.setSwitch("2");
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 0)");
        till.sellTea();
        QVERIFY(till.receipt() != nullptr);
        till.takeReceipt();
        till.run("insert into Config (param, valeur) values ('Epson TM-T20II', 3)");
        till.sellTea();
        QVERIFY(till.receipt() == nullptr);
        QCOMPARE(till.ticket().size(), 1);
    }

    void theSwitchIsFoundInAnyCase()
    {
        Till till;
        till.run("update Config set param = 'epson tm-T20ii' where param = 'Epson TM-T20II'");
        till.sellTea();
        QVERIFY(till.receipt() != nullptr);
    }
};

VENDEL_TEST(TestPaymentSwitch)
#include "tst_Payment_switch.moc"
