// SPDX-License-Identifier: MIT
#include "Print/escpospp/MDPair.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

#include <map>

Q_DECLARE_METATYPE(std::string)

/// Texts with markers in them.
class TestPrinterText : public QObject
{
    Q_OBJECT

private slots:
    void textBecomesBytes_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<std::string>("bytes");
        const auto row = [](const char* name, const std::string& text, const std::string& bytes) {
            QTest::newRow(name) << text << bytes;
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
        row("with a NUL", std::string("a\0**b**", 7), std::string("a\0", 2) + bold + "b" + plain);
        const std::string line(200'000, 'x');
        row("a long text is one transfer", "__" + line + "__", underlined + line + level);
    }

    void textBecomesBytes()
    {
        QFETCH(std::string, text);
        QFETCH(std::string, bytes);
        HeldPrinter held;
        QVERIFY(held.printer.text(text));
        QCOMPARE(held.sent(), QStringList(hexOf(bytes)));
        QCOMPARE(held.output.take(), std::string());
    }

    void theFirstTextHasItsMarkers()
    {
        HeldPrinter held;
        std::map<std::string, MDPair*> kept;
        kept.swap(MDPair::mdPairMap);
        const bool sent = held.printer.text("**b**");
        kept.swap(MDPair::mdPairMap);
        QVERIFY(sent);
        QCOMPARE(held.sent(), QStringList("1b4501621b4500"));
    }

    void anEmptyTextIsOneEmptyTransfer()
    {
        HeldPrinter held;
        QVERIFY(held.printer.text(""));
        QCOMPARE(held.bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}}));
    }

    void aRejectedTextSendsNothing_data()
    {
        QTest::addColumn<std::string>("diagnostic");
        const std::string nesting = "Incorrect text string with markdown\n";
        const std::string leftOpen = "Unmatched characters in markdown string\n";
        // Crossed markers, also around nothing.
        for (const char* text : {"**a __b** c__", "**__x**__", "__a **b__ c**"}) {
            QTest::newRow(text) << nesting;
        }
        for (const char* text : {"**a", "__", "a**", "**a*", "**a** __b"}) {
            QTest::newRow(text) << leftOpen;
        }
    }

    void aRejectedTextSendsNothing()
    {
        QFETCH(std::string, diagnostic);
        HeldPrinter held;
        QVERIFY(!held.printer.text(QTest::currentDataTag()));
        QCOMPARE(held.output.take(), diagnostic);
        QCOMPARE(held.sent(), QStringList());
        QVERIFY(held.printer.text("next"));
        QCOMPARE(held.sent(), QStringList("6e657874"));
    }

    void textCutCutsWhatWasSent()
    {
        HeldPrinter held;
        QVERIFY(held.printer.textCut("**b**"));
        QCOMPARE(held.sent(), QStringList({"1b4501621b4500", "1d564196"}));
    }

    void textCutDoesNotCutARejectedText()
    {
        HeldPrinter held;
        QVERIFY(!held.printer.textCut("**b"));
        QCOMPARE(held.output.take(), std::string("Unmatched characters in markdown string\n"));
        QCOMPARE(held.sent(), QStringList());
    }

    void textThatCannotBeWrittenCountsAsSent()
    {
        HeldPrinter held;
        held.bus.unplug();
        QVERIFY(held.printer.textCut("x"));
        QCOMPARE(held.output.take(), std::string("Write Error\nWrite Error\n"));
    }
};

VENDEL_TEST(TestPrinterText)
#include "tst_Printer_text.moc"
