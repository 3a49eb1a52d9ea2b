// SPDX-License-Identifier: MIT
#include "Print/escpospp/Printer.h"
#include "tests/app/PrintedReceipt.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"

#include <QRegularExpression>

namespace {
const QByteArray cut = "\x1d\x56\x41\x96";

/// The bytes that the printers took, transfer by transfer.
QList<QByteArray> jobs(const EmulatedPrinter& printer)
{
    QList<QByteArray> bytes;
    for (const auto& transfer : printer.transfers()) {
        bytes << QByteArray::fromStdString(transfer.bytes);
    }
    return bytes;
}

/// The printer's conversation without its transfers.
QStringList doings(const EmulatedPrinter& printer)
{
    QStringList words;
    for (const auto& doing : printer.conversation()) {
        words << QString::fromStdString(doing);
    }
    words.removeAll(QString("0 taken"));
    return words;
}

} // namespace

class TestPaymentOnPaper : public QObject
{
    Q_OBJECT

private slots:
    void aReceiptIsOneTransferAndACut()
    {
        const EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        AnswerBox box;
        till.run("update Config set valeur = 20 where param = 'TVA'");
        writeHeader(till.shop, "titre:Chez Paul");
        writeFooter(till.shop, "3 \xe2\x82\xac");
        till.sell("Thé", "2.5");
        till.sell("Thé", "2.5");
        till.sellOnPaper();
        QList<QByteArray> bytes = jobs(printer);
        QCOMPARE(bytes.size(), 2);
        const auto time = bytes.at(0).indexOf("     ") + 5;
        bytes[0].replace(time, 19, "05/03/2024 09:07:03");
        COMPARE_BYTES(bytes.at(0),
            "\x1b\x21\x30\x1b\x61\x01"
            "Chez Paul\r\n"
            "\x1b\x21\x02\x1b\x61\x30"
            "\r\n"
            "\r\n"
            "Produit\t\t\t     05/03/2024 09:07:03\r\n"
            "\r\n"
            "Qtit\x82  Article\t\tPrix U   Prix * Qtit\x82\r\n"
            "\r\n"
            "3  Th\x82           \t$2.50       $7.50\r\n"
            "\r\n"
            "->  Total ticket\t\t    $7.50\r\n"
            "->  TVA 20.00%\t\t\t    $1.50\r\n"
            "------------------------------------------------\r\n"
            "\x1b\x21\x20\x1b\x45\x01"
            "->  TOTAL \t    $9.01\r\n"
            "\x1b\x45\x02\x1b\x21\x02"
            "\r\n"
            "                     3 \xd5                     \r\n");
        COMPARE_BYTES(bytes.at(1), cut);
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
        const QString text = QString::fromLatin1(jobs(printer).at(0));
        const QRegularExpression pattern(QString("Produit\t\t\t     ([^\r]*)\r\n\r\n"));
        const QString shown = pattern.match(text).captured(1);
        const QDateTime time = QDateTime::fromString(shown, QString("dd/MM/yyyy hh:mm:ss"));
        QVERIFY2(time >= before && time <= after, qPrintable(shown));
    }

    void aPrintedSaleEmptiesTicketAndList()
    {
        const EmulatedPrinter printer;
        Till till;
        till.sellOnPaper();
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        AnswerBox box;
        till.pay();
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(printer.transfers().size(), 2U);
        QVERIFY(till.sellsOnScreen());
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
        QCOMPARE(doings(printer), QStringList({QString("0 open"), QString("0 claim")}));
        QCOMPARE(printer.transfers().size(), 6U);
        QCOMPARE(till.history().size(), 4);
    }

    void everySwitchThatReadsAsOnePrints()
    {
        const EmulatedPrinter printer;
        Till till;
        for (const char* value : {"1", " 1", "1.9", "1 oui", "+1"}) {
            till.setSwitch(value);
            till.sell("Thé", "2.5");
            till.pay();
            QCOMPARE(till.ticket(), QStringList());
        }
        QCOMPARE(printer.transfers().size(), 10U);
    }

    void twoQuickPressesAreOneReceipt()
    {
        const EmulatedPrinter printer;
        Till till;
        AnswerBox box;
        till.setSwitch("1");
        till.sell("Thé", "2.5");
        const auto& button = child<QWidget>(till.window, "btn_Payer");
        QTest::mouseDClick(till.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
            button.mapTo(&till.window, button.rect().center()));
        QCOMPARE(printer.transfers().size(), 2U);
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(box.strays(), 0);
    }

    void withoutAPrinterTheTicketIsKept_data()
    {
        QTest::addColumn<QString>("devices");
        QTest::addColumn<bool>("claimed");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QByteArray>("diagnostics");
        QTest::newRow("an empty bus")
            << QString() << false << false << QByteArray("Cannot open device\n");
        QTest::newRow("another model")
            << QString("04b8:0202") << false << false << QByteArray("Cannot open device\n");
        QTest::newRow("another maker")
            << QString("04b9:0e15") << false << false << QByteArray("Cannot open device\n");
        QTest::newRow("no access")
            << QString("04b8:0e15") << false << true << QByteArray("Cannot open device\n");
        QTest::newRow("claimed by another program")
            << QString("04b8:0e15") << true << false << QByteArray("Cannot Claim Interface\n");
    }

