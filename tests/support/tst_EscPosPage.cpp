// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "Print/escpospp/EscPos.h"
#include "tests/support/EscPosPage.h"
#include "tests/support/EscPosPagePicture.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QProcess>
#include <QTemporaryDir>

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

class TestEscPosPage : public QObject
{
    Q_OBJECT

private slots:
    void aJobBecomesLines()
    {
        const Rows<std::string, QStringList> rows{
            {"nothing", "", {}},
            {"two lines", "one\r\ntwo\n", {"one", "two"}},
            {"a carriage return alone", "one\rtwo\n", {"onetwo"}},
            {"an empty line", "\r\n", {""}},
            {"bold and not", "\033E\001a\033E\002b\n", {"[bold]a[plain]b"}},
            {"bold by bit 0 alone", "\033E\377a\033E\376b\n", {"[bold]a[plain]b"}},
            {"thin underline", "\033-\001a\033-0b\n", {"[thinly underlined]a[plain]b"}},
            {"thick underline", "\033-2a\033-\000b\n"s, {"[underlined]a[plain]b"}},
            {"double height and width", "\033!0a\n", {"[wide high]a"}},
            {"double width", "\033! a\n", {"[wide]a"}},
            {"everything by one byte", "\033!\271a\n",
                {"[small bold thinly underlined wide high]a"}},
            {"print mode 2 is plain font A", "\033!0a\n\033!\002b\n", {"[wide high]a", "b"}},
            {"print mode 2 ends bold and underline", "\033E1\033-1a\033!\002b\n",
                {"[bold thinly underlined]a[plain]b"}},
            {"font B", "\033M1a\033M\000b\n"s, {"[small]a[plain]b"}},
            {"centred, then left by the digit", "\033a\001a\n\033a0b\n", {"[centre]a", "b"}},
            {"right", "\033a2a\n", {"[right]a"}},
            {"reset to the start", "\033E1\033a1\033!0\033@a\n", {"a"}},
            {"code page 858 asked for", "\033t\023a\n", {"a"}},
            {"a tab", "Thé\t$1\n" + ""s, {"Th\u251c\u00ae    $1"}},
            {"a tab from a tab stop", "12345678\tx\n", {"12345678        x"}},
            {"a tab behind wide text", "\033! ->  \t\033!\002x\n", {"[wide]->          [plain]x"}},
            {"48 columns", std::string(48, 'x') + "\n", {QString(48, 'x')}},
            {"49 columns wrap", std::string(49, 'x') + "\n", {QString(48, 'x'), "x"}},
            {"25 wide columns wrap", "\033! " + std::string(25, 'x') + "\n",
                {"[wide]" + QString(24, 'x'), "[wide]x"}},
            {"64 columns of font B", "\033M1" + std::string(65, 'x') + "\n",
                {"[small]" + QString(64, 'x'), "[small]x"}},
            {"a tab into the right edge", std::string(41, 'x') + "\tab\n",
                {QString(41, 'x'), "ab"}},
            {"a tab at the right edge", std::string(48, 'x') + "\tab\n",
                {QString(48, 'x'), "        ab"}},
            {"a cut", "a\n" + EscPos::CUT, {"a", "[cut]"}},
            {"other cuts", "\035V\000\035V1\035VB\000"s, {"[cut]", "[cut]", "[cut]"}},
            {"an image", "\033*!\002\000......\n"s, {"[image 2x24]"}},
        };
        for (const auto& [row, job, lines] : rows) {
            const InRow inRow(row);
            QCOMPARE(printed(job), lines);
        }
    }

    void theUpperHalfIsCodePage858()
    {
        for (int byte = 0x80; byte < 0x100; ++byte) {
            const char character = static_cast<char>(byte);
            QCOMPARE(printed(std::string{character, '\n'}), QStringList(characterOf858(character)));
        }
        QCOMPARE(printed("\325\n"), QStringList("€"));
    }

    void aLineFeedMovesThePaper()
    {
        const Rows<std::string, int> rows{
            {"plain", "a\n"s, 30},
            {"empty", "\n"s, 30},
            {"double height", "\033!\020a\n"s, 48},
            {"no spacing", "\0333\000a\n"s, 24},
            {"empty without spacing", "\0333\000\n"s, 0},
            {"wider spacing", "\0333da\n"s, 100},
            {"default again", "\0333d\0332a\n"s, 30},
            {"cut", EscPos::CUT, 150},
        };
        for (const auto& [row, job, dots] : rows) {
            const InRow inRow(row);
            const EscPosPage page(job);
            QCOMPARE(page.lines().size(), 1U);
            QCOMPARE(page.lines().front().feed, dots);
        }
    }

    void bitImagesBecomeDots()
    {
        const Rows<std::string, int, std::vector<int>> rows{
            {"24 dots, double density", "\033*!\001\000\200\001\002\n"s, 1, {0, 15, 22}},
            {"24 dots, single density", "\033* \001\000\200\000\000\n"s, 2, {0}},
            {"8 dots, double density", "\033*\001\001\000A\n"s, 1, {3, 4, 5, 21, 22, 23}},
            {"8 dots, single density", "\033*\000\001\000\200\n"s, 2, {0, 1, 2}},
        };
        for (const auto& [row, job, width, blackRowsOfFirstColumn] : rows) {
            const InRow inRow(row);
            const EscPosPage page(job);
            const PageBand& band = page.lines().at(0).bands.at(0);
            QCOMPARE(band.width(), width);
            QCOMPARE(band.height(), 24);
            std::vector<int> black;
            for (int y = 0; y < band.height(); ++y) {
                if (band.rows[static_cast<std::size_t>(y)][0]) {
                    black.push_back(y);
                }
            }
            QCOMPARE(black, blackRowsOfFirstColumn);
        }
    }

