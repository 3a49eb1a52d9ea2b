// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "Print/escpospp/MDPair.h"
#include "tests/Print/PrinterTest.h"

#include <QtTest>

#include <map>

Q_DECLARE_METATYPE(std::string)

namespace {

QByteArray hexOf(const std::string& bytes)
{
    return QByteArray::fromStdString(bytes).toHex();
}

// Dynamic initialisation of this file may already use the commands and the markers.
const std::string cutBeforeMain = EscPos::CUT;
const MDPair boldBeforeMain = MDPair::getMatching("**");

} // namespace

class TestStyledText : public QObject
{
    Q_OBJECT

private slots:
    void commandsAreTheirBytes_data();
    void commandsAreTheirBytes();
    void commandsAndMarkersAreReadyBeforeMain();
    void aPairStartsWithItsMarkerOnly();
    void theMapKnowsTwoMarkers();
    void fillingTheMapAgainKeepsItsPairs();
    void getMatchingFillsAnEmptyMap();
    void getMatchingGivesACopy();
    void anUnknownMarkerThrows_data();
    void anUnknownMarkerThrows();
    void pairsAreEqualWhenTheirCommandsAre();
    void textBecomesBytes_data();
    void textBecomesBytes();
    void theFirstTextHasItsMarkers();
    void anEmptyTextIsOneEmptyTransfer();
    void aLongTextIsOneTransfer();
    void aRejectedTextSendsNothing_data();
    void aRejectedTextSendsNothing();
    void textCutCutsWhatWasSent();
    void textCutDoesNotCutARejectedText();
    void textThatCannotBeWrittenCountsAsSent();
};

void TestStyledText::commandsAreTheirBytes_data()
{
    QTest::addColumn<std::string>("command");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("CUT") << EscPos::CUT << QByteArray("1d564196");
    QTest::newRow("RESET") << EscPos::RESET << QByteArray("1d40");
    QTest::newRow("FONT_A") << EscPos::FONT_A << QByteArray("1b4d00");
    QTest::newRow("FONT_B") << EscPos::FONT_B << QByteArray("1b4d01");
    QTest::newRow("UNDERLINE_OFF") << EscPos::UNDERLINE_OFF << QByteArray("1b2d00");
    QTest::newRow("UNDERLINE_1_DOT") << EscPos::UNDERLINE_1_DOT << QByteArray("1b2d01");
    QTest::newRow("UNDERLINE_2_DOT") << EscPos::UNDERLINE_2_DOT << QByteArray("1b2d02");
    QTest::newRow("BOLD_ON") << EscPos::BOLD_ON << QByteArray("1b4501");
    QTest::newRow("BOLD_OFF") << EscPos::BOLD_OFF << QByteArray("1b4500");
    QTest::newRow("BITMAP") << EscPos::BITMAP << QByteArray("1b2a");
    QTest::newRow("NO_LINE") << EscPos::NO_LINE << QByteArray("1b3300");
    QTest::newRow("RESET_LINE") << EscPos::RESET_LINE << QByteArray("1b32");
}

void TestStyledText::commandsAreTheirBytes()
{
    QFETCH(std::string, command);
    QFETCH(QByteArray, bytes);
    QCOMPARE(hexOf(command), bytes);
}

void TestStyledText::commandsAndMarkersAreReadyBeforeMain()
{
    QCOMPARE(hexOf(cutBeforeMain), QByteArray("1d564196"));
    QCOMPARE(hexOf(boldBeforeMain.on), QByteArray("1b4501"));
}

void TestStyledText::aPairStartsWithItsMarkerOnly()
{
    const MDPair pair("~~");
    QCOMPARE(pair.marker, std::string("~~"));
    QCOMPARE(pair.on, std::string());
    QCOMPARE(pair.off, std::string());
}

void TestStyledText::theMapKnowsTwoMarkers()
{
    MDPair::initializeMap();
    QCOMPARE(MDPair::mdPairMap.size(), 2U);
    const MDPair underline = MDPair::getMatching("__");
    QCOMPARE(underline.marker, std::string("__"));
    QCOMPARE(hexOf(underline.on), QByteArray("1b2d02"));
    QCOMPARE(hexOf(underline.off), QByteArray("1b2d00"));
    const MDPair bold = MDPair::getMatching("**");
    QCOMPARE(bold.marker, std::string("**"));
    QCOMPARE(hexOf(bold.on), QByteArray("1b4501"));
    QCOMPARE(hexOf(bold.off), QByteArray("1b4500"));
}

void TestStyledText::fillingTheMapAgainKeepsItsPairs()
{
    MDPair::initializeMap();
    const auto before = MDPair::mdPairMap;
    MDPair::initializeMap();
    QVERIFY(MDPair::mdPairMap == before);
}

void TestStyledText::getMatchingFillsAnEmptyMap()
{
    std::map<std::string, MDPair*> kept;
    kept.swap(MDPair::mdPairMap);
    const MDPair bold = MDPair::getMatching("**");
    QCOMPARE(hexOf(bold.on), QByteArray("1b4501"));
    QCOMPARE(MDPair::mdPairMap.size(), 2U);
    kept.swap(MDPair::mdPairMap);
}

