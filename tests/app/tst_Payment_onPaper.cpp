// SPDX-License-Identifier: MIT
#include "Print/escpospp/Printer.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"

#include <QDateTime>

#include <functional>

#include <dlfcn.h>
#include <libusb.h>

namespace {
std::function<void()> onTransfer = [] {};

/// The bytes of the first receipt.
QByteArray firstReceipt(const EmulatedPrinter& printer)
{
    return QByteArray::fromStdString(printer.transfers().at(0).bytes);
}
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

/// A sale whose receipt is printed.
class TestPaymentOnPaper : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        onTransfer = [] {};
    }

    void aReceiptIsOneTransferAndACut()
    {
        const EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        const AnswerBox box;
        till.run("update Config set valeur = 20 where param = 'TVA'");
        writeHeader(till.shop, "titre:Chez Paul");
        writeFooter(till.shop, "3 €");
        till.sell("Thé", "2.5");
        till.sell("Thé", "2.5");
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        QByteArray receipt = firstReceipt(printer);
        receipt.replace(receipt.indexOf("     ") + 5, 19, "05/03/2024 09:07:03");
        COMPARE_BYTES(receipt,
            "\033!0\033a\001Chez Paul\r\n"
            "\033!\002\033a0\r\n\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n\r\n"
            "3  Th\x82           \t$2.50       $7.50\r\n\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 20.00%\t\t\t    $1.50\r\n"
            "------------------------------------------------\r\n"
            "\033! \033E\001->  TOTAL \t    $9.01\r\n"
            "\033E\002\033!\002\r\n"
            "                     3 \xd5                     \r\n");
        QCOMPARE(printer.transfers().at(1).bytes, std::string("\x1d\x56\x41\x96"));
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(!box.wasShown());
        QVERIFY(till.receipt() == nullptr);
    }

    void aReceiptBearsTheTimeOfTheSale()
    {
        const EmulatedPrinter printer;
        Till till;
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        till.sellOnPaper();
        const QDateTime after = QDateTime::currentDateTime();
        const QString receipt = QString::fromLatin1(firstReceipt(printer));
        const QString shown = receipt.section("Produit\t\t\t     ", 1).section("\r\n\r\n", 0, 0);
        const QDateTime time = QDateTime::fromString(shown, "dd/MM/yyyy hh:mm:ss");
        QVERIFY2(time >= before && time <= after, qPrintable(shown));
    }

    void aHeaderOfAMegabyteIsPrinted()
    {
        const EmulatedPrinter printer;
        Till till;
        writeHeader(till.shop, QByteArray("123456789\n").repeated(100'000));
        CapturedOutput output;
        till.sellOnPaper();
        QCOMPARE(output.text(), QByteArray());
        QCOMPARE(printer.transfers().size(), 2U);
        const EmulatedTransfer receipt = printer.transfers().at(0);
        QCOMPARE(receipt.result, std::string("taken"));
        QCOMPARE(receipt.bytes.size(), receipt.requested);
        // 55 bytes for each line: 47 columns, the line's end, and emphasis on and off.
        QVERIFY(receipt.requested > 55 * 100'000U);
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void theTicketIsEmptiedBehindTheCut()
    {
        const EmulatedPrinter printer;
        Till till;
        QStringList seen;
        onTransfer = [&] { seen << till.books(); };
        till.sellOnPaper();
        onTransfer = [] {};
        const QString line = "sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown";
        QCOMPARE(seen, QStringList({line, line}));
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: ; 0 shown"));
        const AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(printer.transfers().size(), 2U);
        QVERIFY(till.sellsOnScreen());
    }

    void anotherIntOfThePrinterIsIgnored()
    {
        const EmulatedPrinter printer;
        Till till;
        const CapturedLog log;
        const AnswerBox box;
        onTransfer = [] { throw -2; };
        till.sellOnPaper();
        QVERIFY(!box.wasShown());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
    }

    void thePrinterStaysHeldBetweenSales()
    {
        const EmulatedPrinter printer;
        Till till;
        till.sellOnPaper();
        const Printer* held = Printer::getPrinter();
        QVERIFY(held != nullptr);
        till.sellOnPaper();
        QVERIFY(till.sellsOnScreen());
        till.sellOnPaper();
        QCOMPARE(Printer::getPrinter(), held);
        using Words = std::vector<std::string>;
        Words conversation = printer.conversation();
        std::erase(conversation, "0 taken");
        QCOMPARE(conversation, (Words{"0 open", "0 claim"}));
        QCOMPARE(printer.transfers().size(), 6U);
        QCOMPARE(till.history().size(), 4);
    }

    void theFirstOfTwoPrintersPrints()
    {
        const EmulatedPrinter printer({.devices = {"04b8:0202", "04b8:0e15", "04b8:0e15"}});
        Till till;
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        const int device = printer.transfers().at(0).device;
        QVERIFY(device == 1 || device == 2);
        QCOMPARE(printer.transfers().at(1).device, device);
        QCOMPARE(till.ticket(), QStringList());
    }

    void theKernelsDriverIsDetached()
    {
        const EmulatedPrinter printer({.kernelDriver = true});
        Till till;
        CapturedOutput output;
        till.sellOnPaper();
        till.sellOnPaper();
        QCOMPARE(output.text(), QByteArray("Kernel Driver Active\nKernel Driver Detached!\n"));
        QCOMPARE(printer.transfers().size(), 4U);
        QCOMPARE(till.ticket(), QStringList());
    }

    void twoQuickPressesAreOneReceipt()
    {
        const EmulatedPrinter printer;
        Till till;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell("Thé", "2.5");
        const auto& button = child<QWidget>(till.window, "btn_Payer");
        QTest::mouseDClick(till.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
            button.mapTo(&till.window, button.rect().center()));
        QCOMPARE(printer.transfers().size(), 2U);
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));
        QCOMPARE(box.texts(), QStringList("Le ticket est vide"));
    }
};

VENDEL_TEST(TestPaymentOnPaper)
#include "tst_Payment_onPaper.moc"
