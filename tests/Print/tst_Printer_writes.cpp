// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

class TestPrinterWrites : public QObject
{
    Q_OBJECT

private slots:
    void bytesAreSentAsTheyAre()
    {
        HeldPrinter held;
        QByteArray all;
        for (int i = 0; i < 256; ++i) {
            all += static_cast<char>(i);
        }
        held.printer.raw(all.toStdString());
        held.printer.raw("\x1B\x45\x01"
                         "caf\x82\r\n");
        QCOMPARE(held.sent(), QStringList({all.toHex(), "1b4501636166820d0a"}));
    }

    void everyTextIsOneTransfer()
    {
        HeldPrinter held;
        held.printer.raw("");
        QCOMPARE(held.bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}}));
        const std::string receipt(1'000'000, 'x');
        held.printer.raw(receipt);
        QCOMPARE(held.bus.transfers(),
            (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}, {0, "taken", 1'000'000, receipt}}));
        QCOMPARE(held.output.take(), std::string());
    }

    void cutAndResetSendTheirCommands()
    {
        HeldPrinter held;
        held.printer.cut();
        held.printer.reset();
        QCOMPARE(held.sent(), QStringList({"1d564196", "1d40"}));
    }
};

VENDEL_TEST(TestPrinterWrites)
#include "tst_Printer_writes.moc"
