// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <sys/resource.h>

using Setup = EmulatedPrinter::Setup;
/// A printer that cannot be taken over, and one that does not take what is written.
class TestPrinterFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFailedStartIsNoPrinter()
    {
        const Rows<Setup, QByteArray, QStringList> rows{
            {"no device", {.devices = {}}, "Cannot open device\n", {}},
            {"both ids must match", {.devices = {"04b8:0e03", "0416:0e15"}}, "Cannot open device\n",
                {}},
            {"a device that cannot be opened", {.openRefused = true}, "Cannot open device\n", {}},
            {"held by another program", {.claimRefused = true}, "Cannot Claim Interface\n",
                {"0 open"}},
            {"the kernel's driver stays", {.kernelDriver = true, .detachRefused = true},
                "Kernel Driver Active\nCannot Claim Interface\n", {"0 open"}},
        };
        for (const auto& [row, setup, said, conversation] : rows) {
            const InRow inRow(row);
            const EmulatedPrinter bus(setup);
            FlushedOutput output;
            QCOMPARE(thrownByInitializing(), -1);
            QCOMPARE(QByteArray::fromStdString(output.take()), said);
            QVERIFY(Printer::getPrinter() == nullptr);
            QCOMPARE(conversationOf(bus), conversation);
        }
    }

    void aFailedStartLeavesNothingOpenAndIsTriedAgain()
    {
        const Rows<QByteArray, QByteArray, QByteArray> rows{
            {"no device", "unplug", "plug", "Cannot open device\n"},
            {"held by another program", "claim-refused", "claim-refused off",
                "Cannot Claim Interface\n"},
        };
        for (const auto& [row, fault, remedy, said] : rows) {
            const InRow inRow(row);
            EmulatedPrinter bus;
            bus.send(fault.toStdString());
            FlushedOutput output;
            const auto before = openDescriptors();
            QCOMPARE(thrownByInitializing(), -1);
            QCOMPARE(QByteArray::fromStdString(output.take()), said);
            for (int i = 0; i < 20; ++i) {
                QCOMPARE(thrownByInitializing(), -1);
            }
            QCOMPARE(openDescriptors(), before);
            output.take();
            bus.send(remedy.toStdString());
            QCOMPARE(thrownByInitializing(), 0);
            QCOMPARE(output.take(), std::string());
            QVERIFY(Printer::getPrinter() != nullptr);
        }
    }

    void aFailingLibraryIsNamedWithItsCode()
    {
        const EmulatedPrinter bus;
        FlushedOutput output;
        rlimit descriptors{};
        getrlimit(RLIMIT_NOFILE, &descriptors);
        rlimit none = descriptors;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
        const int thrown = thrownByInitializing();
        setrlimit(RLIMIT_NOFILE, &descriptors);
        QCOMPARE(thrown, -1);
        QCOMPARE(output.take(), std::string("Init Error -99\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void aPrinterThatIsGoneCannotBeGivenBack()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        {
            Printer printer(receiptPrinter);
            bus.unplug();
        }
        QCOMPARE(output.take(), std::string("Cannot Release Interface\n"));
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
        QCOMPARE(transfersOf(bus), QStringList("6265666f7265"));
    }

    void aFailedWriteIsReportedOnceAndMarksThePrinterForReplacement()
    {
        const Rows<QByteArray, QString, QString> rows{
            {"stalled", "stall", "0 stall", "stall "},
            {"cut short", "short-write 3", "0 short", "short 726563"},
            {"cut short before the first byte", "short-write 0", "0 short", "short "},
        };
        for (const auto& [row, fault, event, transfer] : rows) {
            const InRow inRow(row);
            EmulatedPrinter bus;
            FlushedOutput output;
            Printer::initializePrinter(receiptPrinter);
            bus.send(fault.toStdString());
            Printer::getPrinter()->raw("receipt");
            QCOMPARE(output.take(), std::string("Write Error\n"));
            Printer::getPrinter()->raw("ok");
            QCOMPARE(output.take(), std::string());
            QCOMPARE(transfersOf(bus), QStringList({transfer, "6f6b"}));
            QCOMPARE(thrownByInitializing(), 0);
            QCOMPARE(output.take(), std::string("Released Interface\n"));
            QCOMPARE(conversationOf(bus),
                QStringList(
                    {"0 open", "0 claim", event, "0 taken", "0 release", "0 open", "0 claim"}));
            Printer::initializePrinter(receiptPrinter);
            QCOMPARE(output.take(), std::string());
        }
    }

    void textThatCannotBeWrittenCountsAsSent()
    {
        HeldPrinter held;
        held.bus.unplug();
        QVERIFY(held.printer.textCut("x"));
        QCOMPARE(held.output.take(), std::string("Write Error\nWrite Error\n"));
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

VENDEL_TEST(TestPrinterFailures)
#include "tst_Printer_failures.moc"
