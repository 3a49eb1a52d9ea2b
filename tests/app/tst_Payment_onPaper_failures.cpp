// SPDX-License-Identifier: MIT
#include "Print/escpospp/Printer.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QFile>

#include <sys/stat.h>

namespace {
const std::string cut = "\x1d\x56\x41\x96";
const QByteArray writeError = "Write Error\n";
} // namespace

Q_DECLARE_METATYPE(EmulatedPrinter::Setup)

/// A printer that is missing, pulled out or unable to print a receipt, and frames of a receipt that
/// cannot be read.
class TestPaymentOnPaperFailures : public QObject
{
    Q_OBJECT

private slots:
    void withoutAPrinterTheTicketIsKept_data()
    {
        using Setup = EmulatedPrinter::Setup;
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QByteArray>("diagnostics");
        const QByteArray notOpened = "Cannot open device\n";
        QTest::newRow("an empty bus") << Setup{.devices = {}} << notOpened;
        QTest::newRow("another model") << Setup{.devices = {"04b8:0202"}} << notOpened;
        QTest::newRow("another maker") << Setup{.devices = {"04b9:0e15"}} << notOpened;
        QTest::newRow("no access") << Setup{.openRefused = true} << notOpened;
        QTest::newRow("claimed by another program")
            << Setup{.claimRefused = true} << QByteArray("Cannot Claim Interface\n");
        // The kernel refuses the claim while its own driver holds the interface.
        QTest::newRow("the kernel's driver stays") << Setup{.kernelDriver = true,
            .detachRefused = true} << QByteArray("Kernel Driver Active\nCannot Claim Interface\n");
    }

    void withoutAPrinterTheTicketIsKept()
    {
        QFETCH(EmulatedPrinter::Setup, setup);
        QFETCH(QByteArray, diagnostics);
        const EmulatedPrinter printer(setup);
        Till till;
        const CapturedLog log;
        CapturedOutput output;
        {
            const AnswerBox box;
            till.sellOnPaper();
            QVERIFY(saysNotConnected(box, till));
        }
        QCOMPARE(output.text(), diagnostics);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(Printer::getPrinter() == nullptr);
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.history(), QStringList("7 Thé 2.5"));

