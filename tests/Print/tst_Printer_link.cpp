// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

#include <libusb.h>
#include <unistd.h>

namespace {
/// The emulated bus numbers its devices from here.
constexpr int firstAddress = 2;

/// The address of the bus's first printer in libusb's order.
int firstAddressInLibusbsList()
{
    libusb_context* context = nullptr;
    libusb_init(&context);
    const Handle<libusb_context, libusb_exit> owner(context);
    libusb_device** list = nullptr;
    const ssize_t count = libusb_get_device_list(context, &list);
    int address = 0;
    for (ssize_t i = 0; i < count && address == 0; ++i) {
        libusb_device_descriptor descriptor{};
        libusb_get_device_descriptor(list[i], &descriptor);
        if (descriptor.idVendor == receiptPrinter.first) {
            address = libusb_get_device_address(list[i]);
        }
    }
    libusb_free_device_list(list, 1);
    return address;
}

/// What libusb itself says on standard error while \a body runs.
template <class Body> QByteArray saidByLibusb(Body&& body)
{
    QTemporaryFile file;
    if (!file.open()) {
        qFatal("cannot open a file for standard error");
    }
    const int kept = dup(STDERR_FILENO);
    dup2(file.handle(), STDERR_FILENO);
    std::forward<Body>(body)();
    dup2(kept, STDERR_FILENO);
    close(kept);
    file.seek(0);
    return file.readAll();
}
} // namespace

/// How the printer is found, taken over and given back.
class TestPrinterLink : public QObject
{
    Q_OBJECT

private slots:
    void aPrinterIsOpenedAndClaimed()
    {
        const EmulatedPrinter bus;
        FlushedOutput output;
        QVERIFY(Printer::getPrinter() == nullptr);
        Printer::initializePrinter(receiptPrinter);
        QVERIFY(Printer::getPrinter() != nullptr);
        QCOMPARE(Printer::getPrinter(), Printer::instance);
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim"}));
        QCOMPARE(output.take(), std::string());
    }

    void aSecondInitialisationDoesNothing()
    {
        const EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e03"}});
        Printer::initializePrinter(receiptPrinter);
        const Printer* const first = Printer::getPrinter();
        Printer::initializePrinter({0x04B8, 0x0E03});
        Printer::initializePrinter({0xFFFF, 0xFFFF});
        QCOMPARE(Printer::getPrinter(), first);
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim"}));
    }

    void ofTwoPrintersTheFirstInTheListIsUsed()
    {
        const EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e15"}});
        const int first = firstAddressInLibusbsList() - firstAddress;
        Printer::initializePrinter(receiptPrinter);
        Printer::getPrinter()->raw("x");
        QCOMPARE(bus.transfers(), (std::vector<EmulatedTransfer>{{first, "taken", 1, "x"}}));
    }

    void theFirstMatchCountsEvenIfItCannotBeOpened()
    {
        const EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e15"}});
        const auto node = QString("%1/dev/bus/usb/001/00%2")
                              .arg(qEnvironmentVariable("UMOCKDEV_DIR"))
                              .arg(firstAddressInLibusbsList());
        QVERIFY(QFile::remove(node));
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot open device\n"));
        QCOMPARE(conversationOf(bus), QStringList());
    }

    void theKernelsDriverIsDetached()
    {
        const EmulatedPrinter bus({.kernelDriver = true});
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        QCOMPARE(output.take(), std::string("Kernel Driver Active\nKernel Driver Detached!\n"));
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 detach", "0 claim"}));
    }

    void aPrinterGivesItsInterfaceBack()
    {
        const EmulatedPrinter bus;
        FlushedOutput output;
        {
            Printer printer(receiptPrinter);
        }
        QCOMPARE(output.take(), std::string("Released Interface\n"));
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim", "0 release"}));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void nothingStaysOpenBehindAPrinter()
    {
        const EmulatedPrinter bus;
        FlushedOutput output;
        const auto before = openDescriptors();
        for (int i = 0; i < 20; ++i) {
            Printer printer(receiptPrinter);
            printer.raw("x");
            QVERIFY(openDescriptors() > before);
        }
        QCOMPARE(openDescriptors(), before);
    }

    void everyDeviceIsGivenBackToTheLibrary()
    {
        const EmulatedPrinter bus;
        FlushedOutput output;
        QCOMPARE(saidByLibusb([] { Printer printer(receiptPrinter); }), QByteArray());
    }

    void theLibrarySpeaksOfItsErrors()
    {
        const EmulatedPrinter bus({.openRefused = true});
        FlushedOutput output;
        const QByteArray said = saidByLibusb([] { thrownByInitializing(); });
        QVERIFY(said.contains("libusb: error [get_usbfs_fd]"));
    }
};

VENDEL_TEST(TestPrinterLink)
#include "tst_Printer_link.moc"
