// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "Print/escpospp/EscPos.h"
#include "tests/support/EscPosPage.h"
#include "tests/support/EscPosPagePicture.h"
#include "tests/support/TestProgram.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>

#include <iconv.h>

namespace {
using namespace std::string_literals;

QStringList listOf(const std::vector<std::string>& texts)
{
    QStringList list;
    for (const auto& text : texts) {
        list += QString::fromStdString(text);
    }
    return list;
}

QStringList printed(const std::string& job)
{
    const EscPosPage page(job);
    return listOf(page.complaints()) + listOf(page.styledLines());
}

QString characterOf858(char byte)
{
    const Handle<void, iconv_close> converter(iconv_open("UTF-8", "CP858"));
    std::array<char, 8> utf8{};
    char* in = &byte;
    char* out = utf8.data();
    std::size_t inLeft = 1;
    std::size_t outLeft = utf8.size();
    iconv(converter.get(), &in, &inLeft, &out, &outLeft);
    return QString::fromUtf8(utf8.data());
}
} // namespace

Q_DECLARE_METATYPE(std::string)

class TestEscPosPage : public QObject
{
    Q_OBJECT

private slots:
    void aJobBecomesLines_data()
    {
        QTest::addColumn<std::string>("job");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char* name, const std::string& job, const QStringList& lines) {
            QTest::newRow(name) << job << lines;
        };
        row("nothing", "", {});
        row("two lines", "one\r\ntwo\n", {"one", "two"});
        row("a carriage return alone", "one\rtwo\n", {"onetwo"});
        row("an empty line", "\r\n", {""});
        row("bold and not",
            "\x1B\x45\x01"
            "a\x1B\x45\x02"
            "b\n",
            {"[bold]a[plain]b"});
        row("bold by bit 0 alone",
            "\x1B\x45\xFF"
            "a\x1B\x45\xFE"
            "b\n",
            {"[bold]a[plain]b"});
        row("thin underline",
            "\x1B-\x01"
            "a\x1B-0b\n",
            {"[thinly underlined]a[plain]b"});
        row("thick underline", "\x1B-2a\x1B-\0b\n"s, {"[underlined]a[plain]b"});
        row("double height and width",
            "\x1B!\x30"
            "a\n",
            {"[wide high]a"});
        row("double width",
            "\x1B!\x20"
            "a\n",
            {"[wide]a"});
        row("everything by one byte",
            "\x1B!\xB9"
            "a\n",
            {"[small bold thinly underlined wide high]a"});
        row("print mode 2 is plain font A",
            "\x1B!\x30"
            "a\n\x1B!\x02"
            "b\n",
            {"[wide high]a", "b"});
        row("print mode 2 ends bold and underline",
            "\x1B"
            "E1\x1B-1a\x1B!\x02"
            "b\n",
            {"[bold thinly underlined]a[plain]b"});
        row("font B", "\x1BM1a\x1BM\0b\n"s, {"[small]a[plain]b"});
        row("centred, then left by the digit",
            "\x1B"
            "a\x01"
            "a\n\x1B"
            "a0b\n",
            {"[centre]a", "b"});
        row("right",
            "\x1B"
            "a2a\n",
            {"[right]a"});
        row("reset to the start",
            "\x1B"
            "E1\x1B"
            "a1\x1B!0\x1B@a\n",
            {"a"});
        row("code page 858 asked for",
            "\x1Bt\x13"
            "a\n",
            {"a"});
        row("a tab", "Thé\t$1\n" + ""s, {"Th\u251c\u00ae    $1"});
        row("a tab from a tab stop", "12345678\tx\n", {"12345678        x"});
        row("a tab behind wide text",
            "\x1B!\x20"
            "->  \t\x1B!\x02"
            "x\n",
            {"[wide]->          [plain]x"});
        row("48 columns", std::string(48, 'x') + "\n", {QString(48, 'x')});
        row("49 columns wrap", std::string(49, 'x') + "\n", {QString(48, 'x'), "x"});
        row("25 wide columns wrap", "\x1B!\x20" + std::string(25, 'x') + "\n",
            {"[wide]" + QString(24, 'x'), "[wide]x"});
        row("64 columns of font B", "\x1BM1" + std::string(65, 'x') + "\n",
            {"[small]" + QString(64, 'x'), "[small]x"});
        row("a tab into the right edge", std::string(41, 'x') + "\tab\n", {QString(41, 'x'), "ab"});
        row("a tab at the right edge", std::string(48, 'x') + "\tab\n",
            {QString(48, 'x'), "        ab"});
        row("a cut", "a\n" + EscPos::CUT, {"a", "[cut]"});
        row("other cuts",
            "\x1DV\0\x1DV1\x1D"
            "VB\0"s,
            {"[cut]", "[cut]", "[cut]"});
        row("an image", "\x1B*\x21\x02\0......\n"s, {"[image 2x24]"});
    }

    void aJobBecomesLines()
    {
        QFETCH(std::string, job);
        QFETCH(QStringList, lines);
        QCOMPARE(printed(job), lines);
    }

    void theUpperHalfIsCodePage858()
    {
        for (int byte = 0x80; byte < 0x100; ++byte) {
            const char character = static_cast<char>(byte);
            QCOMPARE(printed(std::string{character, '\n'}), QStringList(characterOf858(character)));
        }
        QCOMPARE(printed("\xD5\n"), QStringList(QString::fromUtf8("€")));
    }

    void aLineFeedMovesThePaper_data()
    {
        QTest::addColumn<std::string>("job");
        QTest::addColumn<int>("dots");
        QTest::newRow("plain") << "a\n"s << 30;
        QTest::newRow("empty") << "\n"s << 30;
        QTest::newRow("double height") << "\x1B!\x10"
                                          "a\n"s
                                       << 48;
        QTest::newRow("no spacing") << "\x1B"
                                       "3\0a\n"s
                                    << 24;
        QTest::newRow("empty without spacing") << "\x1B"
                                                  "3\0\n"s
                                               << 0;
        QTest::newRow("wider spacing") << "\x1B"
                                          "3\x64"
                                          "a\n"s
                                       << 100;
        QTest::newRow("default again") << "\x1B"
                                          "3\x64\x1B"
                                          "2a\n"s
                                       << 30;
        QTest::newRow("cut") << EscPos::CUT << 150;
    }

    void aLineFeedMovesThePaper()
    {
        QFETCH(std::string, job);
        QFETCH(int, dots);
        const EscPosPage page(job);
        QCOMPARE(page.lines().size(), 1U);
        QCOMPARE(page.lines().front().feed, dots);
    }

    void bitImagesBecomeDots_data()
    {
        QTest::addColumn<std::string>("job");
        QTest::addColumn<int>("width");
        QTest::addColumn<QList<int>>("blackRowsOfFirstColumn");
        QTest::newRow("24 dots, double density")
            << "\x1B*\x21\x01\0\x80\x01\x02\n"s << 1 << QList<int>({0, 15, 22});
        QTest::newRow("24 dots, single density")
            << "\x1B*\x20\x01\0\x80\0\0\n"s << 2 << QList<int>({0});
        QTest::newRow("8 dots, double density")
            << "\x1B*\x01\x01\0\x41\n"s << 1 << QList<int>({3, 4, 5, 21, 22, 23});
        QTest::newRow("8 dots, single density")
            << "\x1B*\0\x01\0\x80\n"s << 2 << QList<int>({0, 1, 2});
    }

    void bitImagesBecomeDots()
    {
        QFETCH(std::string, job);
        QFETCH(int, width);
        QFETCH(QList<int>, blackRowsOfFirstColumn);
        const EscPosPage page(job);
        const PageBand& band = page.lines().at(0).bands.at(0);
        QCOMPARE(band.width(), width);
        QCOMPARE(band.height(), 24);
        QList<int> black;
        for (int y = 0; y < band.height(); ++y) {
            if (band.rows[static_cast<std::size_t>(y)][0]) {
                black += y;
            }
        }
        QCOMPARE(black, blackRowsOfFirstColumn);
    }

    void aBandIsCutAtTheAreasRight()
    {
        QCOMPARE(printed("\x1B*\x21\x41\x02" + std::string(577 * 3, '\xFF') + "\n"),
            QStringList("[image 576x24]"));
    }

    void bandsTouchWithoutLineSpacing()
    {
        const std::string band = "\x1B*\x21\x01\0\xFF\xFF\xFF\n"s;
        const EscPosPage page(EscPos::NO_LINE + band + band + EscPos::RESET_LINE + "a\n");
        QCOMPARE(page.lines().size(), 3U);
        QCOMPARE(page.lines()[0].feed, 24);
        QCOMPARE(page.lines()[1].feed, 24);
        QCOMPARE(page.lines()[2].feed, 30);
    }

    void aLineIsAlignedInDots()
    {
        const EscPosPage page("\x1B"
                              "a1"
                              "ab\n\x1B"
                              "a2"
                              "ab\n\x1B"
                              "a0"
                              "ab\n");
        QCOMPARE(page.lines()[0].leftOffset(), 276);
        QCOMPARE(page.lines()[1].leftOffset(), 552);
        QCOMPARE(page.lines()[2].leftOffset(), 0);
    }

    void whatIsNoCommandIsComplainedAbout_data()
    {
        QTest::addColumn<std::string>("job");
        QTest::addColumn<QStringList>("said");
        const auto row = [](const char* name, const std::string& job, const QStringList& said) {
            QTest::newRow(name) << job << said;
        };
        row("ESC x", "a\n\x1Bxb\n", {"at 2: 1b 78 is no command", "a", "b"});
        row("GS x", "\x1Dxb\n", {"at 0: 1d 78 is no command", "b"});
        row("underline 3",
            "\x1B-\x03"
            "a\n",
            {"at 0: 1b 2d 03 is no command", "a"});
        row("font C",
            "\x1BM\x02"
            "a\n",
            {"at 0: 1b 4d 02 is no command", "a"});
        row("alignment 3",
            "\x1B"
            "a3a\n",
            {"at 0: 1b 61 33 is no command", "a"});
        row("alignment inside a line",
            "a\x1B"
            "a1b\n",
            {"at 1: 1b 61 31 inside a line does nothing", "ab"});
        row("another code page", "\x1Bt\0a\n"s, {"at 0: 1b 74 00 is no command", "a"});
        row("image mode 2", "\x1B*\x02\x01\0a\n"s, {"at 0: 1b 2a 02 01 00 is no command", "a"});
        row("an image without columns", "\x1B*\x21\0\0\n"s,
            {"at 0: 1b 2a 21 00 00: a bit image has 1 to 2047 columns", "[image 0x24]"});
        row("an image cut off", "\x1B*\x21\x02\0ab"s, {"at 0: 1b 2a 21 02 00 is cut off"});
        row("a command cut off", "\x1B", {"at 0: 1b is cut off"});
        row("a parameter cut off",
            "\x1B"
            "E",
            {"at 0: 1b 45 is cut off"});
        row("cut 2", "\x1DV\x02", {"at 0: 1d 56 02 is no command"});
        row("cut inside a line", "a\x1DV0\n", {"at 1: 1d 56 30 inside a line does nothing", "a"});
        row("a NUL", "a\0b\n"s, {"at 1: 00 is no character", "ab"});
        row("DEL", "\x7F\n", {"at 0: 7f is no character", ""});
        row("a line left open", "a\nb",
            {"at 3: the last line is not ended and stays in the printer", "a"});
    }

    void whatIsNoCommandIsComplainedAbout()
    {
        QFETCH(std::string, job);
        QFETCH(QStringList, said);
        QCOMPARE(printed(job), said);
    }

    void gsAtIsOnlyRemarkedOn()
    {
        const EscPosPage page("\x1B"
                              "E1"
            + EscPos::RESET + "a\n");
        QCOMPARE(listOf(page.complaints()), QStringList());
        QCOMPARE(listOf(page.remarks()), QStringList("at 3: 1d 40 does nothing"));
        QCOMPARE(listOf(page.styledLines()), QStringList("[bold]a"));
    }

    void thePictureHasTheDotsOfThePaper()
    {
        const EscPosPage page("\x1B*\x21\x01\0\x80\0\x01\n\x1B-2 \n"s + EscPos::CUT);
        const QImage picture = pictureOf(page);
        QCOMPARE(picture.size(), QSize(640, 24 + 30 + 30 + 150 + 24));
        QCOMPARE(picture.pixelColor(32, 24), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(32, 25), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(32, 47), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(33, 24), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(32, 54 + 21), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(32, 54 + 22), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(43, 54 + 23), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(44, 54 + 23), QColor(Qt::white));
    }

    void theToolWritesPictureAndLines()
    {
        const QTemporaryDir folder;
        QFile job(folder.filePath("job"));
        QVERIFY(job.open(QIODevice::WriteOnly));
        job.write("\x1B"
                  "a\x01\x1B!\x30"
                  "Chez Paul\r\n\x1B!\x02\x1B"
                  "a0"
                  "Caf\x82 \xD5\r\n");
        job.close();
        QCOMPARE(QProcess::execute(VENDEL_ESCPOS_PAGE,
                     {job.fileName(), folder.filePath("page.png"), folder.filePath("page.txt")}),
            0);
        QCOMPARE(QImage(folder.filePath("page.png")).size(), QSize(640, 24 + 48 + 30 + 24));
        QFile lines(folder.filePath("page.txt"));
        QVERIFY(lines.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(lines.readAll()),
            QString::fromUtf8("[centre][wide high]Chez Paul\nCafé €\n"));
    }

    void theToolFailsOnAComplaint()
    {
        const QTemporaryDir folder;
        QFile job(folder.filePath("job"));
        QVERIFY(job.open(QIODevice::WriteOnly));
        job.write("\x1Bx\n");
        job.close();
        QCOMPARE(QProcess::execute(VENDEL_ESCPOS_PAGE,
                     {job.fileName(), folder.filePath("page.png"), folder.filePath("page.txt")}),
            1);
        QVERIFY(QFile::exists(folder.filePath("page.png")));
    }
};

VENDEL_TEST(TestEscPosPage)

#include "tst_EscPosPage.moc"