void TestStyledText::getMatchingGivesACopy()
{
    MDPair bold = MDPair::getMatching("**");
    bold.on = "changed";
    QCOMPARE(hexOf(MDPair::getMatching("**").on), QByteArray("1b4501"));
}

void TestStyledText::anUnknownMarkerThrows_data()
{
    QTest::addColumn<std::string>("marker");
    QTest::newRow("other characters") << std::string("~~");
    QTest::newRow("one star") << std::string("*");
    QTest::newRow("three stars") << std::string("***");
    QTest::newRow("mixed") << std::string("*_");
    QTest::newRow("none") << std::string();
}

void TestStyledText::anUnknownMarkerThrows()
{
    QFETCH(std::string, marker);
    QCOMPARE(thrownInt([&marker] { MDPair::getMatching(marker); }), -1);
}

void TestStyledText::pairsAreEqualWhenTheirCommandsAre()
{
    MDPair bold = MDPair::getMatching("**");
    QVERIFY(bold == MDPair::getMatching("**"));
    QVERIFY(!(bold == MDPair::getMatching("__")));
    bold.marker = "~~";
    QVERIFY(bold == MDPair::getMatching("**"));
    bold.off = EscPos::UNDERLINE_OFF;
    QVERIFY(!(bold == MDPair::getMatching("**")));
    bold.off = EscPos::BOLD_OFF;
    bold.on = EscPos::FONT_B;
    QVERIFY(!(bold == MDPair::getMatching("**")));
}

void TestStyledText::textBecomesBytes_data()
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
    row("nested closings together", "**a __b__**", bold + "a " + underlined + "b" + level + plain);
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
    QTest::newRow("with a NUL") << std::string("a\0**b**", 7)
                                << std::string("a\0", 2) + bold + "b" + plain;
}

void TestStyledText::textBecomesBytes()
{
    QFETCH(std::string, text);
    QFETCH(std::string, bytes);
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    FlushedOutput output;
    QVERIFY(printer.text(text));
    QCOMPARE(transfersOf(bus), QStringList(hexOf(bytes)));
    QCOMPARE(output.take(), std::string());
}

void TestStyledText::theFirstTextHasItsMarkers()
{
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    std::map<std::string, MDPair*> kept;
    kept.swap(MDPair::mdPairMap);
    const bool sent = printer.text("**b**");
    kept.swap(MDPair::mdPairMap);
    QVERIFY(sent);
    QCOMPARE(transfersOf(bus), QStringList("1b4501621b4500"));
}

void TestStyledText::anEmptyTextIsOneEmptyTransfer()
{
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    QVERIFY(printer.text(""));
    QCOMPARE(bus.transfers(), (std::vector<EmulatedTransfer>{{0, "taken", 0, ""}}));
}

void TestStyledText::aLongTextIsOneTransfer()
{
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    const std::string line(200'000, 'x');
    QVERIFY(printer.text("__" + line + "__"));
    QCOMPARE(bus.transfers(),
        (std::vector<EmulatedTransfer>{{0, "taken", 200'006,
            std::string("\x1B\x2D\x02", 3) + line + std::string("\x1B\x2D\x00", 3)}}));
}

void TestStyledText::aRejectedTextSendsNothing_data()
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

void TestStyledText::aRejectedTextSendsNothing()
{
    QFETCH(std::string, text);
    QFETCH(std::string, diagnostic);
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    FlushedOutput output;
    QVERIFY(!printer.text(text));
    QCOMPARE(output.take(), diagnostic);
    QCOMPARE(transfersOf(bus), QStringList());
    QVERIFY(printer.text("next"));
    QCOMPARE(transfersOf(bus), QStringList("6e657874"));
}

void TestStyledText::textCutCutsWhatWasSent()
{
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    QVERIFY(printer.textCut("**b**"));
    QCOMPARE(transfersOf(bus), QStringList({"1b4501621b4500", "1d564196"}));
}

void TestStyledText::textCutDoesNotCutARejectedText()
{
    EmulatedPrinter bus;
    Printer printer(ReceiptPrinter);
    FlushedOutput output;
    QVERIFY(!printer.textCut("**b"));
    QCOMPARE(output.take(), std::string("Unmatched characters in markdown string\n"));
    QCOMPARE(transfersOf(bus), QStringList());
}

void TestStyledText::textThatCannotBeWrittenCountsAsSent()
{
    EmulatedPrinter bus;
    FlushedOutput output;
    Printer::initializePrinter(ReceiptPrinter);
    bus.unplug();
    QVERIFY(Printer::getPrinter()->textCut("x"));
    QCOMPARE(output.take(), std::string("Write Error\nWrite Error\n"));
}

QTEST_GUILESS_MAIN(TestStyledText)

#include "tst_StyledText.moc"
