// SPDX-License-Identifier: MIT
#include "Print/escpospp/PrinterBus.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

namespace {
struct Looked
{
    PrinterBus::State state;
    std::string reason = "left from before";
};

Looked look(std::pair<int, int> ids = PrinterBus::receiptPrinter)
{
    Looked looked{};
    looked.state = PrinterBus::look(ids, looked.reason);
    return looked;
}
} // namespace

class TestPrinterBus : public QObject
{
    Q_OBJECT

private slots:
    void theIdsAreTheReceiptPrinters() { QVERIFY(PrinterBus::receiptPrinter == receiptPrinter); }

    void aPrinterIsOpenedAndNotClaimed()
    {
        const EmulatedPrinter bus({.kernelDriver = true});
        const Looked looked = look();
        QVERIFY(looked.state == PrinterBus::State::Ready);
        QCOMPARE(looked.reason, std::string());
        QCOMPARE(conversationOf(bus), QStringList{QString("0 open")});
    }

    void aTillThatHoldsItKeepsIt()
    {
        HeldPrinter held;
        QVERIFY(look().state == PrinterBus::State::Ready);
        held.printer.raw("a");
        QCOMPARE(held.sent(), QStringList{QString("61")});
    }

    void anotherDeviceIsNoPrinter()
    {
        const EmulatedPrinter bus({.devices = {"04b8:0e28", "1234:0e15"}});
        const Looked looked = look();
        QVERIFY(looked.state == PrinterBus::State::Absent);
        QCOMPARE(looked.reason, std::string());
        QCOMPARE(conversationOf(bus), QStringList());
    }

    void aPrinterThatCannotBeOpenedIsThere()
    {
        const EmulatedPrinter bus({.openRefused = true});
        const Looked looked = look();
        QVERIFY(looked.state == PrinterBus::State::Closed);
        QCOMPARE(looked.reason, std::string("LIBUSB_ERROR_NO_DEVICE"));
    }

    void nothingStaysOpen()
    {
        const EmulatedPrinter bus;
        look();
        const auto before = openDescriptors();
        look();
        QCOMPARE(openDescriptors(), before);
    }
};

VENDEL_TEST(TestPrinterBus)
#include "tst_PrinterBus.moc"
