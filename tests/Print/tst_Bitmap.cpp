// SPDX-License-Identifier: MIT
#include "Print/escpospp/Bitmap.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

namespace {
/// Rows as text: '#' is a black dot.
DotMatrix dotsFrom(const QStringList& rows)
{
    DotMatrix dots;
    for (const QString& row : rows) {
        dots.emplace_back();
        for (const QChar dot : row) {
            dots.back().push_back(dot == '#');
        }
    }
    return dots;
}

DotMatrix allBlack(std::size_t columns, std::size_t rows)
{
    return DotMatrix(rows, std::vector<bool>(columns, true));
}
} // namespace

class TestBitmap : public QObject
{
    Q_OBJECT

private slots:
    void aPictureIsPrintedInBandsOf24Rows()
    {
        const Rows<DotMatrix, QString> rows{
            {"a black picture loses the top dot of each eight", allBlack(8, 24),
                "1b2a210800fefefefefefefefefefefefefefefefefefefefefefefefe0a"},
            {"a band goes column by column", dotsFrom({"...", "#..", ".#.", "..#"}),
                "1b2a2103008000004000002000000a"},
            {"25 rows are two bands", allBlack(2, 25),
                "1b2a210200fefefefefefe0a"
                "1b2a2102000000000000000a"},
            {"missing rows of the last band are white", allBlack(1, 35),
                "1b2a210100fefefe0a"
                "1b2a210100fec0000a"},
            {"a width above 255 takes both bytes of its count",
                DotMatrix(1, std::vector<bool>(300, false)),
                "1b2a212c01" + QString("000000").repeated(300) + "0a"},
            {"one row needs no rectangle", dotsFrom({"##"}), "1b2a2102000000000000000a"},
        };
        for (const auto& [row, dots, bands] : rows) {
            const InRow inRow(row);
            HeldPrinter held;
            held.printer.image(dots);
            QCOMPARE(held.sent(), QStringList({"1b3300", bands, "1b32"}));
            QCOMPARE(held.output.take(), std::string());
        }
    }

    void eachRowHasItsBit()
    {
        // The first row of each eight falls out.
        const std::vector<std::pair<std::size_t, QString>> columns{{0, "000000"}, {1, "800000"},
            {2, "400000"}, {3, "200000"}, {6, "040000"}, {7, "020000"}, {8, "000000"},
            {9, "008000"}, {15, "000200"}, {16, "000000"}, {17, "000080"}, {23, "000002"}};
        for (const auto& [row, column] : columns) {
            HeldPrinter held;
            DotMatrix dots(24, std::vector<bool>(1, false));
            dots[row][0] = true;
            held.printer.image(dots);
            QCOMPARE(held.sent(), QStringList({"1b3300", "1b2a210100" + column + "0a", "1b32"}));
        }
    }

    void theWidestPictureIsPrinted()
    {
        HeldPrinter held;
        held.printer.image(allBlack(65'535, 1));
        const QStringList sent = held.sent();
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sent[1].size(), 2 * (5 + 3 * 65'535 + 1));
        QCOMPARE(sent[1].left(10), QString("1b2a21ffff"));
    }

    void whatIsNoPictureOfThePaperIsRefused()
    {
        const Rows<DotMatrix> rows{
            {"one row too wide", allBlack(65'536, 1)},
            {"two rows too wide", allBlack(65'536, 2)},
            {"second row longer", dotsFrom({"#", "##"})},
            {"last row shorter", dotsFrom({"##", "##", "#"})},
            {"last row empty", dotsFrom({"##", ""})},
            {"first row empty", dotsFrom({"", "##"})},
        };
        for (const auto& [row, dots] : rows) {
            const InRow inRow(row);
            HeldPrinter held;
            const DotMatrix& picture = dots;
            QCOMPARE(thrownInt([&] { held.printer.image(picture); }), -1);
            QCOMPARE(held.output.take(), std::string("Error: the bitmap is not squared\n"));
            QCOMPARE(held.sent(), QStringList());
        }
    }

    void aPictureWithoutDotsSendsNothing()
    {
        for (const std::size_t rows : {0U, 3U}) {
            HeldPrinter held;
            QCOMPARE(thrownInt([&] { held.printer.image(DotMatrix(rows)); }), 0);
            QCOMPARE(held.sent(), QStringList());
            QCOMPARE(held.output.take(), std::string());
        }
    }

    void theOtherModePrintsBandsOfEightDots()
    {
        const auto bands = renderBitmap(allBlack(2, 10), 1);
        QVERIFY(bands.has_value());
        QCOMPARE(hexOf(*bands), QByteArray("1b2a010200fefe0a1b2a01020080800a"));
    }
};

VENDEL_TEST(TestBitmap)
#include "tst_Bitmap.moc"
