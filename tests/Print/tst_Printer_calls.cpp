// SPDX-License-Identifier: MIT
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

#include <cstdarg>
#include <functional>

#include <dlfcn.h>
#include <libusb.h>

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

/// What the printer asks of libusb, where no printer on a bus could tell.
class TestPrinterCalls : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        calls = {};
    }

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
};

VENDEL_TEST(TestPrinterCalls)
#include "tst_Printer_calls.moc"
