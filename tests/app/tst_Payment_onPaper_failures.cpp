// SPDX-License-Identifier: MIT
#include "Print/escpospp/Printer.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/EmulatedPrinter.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QFile>

#include <sys/stat.h>

namespace {
const std::string cut = "\x1d\x56\x41\x96";
const QByteArray writeError = "Write Error\n";
} // namespace

/// A printer that is missing, pulled out or unable to print a receipt, and frames of a receipt that
/// cannot be read.
class TestPaymentOnPaperFailures : public QObject
{
    Q_OBJECT

private slots:
    void withoutAPrinterTheTicketIsKept()
    {
        using Setup = EmulatedPrinter::Setup;
        const QByteArray notOpened = "Cannot open device\n";
        const Rows<Setup, QByteArray> rows{
            {"an empty bus", Setup{.devices = {}}, notOpened},
            {"another model", Setup{.devices = {"04b8:0202"}}, notOpened},
            {"another maker", Setup{.devices = {"04b9:0e15"}}, notOpened},
            {"no access", Setup{.openRefused = true}, notOpened},
            {"claimed by another program", Setup{.claimRefused = true}, "Cannot Claim Interface\n"},
            // The kernel refuses the claim while its own driver holds the interface.
            {"the kernel's driver stays", Setup{.kernelDriver = true, .detachRefused = true},
                "Kernel Driver Active\nCannot Claim Interface\n"},
        };
        for (const auto& [row, setup, diagnostics] : rows) {
            const InRow inRow(row);
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
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));

            const AnswerBox again;
            till.pay();
            QVERIFY(saysNotConnected(again, till));
            QCOMPARE(output.text(), diagnostics + diagnostics);
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
            QVERIFY(printer.transfers().empty());
            QVERIFY(till.sellsOnScreen());
        }
    }

    void theSaleIsRecordedBeforeThePrinterIsMissed()
    {
        const EmulatedPrinter noPrinter({.devices = {}});
        Till till;
        QString booksDuringTheNotice;
        const AnswerBox box(
            QMessageBox::Ok, [&](QMessageBox&) { booksDuringTheNotice = till.books(); });
        till.sellOnPaper();
        QCOMPARE(booksDuringTheNotice, QString("sold: 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));
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
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Thé 2.5; ticket: ; 0 shown"));
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
        QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Thé 2.5; ticket: ; 0 shown"));

        // Still away: the marked printer is given up, the ticket is kept.
        till.sellOnPaper();
        QCOMPARE(output.text(),
            writeError + writeError + "Cannot Release Interface\nCannot open device\n");
        QVERIFY(saysNotConnected(box, till));
        QCOMPARE(till.books(),
            QString("sold: 7 Thé 2.5, 7 Thé 2.5, 7 Thé 2.5; ticket: Thé 2.5; 0 shown"));

        printer.plug();
        till.pay();
        QCOMPARE(till.books(),
            QString("sold: 7 Thé 2.5, 7 Thé 2.5, 7 Thé 2.5, 7 Thé 2.5; ticket: ; 0 shown"));
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

    void aFailedWriteIsReportedAndTheNextSalePrints()
    {
        const QByteArray gone = "Cannot Release Interface\n";
        const QByteArray stillThere = "Released Interface\n";
        const Rows<QByteArray, int, QByteArray, QByteArray, int> rows{
            {"unplugged during the receipt", "unplug-during 10", 10, writeError + writeError, gone,
                3},
            {"unplugged before the cut", "unplug-after 1", 264, writeError, gone, 4},
            {"a stall", "stall", 0, writeError, stillThere, 4},
            {"a short write", "short-write 20", 20, writeError, stillThere, 4},
        };
        for (const auto& [row, fault, taken, report, released, transfers] : rows) {
            const InRow inRow(row);
            EmulatedPrinter printer;
            Till till;
            CapturedOutput output;
            const AnswerBox box;
            printer.send(fault.toStdString());
            till.sellOnPaper();
            QCOMPARE(output.text(), report);
            QVERIFY(!box.wasShown());
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5; ticket: ; 0 shown"));
            QCOMPARE(static_cast<int>(printer.transfers().at(0).bytes.size()), taken);
            printer.plug();
            till.sellOnPaper();
            QCOMPARE(output.text(), report + released);
            QCOMPARE(printer.transfers().back().bytes, cut);
            QCOMPARE(static_cast<int>(printer.transfers().size()), transfers);
            QCOMPARE(till.books(), QString("sold: 7 Thé 2.5, 7 Thé 2.5; ticket: ; 0 shown"));
            QVERIFY(till.sellsOnScreen());
        }
    }

    /// Every press records the sale again.
    void aCharacterThatThePrinterLacksKeepsTheTicket()
    {
        for (const char* article : {"cœur", "Bière 🍺", "قهوة"}) {
            const InRow inRow(article);
            const EmulatedPrinter printer;
            Till till;
            const CapturedLog log;
            CapturedOutput output;
            const AnswerBox box;
            till.setSwitch("1");
            till.sell(article, "2.5");
            const QString error = "Errors FormVendel on_btn_Payer_clicked : "
                                  "a character of the receipt is not in code page 858";
            const QString line = QString(article) + " 2.5";
            const QString sold = "7 " + line;
            till.pay();
            QCOMPARE(log.criticals(), QStringList(error));
            QCOMPARE(till.history(), QStringList(sold));
            till.pay();
            QCOMPARE(log.criticals(), QStringList({error, error}));
            QCOMPARE(till.history(), QStringList({sold, sold}));
            QVERIFY(!box.wasShown());
            QCOMPARE(output.text(), QByteArray());
            QVERIFY(printer.transfers().empty());
            QCOMPARE(till.ticket(), QStringList(line));
            click(till.window, "btn_Effacer_Ticket");
            QCOMPARE(till.ticket(), QStringList());
            QCOMPARE(till.history().size(), 2);
            till.sellOnPaper();
            QCOMPARE(printer.transfers().size(), 2U);
            QVERIFY(till.sellsOnScreen());
        }
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

    void framesThatMustNotBeReadAreLeftOut()
    {
        for (const bool isOnPaper : {true, false}) {
            const InRow inRow(isOnPaper ? "on paper" : "on the screen");
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
                QVERIFY(bytes.endsWith("\033E\002\033!\002\r\n"));
            } else {
                till.sellTea();
                QVERIFY(till.takeReceipt().startsWith("\n\nProduit"));
            }
            QCOMPARE(till.ticket(), QStringList());
            QCOMPARE(log.criticals(),
                QStringList({"EnteteFormulaire.dat is not read: it is not a regular file",
                    "PiedFormulaire.dat is not read: it is larger than 4 MB"}));
        }
    }
};

VENDEL_TEST(TestPaymentOnPaperFailures)
#include "tst_Payment_onPaper_failures.moc"
