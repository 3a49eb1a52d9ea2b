// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

class TestPrinterWrites : public QObject
{
    Q_OBJECT

private slots:
    void bytesAreSentAsTheyAre()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        QByteArray all;
        for (int i = 0; i < 256; ++i) {
            all += static_cast<char>(i);
        }
        printer.raw(all.toStdString());
        printer.raw(std::string("\x1B\x45\x01"
                                "caf\x82\r\n",
            9));
        QCOMPARE(transfersOf(bus), QStringList({all.toHex(), "1b4501636166820d0a"}));
    }

    void anEmptyTextIsOneEmptyTransfer()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        Printer::getPrinter()->raw("");
        QCOMPARE(bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}}));
        QCOMPARE(output.take(), std::string());
    }

    void aLongReceiptIsOneTransfer()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        const std::string receipt(1'000'000, 'x');
        printer.raw(receipt);
        QCOMPARE(
            bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 1'000'000, receipt}}));
    }

    void cutFeedsAndCuts()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        printer.cut();
        QCOMPARE(transfersOf(bus), QStringList({"1d564196"}));
    }

    void resetSendsItsTwoBytes()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        printer.reset();
        QCOMPARE(transfersOf(bus), QStringList({"1d40"}));
    }

    void afterUnpluggingEachWriteIsAnError()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        Printer* const printer = Printer::getPrinter();
        printer->raw("before");
        bus.unplug();
        printer->raw("receipt");
        QCOMPARE(output.take(), std::string("Write Error\n"));
        printer->cut();
        QCOMPARE(output.take(), std::string("Write Error\n"));
        printer->raw("");
        QCOMPARE(output.take(), std::string("Write Error\n"));
        QCOMPARE(Printer::getPrinter(), printer);
        QCOMPARE(transfersOf(bus), QStringList({"6265666f7265"}));
    }

    void aFailedWriteIsReportedOnce_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("seen");
        QTest::newRow("stalled") << "stall" << QStringList({"stall ", "6f6b"});
        QTest::newRow("cut short") << "short-write 3" << QStringList({"short 726563", "6f6b"});
        QTest::newRow("cut short before the first byte")
            << "short-write 0" << QStringList({"short ", "6f6b"});
    }

    void aFailedWriteIsReportedOnce()
    {
        QFETCH(QString, command);
        QFETCH(QStringList, seen);
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        bus.send(command.toStdString());
        Printer::getPrinter()->raw("receipt");
        QCOMPARE(output.take(), std::string("Write Error\n"));
        Printer::getPrinter()->raw("ok");
        QCOMPARE(output.take(), std::string());
        QCOMPARE(transfersOf(bus), seen);
    }

    void aFailedWriteMarksThePrinterForReplacement_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("stalled") << "stall";
        QTest::newRow("cut short") << "short-write 3";
    }

    void aFailedWriteMarksThePrinterForReplacement()
    {
        QFETCH(QString, command);
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        bus.send(command.toStdString());
        Printer::getPrinter()->raw("receipt");
        Printer::getPrinter()->cut();
        QCOMPARE(output.take(), std::string("Write Error\n"));
        QCOMPARE(thrownByInitializing(), 0);
        QCOMPARE(output.take(), std::string("Released Interface\n"));
        const QString event = command == "stall" ? "0 stall" : "0 short";
        QCOMPARE(conversationOf(bus),
            QStringList({"0 open", "0 claim", event, "0 taken", "0 release", "0 open", "0 claim"}));
        Printer::initializePrinter(receiptPrinter);
        QCOMPARE(output.take(), std::string());
    }

    void aPrinterPluggedBackInPrintsAgain()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        bus.unplugDuring(4);
        Printer::getPrinter()->raw("receipt");
        Printer::getPrinter()->cut();
        QCOMPARE(output.take(), std::string("Write Error\nWrite Error\n"));
        bus.plug();
        QCOMPARE(thrownByInitializing(), 0);
        QCOMPARE(output.take(), std::string("Cannot Release Interface\n"));
        Printer::getPrinter()->raw("again");
        QCOMPARE(output.take(), std::string());
        QCOMPARE(transfersOf(bus), QStringList({"gone 72656365", "616761696e"}));
    }

    void aPrinterStillAwayIsGivenUp()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        bus.unplugAfter(1);
        Printer::getPrinter()->raw("receipt");
        QCOMPARE(output.take(), std::string());
        Printer::getPrinter()->cut();
        QCOMPARE(output.take(), std::string("Write Error\n"));
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot Release Interface\nCannot open device\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
    }
};

VENDEL_TEST(TestPrinterWrites)

#include "tst_Printer_writes.moc"
