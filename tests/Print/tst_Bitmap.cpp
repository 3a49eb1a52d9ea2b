// SPDX-License-Identifier: MIT
#include "Print/escpospp/Bitmap.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QTest>

namespace {
/// Rows as text: '#' is a black dot.
DotMatrix dotsFrom(const std::vector<std::string>& rows)
{
    DotMatrix dots;
    for (const auto& row : rows) {
        dots.emplace_back();
        for (const char c : row) {
            dots.back().push_back(c == '#');
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
    void aBlackPictureLosesTheTopDotOfEachEight()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = allBlack(8, 24);
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210800"
                "fefefefefefefefefefefefefefefefefefefefefefefefe"
                "0a",
                "1b32"}));
    }

    void eachRowHasItsBit_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("column");
        QTest::newRow("0 falls out") << 0 << "000000";
        QTest::newRow("1") << 1 << "800000";
        QTest::newRow("2") << 2 << "400000";
        QTest::newRow("3") << 3 << "200000";
        QTest::newRow("6") << 6 << "040000";
        QTest::newRow("7") << 7 << "020000";
        QTest::newRow("8 falls out") << 8 << "000000";
        QTest::newRow("9") << 9 << "008000";
        QTest::newRow("15") << 15 << "000200";
        QTest::newRow("16 falls out") << 16 << "000000";
        QTest::newRow("17") << 17 << "000080";
        QTest::newRow("23") << 23 << "000002";
    }

    void eachRowHasItsBit()
    {
        QFETCH(int, row);
        QFETCH(QString, column);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots(24, std::vector<bool>(1, false));
        dots[static_cast<std::size_t>(row)][0] = true;
        printer.image(dots);
        QCOMPARE(transfersOf(bus), QStringList({"1b3300", "1b2a210100" + column + "0a", "1b32"}));
    }

    void aBandGoesColumnByColumn()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = dotsFrom({"...", "#..", ".#.", "..#"});
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210300"
                "800000"
                "400000"
                "200000"
                "0a",
                "1b32"}));
    }

    void twentyFiveRowsAreTwoBands()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = allBlack(2, 25);
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210200"
                "fefefe"
                "fefefe"
                "0a"
                "1b2a210200"
                "000000"
                "000000"
                "0a",
                "1b32"}));
    }

    void missingRowsOfTheLastBandAreWhite()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = allBlack(1, 35);
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210100"
                "fefefe"
                "0a"
                "1b2a210100"
                "fec000"
                "0a",
                "1b32"}));
    }

    void aWidthAbove255TakesBothCountBytes()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots(1, std::vector<bool>(300, false));
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300", "1b2a212c01" + QString("000000").repeated(300) + "0a", "1b32"}));
    }

    void oneRowNeedsNoRectangle()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        DotMatrix dots = dotsFrom({"##"});
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210200"
                "000000"
                "000000"
                "0a",
                "1b32"}));
        QCOMPARE(output.take(), std::string());
    }

    void theWidestPictureIsPrinted()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = allBlack(65'535, 1);
        printer.image(dots);
        const QStringList sent = transfersOf(bus);
        QCOMPARE(sent.size(), 3);
        QCOMPARE(sent[1].size(), 2 * (5 + 3 * 65'535 + 1));
        QCOMPARE(sent[1].left(10), QString("1b2a21ffff"));
    }

    void aPictureTooWideIsRefused_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("one row") << 1;
        QTest::newRow("two rows") << 2;
    }

    void aPictureTooWideIsRefused()
    {
        QFETCH(int, rows);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        DotMatrix dots = allBlack(65'536, static_cast<std::size_t>(rows));
        QCOMPARE(thrownInt([&] { printer.image(dots); }), -1);
        QCOMPARE(output.take(), std::string("Error: the bitmap is not squared\n"));
        QCOMPARE(transfersOf(bus), QStringList());
    }

    void raggedRowsAreRefused_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("second longer") << QStringList({"#", "##"});
        QTest::newRow("last shorter") << QStringList({"##", "##", "#"});
        QTest::newRow("last empty") << QStringList({"##", ""});
        QTest::newRow("first empty") << QStringList({"", "##"});
    }

    void raggedRowsAreRefused()
    {
        QFETCH(QStringList, rows);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        DotMatrix dots;
        for (const auto& row : rows) {
            dots.emplace_back(row.size(), true);
        }
        QCOMPARE(thrownInt([&] { printer.image(dots); }), -1);
        QCOMPARE(output.take(), std::string("Error: the bitmap is not squared\n"));
        QCOMPARE(transfersOf(bus), QStringList());
    }

    void aPictureWithoutDotsSendsNothing_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("no rows") << 0;
        QTest::newRow("rows without dots") << 3;
    }

    void aPictureWithoutDotsSendsNothing()
    {
        QFETCH(int, rows);
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        FlushedOutput output;
        DotMatrix dots(static_cast<std::size_t>(rows));
        QCOMPARE(thrownInt([&] { printer.image(dots); }), 0);
        QCOMPARE(transfersOf(bus), QStringList());
        QCOMPARE(output.take(), std::string());
    }

    void theOtherModePrintsBandsOfEightDots()
    {
        const auto bands = renderBitmap(allBlack(2, 10), 1);
        QVERIFY(bands.has_value());
        QCOMPARE(QByteArray::fromStdString(*bands).toHex(),
            QByteArray("1b2a010200"
                       "fe"
                       "fe"
                       "0a"
                       "1b2a010200"
                       "80"
                       "80"
                       "0a"));
    }
};

VENDEL_TEST(TestBitmap)

#include "tst_Bitmap.moc"
