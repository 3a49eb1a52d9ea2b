// SPDX-License-Identifier: MIT
#include "Print/escpospp/MDPair.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <map>

/// Texts with markers in them.
class TestPrinterText : public QObject
{
    Q_OBJECT

private slots:
    void textBecomesBytes()
    {
        const std::string bold("\x1B\x45\x01", 3);
        const std::string plain("\x1B\x45\x00", 3);
        const std::string underlined("\x1B\x2D\x02", 3);
        const std::string level("\x1B\x2D\x00", 3);
        const std::string line(200'000, 'x');
        const Rows<std::string, std::string> rows{
            {"plain", "plain text", "plain text"},
            {"bold", "a **b** c", "a " + bold + "b" + plain + " c"},
            {"underlined", "a __b__ c", "a " + underlined + "b" + level + " c"},
            {"nested", "**a __b__ c**", bold + "a " + underlined + "b" + level + " c" + plain},
            {"nested closings together", "**a __b__**",
                bold + "a " + underlined + "b" + level + plain},
            {"a lone star", "5 * 3", "5 * 3"},
            {"a lone underscore", "a_b", "a_b"},
            {"a star and an underscore", "a*_b_*c", "a*_b_*c"},
            {"one character", "x", "x"},
            {"one star", "*", "*"},
            {"a star at the end", "a*", "a*"},
            {"ends with a closing marker", "**b**", bold + "b" + plain},
            {"nothing between the markers", "****", bold + plain},
            {"a lone star before a marker goes with it", "***b**", bold + "*b" + plain},
            {"a lone star behind the last marker", "**b***", bold + "b" + plain + "*"},
            {"twice", "**a****b**", bold + "a" + plain + bold + "b" + plain},
            {"lines", "**a**\r\nb\n", bold + "a" + plain + "\r\nb\n"},
            {"code page bytes", "caf\x82 **\xd5**", "caf\x82 " + bold + "\xd5" + plain},
            {"with a NUL", std::string("a\0**b**", 7), std::string("a\0", 2) + bold + "b" + plain},
            {"a long text is one transfer", "__" + line + "__", underlined + line + level},
        };
        for (const auto& [row, text, bytes] : rows) {
            const InRow inRow(row);
            HeldPrinter held;
            QVERIFY(held.printer.text(text));
            QCOMPARE(held.sent(), QStringList(hexOf(bytes)));
            QCOMPARE(held.output.take(), std::string());
        }
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

    void aRejectedTextSendsNothing()
    {
        const char* nesting = "Incorrect text string with markdown\n";
        const char* leftOpen = "Unmatched characters in markdown string\n";
        const Rows<std::string> rows{
            // Crossed markers, also around nothing.
            {"**a __b** c__", nesting},
            {"**__x**__", nesting},
            {"__a **b__ c**", nesting},
            {"**a", leftOpen},
            {"__", leftOpen},
            {"a**", leftOpen},
            {"**a*", leftOpen},
            {"**a** __b", leftOpen},
        };
        for (const auto& [text, diagnostic] : rows) {
            const InRow inRow(text);
            HeldPrinter held;
            QVERIFY(!held.printer.text(text));
            QCOMPARE(held.output.take(), diagnostic);
            QCOMPARE(held.sent(), QStringList());
            QVERIFY(held.printer.text("next"));
            QCOMPARE(held.sent(), QStringList("6e657874"));
        }
    }

    void textCutCutsWhatWasSentAndNotARejectedText()
    {
        HeldPrinter held;
        QVERIFY(!held.printer.textCut("**b"));
        QCOMPARE(held.output.take(), std::string("Unmatched characters in markdown string\n"));
        QCOMPARE(held.sent(), QStringList());
        QVERIFY(held.printer.textCut("**b**"));
        QCOMPARE(held.sent(), QStringList({"1b4501621b4500", "1d564196"}));
    }
};

VENDEL_TEST(TestPrinterText)
#include "tst_Printer_text.moc"
