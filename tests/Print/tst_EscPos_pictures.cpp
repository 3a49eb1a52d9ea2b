// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/stat.h>

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

QByteArray whitePixels(int count, const QByteArray& head)
{
    return head + QByteArray(count, '\xFF');
}

QByteArray blackPixel()
{
    return QByteArray("P5 1 1 255\n") + '\0';
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
            QCOMPARE(rowsOf(loaded("P6 1 1 255\n" + QByteArray::fromHex(rgb))), QStringList(dot));
        }
    }

    void everyFormatIsLoaded()
    {
        const Rows<QByteArray, int> rows{
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
            const QString path = folder_.filePath("encoded");
            QVERIFY(picture.convertToFormat(static_cast<QImage::Format>(pixels))
                        .save(path, format.constData()));
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
        const QString path = folder_.filePath("encoded");
        QVERIFY(picture.save(path, "JPG", 100));
        const QString row = "########........";
        QCOMPARE(rowsOf(EscPos::loadImage(path.toStdString())),
            QStringList({row, row, row, row, row, row, row, row}));
    }

    void theFirstFrameOfAGifIsLoaded()
    {
        // One frame of two pixels, black and white; the codes are clear, 0, 1, end in three bits
        // each.
        QCOMPARE(rowsOf(loaded(QByteArray::fromHex("474946383961 02000100800000 000000ffffff"
                                                   "2c000000000200010000 02 02440a00 3b"))),
            QStringList("#."));
    }

    void aBmpStoredFromItsTopIsLoaded()
    {
        // 24 bits a pixel, 1 x -2, rows padded to four bytes.
        QCOMPARE(rowsOf(loaded(QByteArray::fromHex(
                     "424d 3e000000 00000000 36000000 28000000 01000000 feffffff 0100 1800 00000000"
                     "08000000 00000000 00000000 00000000 00000000 00000000 ffffff00"))),
            QStringList({"#", "."}));
    }

    void greyFilesAreLoaded()
    {
        QCOMPARE(rowsOf(loaded("P5\n3 2\n255\n" + QByteArray::fromHex("0095969600ff"))),
            QStringList({"##.", ".#."}));
        QCOMPARE(rowsOf(loaded(QByteArray("P5\n# a shop\n1 1\n255\n") + '\0')), QStringList("#"));
    }

    void aPictureGoesFromFileToPaper()
    {
        HeldPrinter held;
        held.printer.image(loaded("P5 2 2 255\n" + QByteArray::fromHex("00ff00ff")));
        QCOMPARE(held.sent(), QStringList({"1b3300", "1b2a2102008000000000000a", "1b32"}));
    }

    void whatCannotBeDecodedIsEmpty()
    {
        const Rows<QByteArray> rows{
            {"nothing", ""},
            {"text", "Chez Paul\n12 rue X\n"},
            {"a PNG's first bytes", "\x89PNG\r\n\x1A\n"},
            {"a PNG without data",
                QByteArray::fromHex("89504e470d0a1a0a 0000000d49484452 0000000100000001 0800000000"
                                    "3a7e9b55 0000000049454e44ae426082")},
            {"a size of nothing", "P6 0 0 255\n"},
            {"a width of nothing", "P6 0 2 255\n"},
            {"a PPM that ends early", "P6 2 2 255\nabcdefghijk"},
            {"a PGM that ends early", whitePixels(299, "P5 300 1 255\n")},
            {"a PGM of 16 bits", QByteArray("P5 1 1 65535\n\0\0", 15)},
            {"a PPM of 16 bits", QByteArray("P6 1 1 65535\n\0\0\0\0\0\0", 19)},
            {"a format that no shop uses", QByteArray("8BPS\0\1", 6)},
            {"a row too many", whitePixels(4096 * 4097, "P5 4096 4097 255\n")},
            {"a huge size", "P5 2000000000 2000000000 255\n"},
        };
        for (const auto& [row, bytes] : rows) {
            const InRow inRow(row);
            QCOMPARE(loaded(bytes).size(), 0U);
        }
    }

    void whatIsNoFileIsEmpty()
    {
        // Nobody ever writes to the pipe; the first page of a process' memory opens, but its bytes
        // are of no use to anybody, root included.
        const QString pipe = folder_.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
        for (const QString& path : {folder_.filePath("missing"), QString(), folder_.path(), pipe,
                 QString("/dev/zero"), QString("/proc/self/mem")}) {
            QVERIFY2(EscPos::loadImage(path.toStdString()).empty(), qPrintable(path));
        }
    }

    void anUnreadableFileIsEmpty()
    {
        const std::string file = fileHolding(blackPixel()).toStdString();
        QCOMPARE(EscPos::loadImage(file).size(), 1U);
        QCOMPARE(chmod(file.c_str(), S_IWUSR), 0);
        QCOMPARE(chmod(QFile::encodeName(folder_.path()).constData(), 0755), 0);
        {
            const OrdinaryUser user;
            QCOMPARE(EscPos::loadImage(file).size(), 0U);
        }
        QVERIFY(QFile::remove(QString::fromStdString(file)));
    }

    void aFileThatCannotBeOpenedIsEmpty()
    {
        const std::string file = fileHolding(blackPixel()).toStdString();
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
        const DotMatrix dots = EscPos::loadImage(file);
        QCOMPARE(setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(dots.size(), 0U);
        QCOMPARE(EscPos::loadImage(file).size(), 1U);
    }

    void theLargestPictureIsLoaded()
    {
        const DotMatrix dots = loaded(whitePixels(4096 * 4096, "P5 4096 4096 255\n"));
        QCOMPARE(dots.size(), 4096U);
        QCOMPARE(dots.back().size(), 4096U);
    }

private:
    QString fileHolding(const QByteArray& bytes)
    {
        QFile file(folder_.filePath("picture"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write the picture");
        }
        return file.fileName();
    }

    DotMatrix loaded(const QByteArray& bytes)
    {
        return EscPos::loadImage(fileHolding(bytes).toStdString());
    }

    QTemporaryDir folder_;
};

VENDEL_TEST(TestEscPosPictures)
#include "tst_EscPos_pictures.moc"