    void withoutAPrinterTheTicketIsKept()
    {
        QFETCH(QString, devices);
        QFETCH(bool, claimed);
        QFETCH(bool, closed);
        QFETCH(QByteArray, diagnostics);
        EmulatedPrinter::Setup setup;
        setup.devices.clear();
        if (!devices.isEmpty()) {
            setup.devices.push_back(devices.toStdString());
        }
        setup.claimRefused = claimed;
        setup.openRefused = closed;
        const EmulatedPrinter printer(setup);
        Till till;
        CapturedLog log;
        CapturedOutput output;
        {
            const AnswerBox box;
            till.sellOnPaper();
            QVERIFY(saysNotConnected(box, till));
        }
        QCOMPARE(output.text(), diagnostics);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(Printer::getPrinter() == nullptr);
        QCOMPARE(till.ticket(), QStringList(QString("Thé 2.5")));
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.history(), QStringList(QString("7 Thé 2.5")));

        const AnswerBox again;
        till.pay();
        QVERIFY(saysNotConnected(again, till));
        QCOMPARE(output.text(), diagnostics + diagnostics);
        QCOMPARE(till.history(), QStringList({QString("7 Thé 2.5"), QString("7 Thé 2.5")}));
        QCOMPARE(till.ticket().size(), 1);
        QVERIFY(printer.transfers().empty());
        QVERIFY(till.sellsOnScreen());
    }

    void theSaleIsRecordedBeforeThePrinterIsMissed()
    {
        EmulatedPrinter printer;
        printer.unplug();
        Till till;
        QStringList historyDuringTheNotice;
        int linesDuringTheNotice = -1;
        const AnswerBox box(QMessageBox::Ok, [&](QMessageBox&) {
            historyDuringTheNotice = till.history();
            linesDuringTheNotice = till.shownLines();
        });
        till.sellOnPaper();
        QCOMPARE(historyDuringTheNotice, QStringList(QString("7 Thé 2.5")));
        QCOMPARE(linesDuringTheNotice, 0);
    }

    void noticesAreTranslated()
    {
        EmulatedPrinter printer;
        printer.unplug();
        Till till;
        const MarkedContext marked("FormVendelMessages");
        {
            const AnswerBox box;
            till.pay();
            QCOMPARE(box.title(), QString("FormVendelMessages:Payer"));
            QCOMPARE(box.text(), QString("FormVendelMessages:Le ticket est vide"));
        }
        const AnswerBox box;
        till.sellOnPaper();
        QCOMPARE(box.title(), QString("FormVendelMessages:Payer"));
        QCOMPARE(box.text(), QString("FormVendelMessages:Imprimante non connectée"));
    }

    void aPrinterThatIsPluggedInLaterPrints()
    {
        EmulatedPrinter printer;
        printer.unplug();
        Till till;
        const AnswerBox box;
        till.sellOnPaper();
        QVERIFY(saysNotConnected(box, till));
        printer.plug();
        till.pay();
        QCOMPARE(printer.transfers().size(), 2U);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);
    }

    void theFirstOfTwoPrintersPrints()
    {
        EmulatedPrinter::Setup setup;
        setup.devices = {"04b8:0202", "04b8:0e15", "04b8:0e15"};
        const EmulatedPrinter printer(setup);
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
        EmulatedPrinter::Setup setup;
        setup.kernelDriver = true;
        const EmulatedPrinter printer(setup);
        Till till;
        CapturedOutput output;
        till.sellOnPaper();
        till.sellOnPaper();
        QCOMPARE(output.text(), QByteArray("Kernel Driver Active\nKernel Driver Detached!\n"));
        QCOMPARE(printer.transfers().size(), 4U);
        QCOMPARE(till.ticket(), QStringList());
    }

    void aDriverThatStaysKeepsTheTicket()
    {
        EmulatedPrinter::Setup setup;
        setup.kernelDriver = true;
        setup.detachRefused = true;
        const EmulatedPrinter printer(setup);
        Till till;
        CapturedOutput output;
        const AnswerBox box;
        till.sellOnPaper();
        // The kernel refuses the claim while its own driver holds the interface.
        QCOMPARE(output.text(), QByteArray("Kernel Driver Active\nCannot Claim Interface\n"));
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(till.ticket().size(), 1);
    }

    void aCharacterThatThePrinterLacksKeepsTheTicket_data()
    {
        QTest::addColumn<QByteArray>("article");
        QTest::newRow("a ligature") << QByteArray("c\xc5\x93ur");
        QTest::newRow("an emoji") << QByteArray("Bi\xc3\xa8re \xf0\x9f\x8d\xba");
        QTest::newRow("right-to-left text") << QByteArray("\xd9\x82\xd9\x87\xd9\x88\xd8\xa9");
    }

    void aCharacterThatThePrinterLacksKeepsTheTicket()
    {
        QFETCH(QByteArray, article);
        const EmulatedPrinter printer;
        Till till;
        CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell(article, "2.5");
        till.pay();
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(
            log.criticals().at(0).startsWith(QString("Errors FormVendel on_btn_Payer_clicked : ")));
        QVERIFY(!box.wasShown());
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(printer.transfers().empty());
        QCOMPARE(till.ticket(), QStringList(QString::fromUtf8(article + " 2.5")));
        QCOMPARE(till.history(), QStringList(QString::fromUtf8("7 " + article + " 2.5")));
        click(till.window, "btn_Effacer_Ticket");
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        QVERIFY(till.sellsOnScreen());
    }

    void everyPressRecordsASaleThatCannotBePrinted()
    {
        const EmulatedPrinter printer;
        Till till;
        const CapturedLog log;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell("Bière 🍺", "2.5");
        till.pay();
        till.pay();
        QVERIFY(printer.transfers().empty());
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList(QString("Bière 🍺 2.5")));
        QCOMPARE(till.history(), (QStringList{QString("7 Bière 🍺 2.5"), QString("7 Bière 🍺 2.5")}));
        click(till.window, "btn_Effacer_Ticket");
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);
    }
};

VENDEL_TEST(TestPaymentOnPaper)
#include "tst_PaymentOnPaper.moc"
