// SPDX-License-Identifier: MIT
#include "tests/Print/Pictures.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QImage>

namespace {
/// Rows as text: '#' is a black dot.
QStringList rowsOf(const DotMatrix& dots)
{
    QStringList rows;
    for (const auto& row : dots) {
        QString text;
        for (const bool black : row) {
            text += black ? '#' : '.';
        }
        rows += text;
    }
    return rows;
}
} // namespace

class TestEscPosPictures : public QObject
{
    Q_OBJECT

private slots:
    void aPixelIsBlackBelow150()
    {
        const Rows<QByteArray, QString> rows{
            {"black", "000000", "#"},
            {"white", "ffffff", "."},
            {"grey 149", "959595", "#"},
            {"grey 150", "969696", "."},
            {"red", "ff0000", "#"},
            {"green", "00ff00", "."},
            {"blue", "0000ff", "#"},
            {"149.89", "969695", "#"},
            {"exactly 150, rounded to 149.99998", "3ad53f", "#"},
            {"exactly 150, kept", "00d0f8", "."},
        };
        for (const auto& [row, rgb, dot] : rows) {
            const InRow inRow(row);
            QCOMPARE(rowsOf(pictures_.loaded("P6 1 1 255\n" + QByteArray::fromHex(rgb))),
                QStringList(dot));
        }
    }

    void everyFormatIsLoaded()
    {
        const Rows<QByteArray, QImage::Format> rows{
            {"PNG", "PNG", QImage::Format_RGB32},
            {"PNG with alpha", "PNG", QImage::Format_ARGB32},
            {"grey PNG", "PNG", QImage::Format_Grayscale8},
            {"PNG of one bit", "PNG", QImage::Format_Mono},
            {"BMP", "BMP", QImage::Format_RGB32},
            {"PPM", "PPM", QImage::Format_RGB32},
        };
        for (const auto& [row, format, pixels] : rows) {
            const InRow inRow(row);
            QImage picture(5, 3, QImage::Format_RGB32);
            picture.fill(Qt::white);
            for (const QPoint point : {QPoint(0, 0), QPoint(4, 1), QPoint(2, 2)}) {
                picture.setPixelColor(point, Qt::black);
            }
            const QString path = pictures_.path("encoded");
            QVERIFY(picture.convertToFormat(pixels).save(path, format.constData()));
            QCOMPARE(rowsOf(EscPos::loadImage(path.toStdString())),
                QStringList({"#....", "....#", "..#.."}));
        }
    }

    void aJpegIsLoaded()
    {
        QImage picture(16, 8, QImage::Format_RGB32);
        picture.fill(Qt::white);
        for (int i = 0; i < 64; ++i) {
            picture.setPixelColor(i % 8, i / 8, Qt::black);
        }
        const QString path = pictures_.path("encoded");
        QVERIFY(picture.save(path, "JPG", 100));
        const QString row = "########........";
        QCOMPARE(rowsOf(EscPos::loadImage(path.toStdString())),
            QStringList({row, row, row, row, row, row, row, row}));
    }

    void theFirstFrameOfAGifIsLoaded()
    {
        // One frame of two pixels, black and white; the codes are clear, 0, 1, end in three bits
        // each.
        QCOMPARE(
            rowsOf(pictures_.loaded(QByteArray::fromHex("474946383961 02000100800000 000000ffffff"
                                                        "2c000000000200010000 02 02440a00 3b"))),
            QStringList("#."));
    }

    void aBmpStoredFromItsTopIsLoaded()
    {
        // 24 bits a pixel, 1 x -2, rows padded to four bytes.
        QCOMPARE(rowsOf(pictures_.loaded(QByteArray::fromHex(
                     "424d 3e000000 00000000 36000000 28000000 01000000 feffffff 0100 1800 00000000"
                     "08000000 00000000 00000000 00000000 00000000 00000000 ffffff00"))),
            QStringList({"#", "."}));
    }

    void greyFilesAreLoaded()
    {
        QCOMPARE(rowsOf(pictures_.loaded("P5\n3 2\n255\n" + QByteArray::fromHex("0095969600ff"))),
            QStringList({"##.", ".#."}));
        QCOMPARE(rowsOf(pictures_.loaded(QByteArray("P5\n# a shop\n1 1\n255\n") + '\0')),
            QStringList("#"));
    }

    void aPictureGoesFromFileToPaper()
    {
        HeldPrinter held;
        held.printer.image(pictures_.loaded("P5 2 2 255\n" + QByteArray::fromHex("00ff00ff")));
        QCOMPARE(held.sent(), QStringList({"1b3300", "1b2a2102008000000000000a", "1b32"}));
    }

    void theLargestPictureIsLoaded()
    {
        const DotMatrix dots = pictures_.loaded(whitePixels(4096 * 4096, "P5 4096 4096 255\n"));
        QCOMPARE(dots.size(), 4096U);
        QCOMPARE(dots.back().size(), 4096U);
    }

private:
    Pictures pictures_;
};

VENDEL_TEST(TestEscPosPictures)
#include "tst_EscPos_pictures.moc"
