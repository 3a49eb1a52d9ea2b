// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QTemporaryFile>

#include <cstdarg>
#include <functional>

#include <dlfcn.h>
#include <libusb.h>
#include <unistd.h>

namespace {
struct Calls
{
    QStringList options;
    QStringList transfers;
    std::function<void()> onDetach = [] {};
    /// What claiming returns instead of doing it; 0 does it.
    int claimResult = 0;
};
Calls calls;

template <class Function> Function* libusbsOwn(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

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

// The printer layer's calls pass here on their way to the library.
extern "C" {

// The signature is libusb's own, an enumeration before the dots; clang advises against that.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wvarargs"
int LIBUSB_CALL libusb_set_option(libusb_context* context, libusb_option option, ...)
{
    va_list arguments;
    va_start(arguments, option);
    const int value = va_arg(arguments, int);
    va_end(arguments);
    calls.options += QString("%1 = %2").arg(option).arg(value);
    return libusbsOwn(libusb_set_option, "libusb_set_option")(context, option, value);
}
#pragma GCC diagnostic pop

int LIBUSB_CALL libusb_detach_kernel_driver(libusb_device_handle* handle, int interface)
{
    calls.onDetach();
    return libusbsOwn(libusb_detach_kernel_driver, "libusb_detach_kernel_driver")(
        handle, interface);
}

int LIBUSB_CALL libusb_claim_interface(libusb_device_handle* handle, int interface)
{
    return calls.claimResult != 0
        ? calls.claimResult
        : libusbsOwn(libusb_claim_interface, "libusb_claim_interface")(handle, interface);
}

int LIBUSB_CALL libusb_bulk_transfer(libusb_device_handle* handle, unsigned char endpoint,
    unsigned char* data, int length, int* transferred, unsigned timeout)
{
    calls.transfers += QString("%1 bytes to %2, %3 ms").arg(length).arg(endpoint).arg(timeout);
    return libusbsOwn(libusb_bulk_transfer, "libusb_bulk_transfer")(
        handle, endpoint, data, length, transferred, timeout);
}
}

/// How the printer is found, taken over and given back.
class TestPrinterLink : public QObject
{
    Q_OBJECT

private slots:
    void init() { calls = {}; }

    void theLibrarySpeaksUpToItsInformation()
    {
        const EmulatedPrinter bus;
        Printer::initializePrinter(receiptPrinter);
        QCOMPARE(calls.options, QStringList("0 = 3"));
    }

    void theKernelsDriverIsAnnouncedBeforeItIsDetached()
    {
        const EmulatedPrinter bus({.kernelDriver = true});
        FlushedOutput output;
        std::string announced;
        calls.onDetach = [&] { announced = output.take(); };
        Printer::initializePrinter(receiptPrinter);
        calls.onDetach = [] {};
        QCOMPARE(announced, std::string("Kernel Driver Active\n"));
    }

    void everyFailedClaimIsNoPrinter()
    {
        for (const int result :
            {LIBUSB_ERROR_NOT_FOUND, LIBUSB_ERROR_NO_DEVICE, LIBUSB_ERROR_OTHER}) {
            const EmulatedPrinter bus;
            FlushedOutput output;
            calls.claimResult = result;
            QCOMPARE(thrownByInitializing(), -1);
            QCOMPARE(output.take(), std::string("Cannot Claim Interface\n"));
            QVERIFY(Printer::getPrinter() == nullptr);
        }
    }

    void aTransferHasNoTimeLimit()
    {
        const EmulatedPrinter bus;
        Printer::initializePrinter(receiptPrinter);
        Printer::getPrinter()->raw("abc");
        QCOMPARE(calls.transfers, QStringList("3 bytes to 1, 0 ms"));
    }

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
