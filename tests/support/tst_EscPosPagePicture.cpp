// SPDX-License-Identifier: MIT
#include "tests/support/EscPosPagePicture.h"
#include "tests/support/TestProgram.h"

#include <QImage>

using namespace std::string_literals;

namespace {
/// The smallest rectangle around what is not white.
QRect printedArea(const QImage& picture)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != Qt::white) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

QImage pictureOfJob(const std::string& job) { return pictureOf(EscPosPage(job)); }

int blackDots(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            count += picture.pixelColor(x, y) == Qt::black ? 1 : 0;
        }
    }
    return count;
}

const std::string band = "\x1B*\x21\x02\0\xFF\xFF\xFF\xFF\xFF\xFF\n"s;
} // namespace

/// The paper of 80 mm, eight dots to the millimetre, with margins of 4 mm.
class TestEscPosPagePicture : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyJobIsWhitePaper()
    {
        const QImage picture = pictureOfJob("");
        QCOMPARE(picture.size(), QSize(640, 48));
        QCOMPARE(printedArea(picture), QRect());
    }

    void aLineStandsWhereItIsAligned()
    {
        QCOMPARE(printedArea(pictureOfJob(band)), QRect(32, 24, 2, 24));
        QCOMPARE(printedArea(pictureOfJob("\x1B\x61\x01" + band)), QRect(32 + 287, 24, 2, 24));
        QCOMPARE(printedArea(pictureOfJob("\x1B\x61\x02" + band)), QRect(32 + 574, 24, 2, 24));
    }

    void linesStandBelowEachOther()
    {
        QCOMPARE(printedArea(pictureOfJob("\n\n" + band)), QRect(32, 24 + 60, 2, 24));
        QCOMPARE(printedArea(pictureOfJob("\x1B\x33\x00"s + band + band)), QRect(32, 24, 2, 48));
    }

    void aTabMovesWhatFollows()
    {
        QCOMPARE(printedArea(pictureOfJob("\t\x1B-1 \n")), QRect(32 + 96, 24 + 23, 12, 1));
    }

    void sizesWidenAndHeightenACharacter()
    {
        const QRect plain = printedArea(pictureOfJob("H\n"));
        QVERIFY(QRect(32, 24, 12, 24).contains(plain));
        const QRect wide = printedArea(pictureOfJob("\x1B!\x20H\n"));
        QVERIFY(QRect(32, 24, 24, 24).contains(wide));
        QVERIFY(2 * wide.width() > 3 * plain.width());
        QCOMPARE(wide.height(), plain.height());
        const QRect high = printedArea(pictureOfJob("\x1B!\x10H\n"));
        QVERIFY(QRect(32, 24, 12, 48).contains(high));
        QCOMPARE(high.width(), plain.width());
        QVERIFY(2 * high.height() > 3 * plain.height());
        const QRect small = printedArea(pictureOfJob("\x1BM1H\n"));
        QVERIFY(QRect(32, 24, 9, 17).contains(small));
    }

    void boldHasMoreDots()
    {
        QVERIFY(blackDots(pictureOfJob("\x1B\x45\x01H\n")) > blackDots(pictureOfJob("H\n")));
    }

    void anUnderlineKeepsItsThickness()
    {
        QCOMPARE(printedArea(pictureOfJob("\x1B-2 \n")), QRect(32, 24 + 22, 12, 2));
        QCOMPARE(printedArea(pictureOfJob("\x1B!\x30\x1B-2 \n")), QRect(32, 24 + 46, 24, 2));
    }

    void aCutIsALineAcrossThePaper()
    {
        const QRect cut = printedArea(pictureOfJob("\x1DVA\x96"));
        QCOMPARE(cut.top(), 24 + 150);
        QCOMPARE(cut.height(), 1);
        QVERIFY(cut.left() == 0 && cut.width() > 630);
    }
};

VENDEL_TEST(TestEscPosPagePicture)
#include "tst_EscPosPagePicture.moc"
