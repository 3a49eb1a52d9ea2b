// SPDX-License-Identifier: MIT
#include "Print/escpospp/Bitmap.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

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

Q_DECLARE_METATYPE(DotMatrix)

class TestBitmap : public QObject
{
    Q_OBJECT

private slots:
    void aPictureIsPrintedInBandsOf24Rows_data()
    {
        QTest::addColumn<DotMatrix>("dots");
        QTest::addColumn<QString>("bands");
        const auto row = [](const char* name, const DotMatrix& dots, const QString& bands) {
            QTest::newRow(name) << dots << bands;
        };
        row("a black picture loses the top dot of each eight", allBlack(8, 24),
            "1b2a210800fefefefefefefefefefefefefefefefefefefefefefefefe0a");
        row("a band goes column by column", dotsFrom({"...", "#..", ".#.", "..#"}),
            "1b2a2103008000004000002000000a");
        row("25 rows are two bands", allBlack(2, 25),
            "1b2a210200fefefefefefe0a"
            "1b2a2102000000000000000a");
        row("missing rows of the last band are white", allBlack(1, 35),
            "1b2a210100fefefe0a"
            "1b2a210100fec0000a");
        row("a width above 255 takes both bytes of its count",
            DotMatrix(1, std::vector<bool>(300, false)),
            "1b2a212c01" + QString("000000").repeated(300) + "0a");
        row("one row needs no rectangle", dotsFrom({"##"}), "1b2a2102000000000000000a");
    }

    void aPictureIsPrintedInBandsOf24Rows()
    {
        QFETCH(DotMatrix, dots);
        QFETCH(QString, bands);
        HeldPrinter held;
        held.printer.image(dots);
        QCOMPARE(held.sent(), QStringList({"1b3300", bands, "1b32"}));
        QCOMPARE(held.output.take(), std::string());
    }

    void eachRowHasItsBit_data()
    {
        QTest::addColumn<std::size_t>("row");
        QTest::addColumn<QString>("column");
        const auto row = [](const char* name, std::size_t number, const char* column) {
            QTest::newRow(name) << number << column;
        };
        row("0 falls out", 0, "000000");
        row("1", 1, "800000");
        row("2", 2, "400000");
        row("3", 3, "200000");
        row("6", 6, "040000");
        row("7", 7, "020000");
        row("8 falls out", 8, "000000");
        row("9", 9, "008000");
        row("15", 15, "000200");
        row("16 falls out", 16, "000000");
        row("17", 17, "000080");
        row("23", 23, "000002");
    }

    void eachRowHasItsBit()
    {
        QFETCH(std::size_t, row);
        QFETCH(QString, column);
        HeldPrinter held;
        DotMatrix dots(24, std::vector<bool>(1, false));
        dots[row][0] = true;
        held.printer.image(dots);
        QCOMPARE(held.sent(), QStringList({"1b3300", "1b2a210100" + column + "0a", "1b32"}));
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

    void whatIsNoPictureOfThePaperIsRefused_data()
    {
        QTest::addColumn<DotMatrix>("dots");
        QTest::newRow("one row too wide") << allBlack(65'536, 1);
        QTest::newRow("two rows too wide") << allBlack(65'536, 2);
        QTest::newRow("second row longer") << dotsFrom({"#", "##"});
        QTest::newRow("last row shorter") << dotsFrom({"##", "##", "#"});
        QTest::newRow("last row empty") << dotsFrom({"##", ""});
        QTest::newRow("first row empty") << dotsFrom({"", "##"});
    }

    void whatIsNoPictureOfThePaperIsRefused()
    {
        QFETCH(DotMatrix, dots);
        HeldPrinter held;
        QCOMPARE(thrownInt([&] { held.printer.image(dots); }), -1);
        QCOMPARE(held.output.take(), std::string("Error: the bitmap is not squared\n"));
        QCOMPARE(held.sent(), QStringList());
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