        const AnswerBox again;
        till.pay();
        QVERIFY(saysNotConnected(again, till));
        QCOMPARE(output.text(), diagnostics + diagnostics);
        QCOMPARE(till.history(), QStringList({"7 Thé 2.5", "7 Thé 2.5"}));
        QCOMPARE(till.ticket().size(), 1);
        QVERIFY(printer.transfers().empty());
        QVERIFY(till.sellsOnScreen());
    }

    void theSaleIsRecordedBeforeThePrinterIsMissed()
    {
        const EmulatedPrinter noPrinter({.devices = {}});
        Till till;
        QStringList historyDuringTheNotice;
        int linesDuringTheNotice = -1;
        const AnswerBox box(QMessageBox::Ok, [&](QMessageBox&) {
            historyDuringTheNotice = till.history();
            linesDuringTheNotice = till.shownLines();
        });
        till.sellOnPaper();
        QCOMPARE(historyDuringTheNotice, QStringList("7 Thé 2.5"));
        QCOMPARE(linesDuringTheNotice, 0);
    }

    void thePrinterIsMissedBeforeTheReceiptIsComposed()
    {
        const EmulatedPrinter noPrinter({.devices = {}});
        Till till;
        const CapturedLog log;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell("cœur", "2.5");
        till.pay();
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(log.criticals(), QStringList());
    }

    void noticesAreTranslated()
    {
        const EmulatedPrinter noPrinter({.devices = {}});
        Till till;
        const MarkedContext marked("FormVendelMessages");
        const auto box = AnswerBox::agreeing();
        till.pay();
        till.sellOnPaper();
        QCOMPARE(box.said(),
            QStringList({"FormVendelMessages:Payer: FormVendelMessages:Le ticket est vide",
                "FormVendelMessages:Payer: FormVendelMessages:Imprimante non connectée"}));
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

    void unpluggedBeforeTheReceipt()
    {
        EmulatedPrinter printer;
        Till till;
        const AnswerBox box;
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        CapturedOutput output;

        printer.unplug();
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);

        // Still away: the marked printer is given up, the ticket is kept.
        till.sellOnPaper();
        QCOMPARE(output.text(),
            writeError + writeError + "Cannot Release Interface\nCannot open device\n");
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(till.ticket(), QStringList("Thé 2.5"));
        QCOMPARE(till.history().size(), 3);

        printer.plug();
        till.pay();
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 4);
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(box.strays(), 0);
    }

    void unpluggedAfterTheReceipt()
    {
        EmulatedPrinter printer;
        Till till;
        till.sellOnPaper();
        CapturedOutput output;
        printer.unplug();
        printer.plug();
        // The till still holds the printer of before and learns of it from its first write.
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError);
        QCOMPARE(till.ticket(), QStringList());
        till.sellOnPaper();
        QCOMPARE(output.text(), writeError + writeError + "Cannot Release Interface\n");
        QCOMPARE(printer.transfers().back().bytes, cut);
        QCOMPARE(till.history().size(), 3);
    }

    void aFailedWriteIsReportedAndTheNextSalePrints_data()
    {
        QTest::addColumn<QByteArray>("fault");
        QTest::addColumn<int>("taken");
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<QByteArray>("released");
        QTest::addColumn<int>("transfers");
        const QByteArray gone = "Cannot Release Interface\n";
        const QByteArray stillThere = "Released Interface\n";
        QTest::newRow("unplugged during the receipt")
            << QByteArray("unplug-during 10") << 10 << writeError + writeError << gone << 3;
        QTest::newRow("unplugged before the cut")
            << QByteArray("unplug-after 1") << 264 << writeError << gone << 4;
        QTest::newRow("a stall") << QByteArray("stall") << 0 << writeError << stillThere << 4;
        QTest::newRow("a short write")
            << QByteArray("short-write 20") << 20 << writeError << stillThere << 4;
    }

    void aFailedWriteIsReportedAndTheNextSalePrints()
    {
        QFETCH(QByteArray, fault);
        QFETCH(QByteArray, report);
        QFETCH(QByteArray, released);
        EmulatedPrinter printer;
        Till till;
        CapturedOutput output;
        const AnswerBox box;
        printer.send(fault.toStdString());
        till.sellOnPaper();
        QCOMPARE(output.text(), report);
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 1);
        QTEST(static_cast<int>(printer.transfers().at(0).bytes.size()), "taken");
        printer.plug();
        till.sellOnPaper();
        QCOMPARE(output.text(), report + released);
        QCOMPARE(printer.transfers().back().bytes, cut);
        QTEST(static_cast<int>(printer.transfers().size()), "transfers");
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);
        QVERIFY(till.sellsOnScreen());
    }

    void aCharacterThatThePrinterLacksKeepsTheTicket_data()
    {
        QTest::addColumn<QString>("article");
        QTest::newRow("a ligature") << "cœur";
        QTest::newRow("an emoji") << "Bière 🍺";
        QTest::newRow("right-to-left text") << "قهوة";
    }

    /// Every press records the sale again.
    void aCharacterThatThePrinterLacksKeepsTheTicket()
    {
        QFETCH(QString, article);
        const EmulatedPrinter printer;
        Till till;
        const CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        till.setSwitch("1");
        till.sell(article.toUtf8(), "2.5");
        const QString error = "Errors FormVendel on_btn_Payer_clicked : "
                              "a character of the receipt is not in code page 858";
        const QString sold = "7 " + article + " 2.5";
        till.pay();
        QCOMPARE(log.criticals(), QStringList(error));
        QCOMPARE(till.history(), QStringList(sold));
        till.pay();
        QCOMPARE(log.criticals(), QStringList({error, error}));
        QCOMPARE(till.history(), QStringList({sold, sold}));
        QVERIFY(!box.wasShown());
        QCOMPARE(output.text(), QByteArray());
        QVERIFY(printer.transfers().empty());
        QCOMPARE(till.ticket(), QStringList(article + " 2.5"));
        click(till.window, "btn_Effacer_Ticket");
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history().size(), 2);
        till.sellOnPaper();
        QCOMPARE(printer.transfers().size(), 2U);
        QVERIFY(till.sellsOnScreen());
    }

    void aHeaderThatIsNoUtf8KeepsTheTicketOnPaperAndNotOnTheScreen()
    {
        const EmulatedPrinter printer;
        Till till;
        till.shop.write("EnteteFormulaire.dat", "Caf\xe9");
        {
            const CapturedLog log;
            till.sellOnPaper();
            QCOMPARE(log.criticals().size(), 1);
        }
        QVERIFY(printer.transfers().empty());
        QCOMPARE(till.ticket().size(), 1);
        till.setSwitch("0");
        till.pay();
        QVERIFY(till.takeReceipt().contains("Caf\uFFFD"));
        QCOMPARE(till.ticket(), QStringList());
        QVERIFY(till.sellsOnScreen());
    }

    void framesThatMustNotBeReadAreLeftOut_data()
    {
        QTest::addColumn<bool>("isOnPaper");
        QTest::newRow("on paper") << true;
        QTest::newRow("on the screen") << false;
    }

    void framesThatMustNotBeReadAreLeftOut()
    {
        QFETCH(bool, isOnPaper);
        const EmulatedPrinter printer;
        Till till;
        // A header that nobody writes to, and a footer of a terabyte.
        QVERIFY(mkfifo("EnteteFormulaire.dat", 0600) == 0);
        till.shop.write("PiedFormulaire.dat", "Merci");
        QVERIFY(QFile::resize("PiedFormulaire.dat", 1LL << 40));
        const CapturedLog log;
        if (isOnPaper) {
            till.sellOnPaper();
            QCOMPARE(printer.transfers().size(), 2U);
            const auto bytes = QByteArray::fromStdString(printer.transfers().at(0).bytes);
            QVERIFY(bytes.startsWith("\r\n\r\nProduit"));
            QVERIFY(bytes.endsWith("\x1b\x45\x02\x1b\x21\x02\r\n"));
        } else {
            till.sell("Thé", "2.5");
            till.pay();
            QVERIFY(till.takeReceipt().startsWith("\n\nProduit"));
        }
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(log.criticals(),
            QStringList({"EnteteFormulaire.dat is not read: it is not a regular file",
                "PiedFormulaire.dat is not read: it is larger than 4 MB"}));
    }
};

VENDEL_TEST(TestPaymentOnPaperFailures)
#include "tst_Payment_onPaper_failures.moc"
