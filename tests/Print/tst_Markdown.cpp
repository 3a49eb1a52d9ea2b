// SPDX-License-Identifier: MIT
#include "Print/escpospp/MDPair.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

#include <map>

Q_DECLARE_METATYPE(std::string)

class TestMarkdown : public QObject
{
    Q_OBJECT

private slots:
    void textBecomesBytes_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("bytes");
        const auto row = [](const char* name, const char* text, const std::string& bytes) {
            QTest::newRow(name) << std::string(text) << bytes;
        };
        const std::string bold("\x1B\x45\x01", 3);
        const std::string plain("\x1B\x45\x00", 3);
        const std::string underlined("\x1B\x2D\x02", 3);
        const std::string level("\x1B\x2D\x00", 3);
        row("plain", "plain text", "plain text");
        row("bold", "a **b** c", "a " + bold + "b" + plain + " c");
        row("underlined", "a __b__ c", "a " + underlined + "b" + level + " c");
        row("nested", "**a __b__ c**", bold + "a " + underlined + "b" + level + " c" + plain);
        row("nested closings together", "**a __b__**",
            bold + "a " + underlined + "b" + level + plain);
        row("a lone star", "5 * 3", "5 * 3");
        row("a lone underscore", "a_b", "a_b");
        row("a star and an underscore", "a*_b_*c", "a*_b_*c");
        row("one character", "x", "x");
        row("one star", "*", "*");
        row("a star at the end", "a*", "a*");
        row("ends with a closing marker", "**b**", bold + "b" + plain);
        row("nothing between the markers", "****", bold + plain);
        row("a lone star before a marker goes with it", "***b**", bold + "*b" + plain);
        row("a lone star behind the last marker", "**b***", bold + "b" + plain + "*");
        row("twice", "**a****b**", bold + "a" + plain + bold + "b" + plain);
        row("lines", "**a**\r\nb\n", bold + "a" + plain + "\r\nb\n");
        row("code page bytes", "caf\x82 **\xd5**", "caf\x82 " + bold + "\xd5" + plain);
        QTest::newRow("with a NUL")
            << std::string("a\0**b**", 7) << std::string("a\0", 2) + bold + "b" + plain;
    }

    void textBecomesBytes()
    {
        QFETCH(std::string, text);
        QFETCH(std::string, bytes);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        QVERIFY(printer.text(text));
        QCOMPARE(transfersOf(bus), QStringList(hexOf(bytes)));
        QCOMPARE(output.take(), std::string());
    }

    void theFirstTextHasItsMarkers()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        std::map<std::string, MDPair*> kept;
        kept.swap(MDPair::mdPairMap);
        const bool sent = printer.text("**b**");
        kept.swap(MDPair::mdPairMap);
        QVERIFY(sent);
        QCOMPARE(transfersOf(bus), QStringList("1b4501621b4500"));
    }

    void anEmptyTextIsOneEmptyTransfer()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        QVERIFY(printer.text(""));
        QCOMPARE(bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}}));
    }

    void aLongTextIsOneTransfer()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        const std::string line(200'000, 'x');
        QVERIFY(printer.text("__" + line + "__"));
        QCOMPARE(bus.transfers(),
            (std::vector<EmulatedTransfer>{{0, "taken", 200'006,
                std::string("\x1B\x2D\x02", 3) + line + std::string("\x1B\x2D\x00", 3)}}));
    }

    void aRejectedTextSendsNothing_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("diagnostic");
        const std::string nesting = "Incorrect text string with markdown\n";
        const std::string leftOpen = "Unmatched characters in markdown string\n";
        QTest::newRow("crossed") << std::string("**a __b** c__") << nesting;
        QTest::newRow("crossed around nothing") << std::string("**__x**__") << nesting;
        QTest::newRow("crossed the other way") << std::string("__a **b__ c**") << nesting;
        QTest::newRow("left open") << std::string("**a") << leftOpen;
        QTest::newRow("only opened") << std::string("__") << leftOpen;
        QTest::newRow("opened at the end") << std::string("a**") << leftOpen;
        QTest::newRow("half closed") << std::string("**a*") << leftOpen;
        QTest::newRow("inner one left open") << std::string("**a** __b") << leftOpen;
    }

    void aRejectedTextSendsNothing()
    {
        QFETCH(std::string, text);
        QFETCH(std::string, diagnostic);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        QVERIFY(!printer.text(text));
        QCOMPARE(output.take(), diagnostic);
        QCOMPARE(transfersOf(bus), QStringList());
        QVERIFY(printer.text("next"));
        QCOMPARE(transfersOf(bus), QStringList("6e657874"));
    }

    void textCutCutsWhatWasSent()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        QVERIFY(printer.textCut("**b**"));
        QCOMPARE(transfersOf(bus), QStringList({"1b4501621b4500", "1d564196"}));
    }

    void textCutDoesNotCutARejectedText()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        QVERIFY(!printer.textCut("**b"));
        QCOMPARE(output.take(), std::string("Unmatched characters in markdown string\n"));
        QCOMPARE(transfersOf(bus), QStringList());
    }

    void textThatCannotBeWrittenCountsAsSent()
    {
        EmulatedPrinter bus;
        FlushedOutput output;
        Printer::initializePrinter(receiptPrinter);
        bus.unplug();
        QVERIFY(Printer::getPrinter()->textCut("x"));
        QCOMPARE(output.take(), std::string("Write Error\nWrite Error\n"));
    }
};

VENDEL_TEST(TestMarkdown)

#include "tst_Markdown.moc"
