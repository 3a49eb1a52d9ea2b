// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTemporaryFile>
#include <QTest>

#include <filesystem>
#include <iterator>
#include <memory>

#include <libusb.h>
#include <sys/resource.h>
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

std::ptrdiff_t openDescriptors()
{
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
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

class TestPrinterLink : public QObject
{
    Q_OBJECT

private slots:
    void aPrinterIsOpenedAndClaimed()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        QVERIFY(Printer::getPrinter() == nullptr);
        Printer::initializePrinter(receiptPrinter);
        QVERIFY(Printer::getPrinter() != nullptr);
        QCOMPARE(Printer::getPrinter(), Printer::instance);
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim"}));
        QCOMPARE(output.take(), std::string());
    }

    void withoutADeviceThereIsNoPrinter()
    {
        EmulatedPrinter bus({.devices = {}});
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot open device\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void bothIdsMustMatch()
    {
        EmulatedPrinter bus({.devices = {"04b8:0e03", "0416:0e15"}});
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot open device\n"));
        QCOMPARE(conversationOf(bus), QStringList());
    }

    void aFailedStartIsTriedAgainFromScratch()
    {
        EmulatedPrinter bus;
        bus.unplug();
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        bus.plug();
        QCOMPARE(thrownByInitializing(), 0);
        QCOMPARE(output.take(), std::string("Cannot open device\n"));
        QVERIFY(Printer::getPrinter() != nullptr);
    }

    void aSecondInitialisationDoesNothing()
    {
        EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e03"}});
        Printer::initializePrinter(receiptPrinter);
        const Printer* const first = Printer::getPrinter();
        Printer::initializePrinter({0x04B8, 0x0E03});
        Printer::initializePrinter({0xFFFF, 0xFFFF});
        QCOMPARE(Printer::getPrinter(), first);
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim"}));
    }

    void ofTwoPrintersTheFirstInTheListIsUsed()
    {
        EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e15"}});
        const int first = firstAddressInLibusbsList() - firstAddress;
        Printer::initializePrinter(receiptPrinter);
        Printer::getPrinter()->raw("x");
        QCOMPARE(bus.transfers(), (std::vector<EmulatedTransfer>{{first, "taken", 1, "x"}}));
    }

    void theFirstMatchCountsEvenIfItCannotBeOpened()
    {
        EmulatedPrinter bus({.devices = {"04b8:0e15", "04b8:0e15"}});
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
        EmulatedPrinter bus({.kernelDriver = true});
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        QCOMPARE(output.take(), std::string("Kernel Driver Active\nKernel Driver Detached!\n"));
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 detach", "0 claim"}));
    }

    void aDriverThatStaysKeepsTheInterface()
    {
        EmulatedPrinter bus({.kernelDriver = true, .detachRefused = true});
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Kernel Driver Active\nCannot Claim Interface\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void anInterfaceHeldByAnotherProgramIsNotTaken()
    {
        EmulatedPrinter bus({.claimRefused = true});
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot Claim Interface\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
        bus.send("claim-refused off");
        QCOMPARE(thrownByInitializing(), 0);
        QCOMPARE(output.take(), std::string());
    }

    void aDeviceThatCannotBeOpenedIsNoPrinter()
    {
        EmulatedPrinter bus({.openRefused = true});
        FlushedOutput output;
        QCOMPARE(thrownByInitializing(), -1);
        QCOMPARE(output.take(), std::string("Cannot open device\n"));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void aFailingLibraryIsNamedWithItsCode()
    {
        EmulatedPrinter bus;
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

    void aPrinterGivesItsInterfaceBack()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        {
            Printer printer(receiptPrinter);
        }
        QCOMPARE(output.take(), std::string("Released Interface\n"));
        QCOMPARE(conversationOf(bus), QStringList({"0 open", "0 claim", "0 release"}));
        QVERIFY(Printer::getPrinter() == nullptr);
    }

    void aPrinterThatIsGoneCannotGiveItBack()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        {
            Printer printer(receiptPrinter);
            bus.unplug();
        }
        QCOMPARE(output.take(), std::string("Cannot Release Interface\n"));
    }

    void nothingStaysOpenBehindAPrinter()
    {
        EmulatedPrinter bus;
        const auto before = openDescriptors();
        for (int i = 0; i < 20; ++i) {
            Printer printer(receiptPrinter);
            printer.raw("x");
            QVERIFY(openDescriptors() > before);
        }
        QCOMPARE(openDescriptors(), before);
    }

    void nothingStaysOpenBehindAFailedStart_data()
    {
        QTest::addColumn<QString>("command");
        QTest::newRow("no device") << "unplug";
        QTest::newRow("claimed by another program") << "claim-refused";
    }

    void nothingStaysOpenBehindAFailedStart()
    {
        QFETCH(QString, command);
        EmulatedPrinter bus;
        bus.send(command.toStdString());
        const auto before = openDescriptors();
        for (int i = 0; i < 20; ++i) {
            QCOMPARE(thrownByInitializing(), -1);
        }
        QCOMPARE(openDescriptors(), before);
    }

    void everyDeviceIsGivenBackToTheLibrary()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        QCOMPARE(saidByLibusb([] { Printer printer(receiptPrinter); }), QByteArray());
    }

    void theLibrarySpeaksOfItsErrors()
    {
        EmulatedPrinter bus({.openRefused = true});
        FlushedOutput output;
        const QByteArray said = saidByLibusb([] { thrownByInitializing(); });
        QVERIFY(said.contains("libusb: error [get_usbfs_fd]"));
    }
};

VENDEL_TEST(TestPrinterLink)

#include "tst_Printer_link.moc"