    void aBandIsCutAtTheAreasRight()
    {
        QCOMPARE(printed("\033*!A\002" + std::string(577 * 3, '\xFF') + "\n"),
            QStringList("[image 576x24]"));
    }

    void bandsTouchWithoutLineSpacing()
    {
        const std::string band = "\033*!\001\000\377\377\377\n"s;
        const EscPosPage page(EscPos::NO_LINE + band + band + EscPos::RESET_LINE + "a\n");
        QCOMPARE(page.lines().size(), 3U);
        QCOMPARE(page.lines()[0].feed, 24);
        QCOMPARE(page.lines()[1].feed, 24);
        QCOMPARE(page.lines()[2].feed, 30);
    }

    void aLineIsAlignedInDots()
    {
        const EscPosPage page("\033a1ab\n\033a2ab\n\033a0ab\n");
        QCOMPARE(page.lines()[0].leftOffset(), 276);
        QCOMPARE(page.lines()[1].leftOffset(), 552);
        QCOMPARE(page.lines()[2].leftOffset(), 0);
    }

    void whatIsNoCommandIsComplainedAbout()
    {
        const Rows<std::string, QStringList> rows{
            {"ESC x", "a\n\033xb\n", {"at 2: 1b 78 is no command", "a", "b"}},
            {"GS x", "\035xb\n", {"at 0: 1d 78 is no command", "b"}},
            {"underline 3", "\033-\003a\n", {"at 0: 1b 2d 03 is no command", "a"}},
            {"font C", "\033M\002a\n", {"at 0: 1b 4d 02 is no command", "a"}},
            {"alignment 3", "\033a3a\n", {"at 0: 1b 61 33 is no command", "a"}},
            {"alignment inside a line", "a\033a1b\n",
                {"at 1: 1b 61 31 inside a line does nothing", "ab"}},
            {"another code page", "\033t\000a\n"s, {"at 0: 1b 74 00 is no command", "a"}},
            {"image mode 2", "\033*\002\001\000a\n"s, {"at 0: 1b 2a 02 01 00 is no command", "a"}},
            {"an image without columns", "\033*!\000\000\n"s,
                {"at 0: 1b 2a 21 00 00: a bit image has 1 to 2047 columns", "[image 0x24]"}},
            {"an image cut off", "\033*!\002\000ab"s, {"at 0: 1b 2a 21 02 00 is cut off"}},
            {"a command cut off", "\033", {"at 0: 1b is cut off"}},
            {"a parameter cut off", "\033E", {"at 0: 1b 45 is cut off"}},
            {"cut 2", "\035V\002", {"at 0: 1d 56 02 is no command"}},
            {"cut inside a line", "a\035V0\n", {"at 1: 1d 56 30 inside a line does nothing", "a"}},
            {"a NUL", "a\0b\n"s, {"at 1: 00 is no character", "ab"}},
            {"DEL", "\177\n", {"at 0: 7f is no character", ""}},
            {"a line left open", "a\nb",
                {"at 3: the last line is not ended and stays in the printer", "a"}},
        };
        for (const auto& [row, job, said] : rows) {
            const InRow inRow(row);
            QCOMPARE(printed(job), said);
        }
    }

    void gsAtIsOnlyRemarkedOn()
    {
        const EscPosPage page("\033E1" + EscPos::RESET + "a\n");
        QCOMPARE(listOf(page.complaints()), QStringList());
        QCOMPARE(listOf(page.remarks()), QStringList("at 3: 1d 40 does nothing"));
        QCOMPARE(listOf(page.styledLines()), QStringList("[bold]a"));
    }

    void thePictureHasTheDotsOfThePaper()
    {
        const EscPosPage page("\033*!\001\000\200\000\001\n\033-2 \n"s + EscPos::CUT);
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
        QCOMPARE(runTool(folder, "\033a\001\033!0Chez Paul\r\n\033!\002\033a0Caf\202 \325\r\n"), 0);
        QCOMPARE(QImage(folder.filePath("page.png")).size(), QSize(640, 24 + 48 + 30 + 24));
        QFile lines(folder.filePath("page.txt"));
        QVERIFY(lines.open(QIODevice::ReadOnly));
        QCOMPARE(lines.readAll(), QByteArray("[centre][wide high]Chez Paul\nCafé €\n"));
    }

    void theToolFailsOnAComplaint()
    {
        const QTemporaryDir folder;
        QCOMPARE(runTool(folder, "\033x\n"), 1);
        QVERIFY(QFile::exists(folder.filePath("page.png")));
    }

private:
    /// Gives \a bytes to the tool, which writes into \a folder; returns its exit code.
    static int runTool(const QTemporaryDir& folder, const QByteArray& bytes)
    {
        QFile job(folder.filePath("job"));
        if (!job.open(QIODevice::WriteOnly) || job.write(bytes) != bytes.size()) {
            qFatal("cannot write the job");
        }
        job.close();
        return QProcess::execute(VENDEL_ESCPOS_PAGE,
            {job.fileName(), folder.filePath("page.png"), folder.filePath("page.txt")});
    }
};

VENDEL_TEST(TestEscPosPage)
#include "tst_EscPosPage.moc"
