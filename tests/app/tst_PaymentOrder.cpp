// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

#include <functional>

#include <dlfcn.h>
#include <libusb.h>

namespace {
std::function<void()> onTransfer = [] {};
} // namespace

/// The library's, watched.
extern "C" int LIBUSB_CALL libusb_bulk_transfer(libusb_device_handle* handle,
    unsigned char endpoint, unsigned char* data, int length, int* transferred, unsigned timeout)
{
    onTransfer();
    static const auto own = reinterpret_cast<decltype(&libusb_bulk_transfer)>(
        dlsym(RTLD_NEXT, "libusb_bulk_transfer"));
    return own(handle, endpoint, data, length, transferred, timeout);
}

/// What comes first when a ticket is paid.
class TestPaymentOrder : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        onTransfer = [] {};
    }

    void theTicketIsEmptiedBehindTheCut()
    {
        const EmulatedPrinter printer;
        Till till;
        QStringList seen;
        onTransfer = [&] {
            seen << QString("%1 sold, %2 shown, %3 recorded")
                        .arg(till.ticket().size())
                        .arg(till.shownLines())
                        .arg(till.history().size());
        };
        till.sellOnPaper();
        onTransfer = [] {};
        const QString line = QString("1 sold, 0 shown, 1 recorded");
        QCOMPARE(seen, QStringList({line, line}));
        QCOMPARE(till.ticket(), QStringList());
    }

    void thePrinterIsMissedBeforeTheReceiptIsComposed()
    {
        const EmulatedPrinter noPrinter({.devices = {}});
        Till till;
        CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell("c\xc5\x93ur", "2.5");
        till.pay();
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(log.criticals(), QStringList());
    }

    void anotherIntIsIgnored()
    {
        const EmulatedPrinter printer;
        Till till;
        CapturedLog log;
        const AnswerBox box;
        onTransfer = [] { throw -2; };
        till.sellOnPaper();
        QVERIFY(!box.wasShown());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
    }
};

VENDEL_TEST(TestPaymentOrder)
#include "tst_PaymentOrder.moc"
