// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"
#include "tests/Print/PrinterTest.h"
#include "tests/support/TestProgram.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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
} // namespace

class TestEscPosPictures : public QObject
{
    Q_OBJECT

private slots:
    void aPixelIsBlackBelow150_data()
    {
        QTest::addColumn<QByteArray>("rgb");
        QTest::addColumn<QString>("dot");
        const auto row = [](const char* name, int r, int g, int b, const char* dot) {
            const QByteArray rgb{
                QByteArray(1, static_cast<char>(r)) + static_cast<char>(g) + static_cast<char>(b)};
            QTest::newRow(name) << rgb << QString(dot);
        };
        row("black", 0, 0, 0, "#");
        row("white", 255, 255, 255, ".");
        row("grey 149", 149, 149, 149, "#");
        row("grey 150", 150, 150, 150, ".");
        row("red", 255, 0, 0, "#");
        row("green", 0, 255, 0, ".");
        row("blue", 0, 0, 255, "#");
        row("149.89", 150, 150, 149, "#");
        row("exactly 150, rounded to 149.99998", 58, 213, 63, "#");
        row("exactly 150, kept", 0, 208, 248, ".");
    }

    void aPixelIsBlackBelow150()
    {
        QFETCH(QByteArray, rgb);
        QFETCH(QString, dot);
        QCOMPARE(rowsOf(loaded("P6 1 1 255\n" + rgb)), QStringList(dot));
    }

    void loadedRowsAreThePicturesRows_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("pixels");
        QTest::newRow("PNG") << QByteArray("PNG") << static_cast<int>(QImage::Format_RGB32);
        QTest::newRow("PNG with alpha")
            << QByteArray("PNG") << static_cast<int>(QImage::Format_ARGB32);
        QTest::newRow("grey PNG") << QByteArray("PNG")
                                  << static_cast<int>(QImage::Format_Grayscale8);
        QTest::newRow("PNG of one bit")
            << QByteArray("PNG") << static_cast<int>(QImage::Format_Mono);
        QTest::newRow("BMP") << QByteArray("BMP") << static_cast<int>(QImage::Format_RGB32);
        QTest::newRow("PPM") << QByteArray("PPM") << static_cast<int>(QImage::Format_RGB32);
    }

    void loadedRowsAreThePicturesRows()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, pixels);
        QImage picture(5, 3, QImage::Format_RGB32);
        picture.fill(Qt::white);
        picture.setPixelColor(0, 0, Qt::black);
        picture.setPixelColor(4, 1, Qt::black);
        picture.setPixelColor(2, 2, Qt::black);
        const QString path = folder_.filePath("encoded");
        QVERIFY(picture.convertToFormat(static_cast<QImage::Format>(pixels))
                    .save(path, format.constData()));
        QCOMPARE(rowsOf(EscPos::loadImage(path.toStdString())),
            QStringList({"#....", "....#", "..#.."}));
    }

    void aJpegIsLoaded()
    {
        QImage picture(16, 8, QImage::Format_RGB32);
        picture.fill(Qt::white);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                picture.setPixelColor(x, y, Qt::black);
            }
        }
        const QString path = folder_.filePath("encoded");
        QVERIFY(picture.save(path, "JPG", 100));
        QCOMPARE(rowsOf(EscPos::loadImage(path.toStdString())),
            QStringList(QVector<QString>(8, "########........").toList()));
    }

    void theFirstFrameOfAGifIsLoaded()
    {
        // One frame of two pixels, black and white; the codes are clear, 0, 1, end in three bits
        // each.
        const QByteArray gif = QByteArray::fromHex("474946383961"
                                                   "02000100800000"
                                                   "000000ffffff"
                                                   "2c000000000200010000"
                                                   "02"
                                                   "02440a00"
                                                   "3b");
        QCOMPARE(rowsOf(loaded(gif)), QStringList("#."));
    }

    void aBmpStoredFromItsTopIsLoaded()
    {
        // 24 bits a pixel, 1 x -2, rows padded to four bytes.
        const QByteArray bmp = QByteArray::fromHex("424d"
                                                   "3e000000"
                                                   "00000000"
                                                   "36000000"
                                                   "28000000"
                                                   "01000000"
                                                   "feffffff"
                                                   "0100"
                                                   "1800"
                                                   "00000000"
                                                   "08000000"
                                                   "00000000"
                                                   "00000000"
                                                   "00000000"
                                                   "00000000"
                                                   "00000000"
                                                   "ffffff00");
        QCOMPARE(rowsOf(loaded(bmp)), QStringList({"#", "."}));
    }

    void greyFilesAreLoaded()
    {
        QCOMPARE(rowsOf(loaded(QByteArray("P5\n3 2\n255\n") + QByteArray::fromHex("0095969600ff"))),
            QStringList({"##.", ".#."}));
        QCOMPARE(rowsOf(loaded(QByteArray("P5\n# a shop\n1 1\n255\n") + '\0')), QStringList("#"));
    }

    void aPictureGoesFromFileToPaper()
    {
        EmulatedPrinter bus;
        Printer printer(receiptPrinter);
        DotMatrix dots = loaded(QByteArray("P5 2 2 255\n") + QByteArray::fromHex("00ff00ff"));
        printer.image(dots);
        QCOMPARE(transfersOf(bus),
            QStringList({"1b3300",
                "1b2a210200"
                "800000"
                "000000"
                "0a",
                "1b32"}));
    }

    void whatCannotBeDecodedIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("Chez Paul\n12 rue X\n");
        QTest::newRow("a PNG's first bytes") << QByteArray("\x89PNG\r\n\x1A\n");
        QTest::newRow("a PNG without data") << QByteArray::fromHex("89504e470d0a1a0a"
                                                                   "0000000d49484452"
                                                                   "0000000100000001"
                                                                   "0800000000"
                                                                   "3a7e9b55"
                                                                   "0000000049454e44ae426082");
        QTest::newRow("a size of nothing") << QByteArray("P6 0 0 255\n");
        QTest::newRow("a width of nothing") << QByteArray("P6 0 2 255\n");
        QTest::newRow("a PPM that ends early") << QByteArray("P6 2 2 255\nabcdefghijk");
        QTest::newRow("a PGM that ends early") << whitePixels(299, "P5 300 1 255\n");
        QTest::newRow("a PGM of 16 bits") << QByteArray("P5 1 1 65535\n\0\0", 15);
        QTest::newRow("a PPM of 16 bits") << QByteArray("P6 1 1 65535\n\0\0\0\0\0\0", 19);
        QTest::newRow("a format that no shop uses") << QByteArray("8BPS\0\1", 6);
    }

    void whatCannotBeDecodedIsEmpty()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(loaded(bytes).size(), 0U);
    }

    void aMissingFileIsEmpty()
    {
        QCOMPARE(EscPos::loadImage(folder_.filePath("missing").toStdString()).size(), 0U);
        QCOMPARE(EscPos::loadImage("").size(), 0U);
    }

    void whatIsNoFileIsEmpty()
    {
        QCOMPARE(EscPos::loadImage(folder_.path().toStdString()).size(), 0U);
        QCOMPARE(EscPos::loadImage("/dev/zero").size(), 0U);
        // Nobody ever writes to this one.
        const std::string pipe = folder_.filePath("pipe").toStdString();
        QCOMPARE(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
        QCOMPARE(EscPos::loadImage(pipe).size(), 0U);
    }

    void anUnreadableFileIsEmpty()
    {
        // Opens, but its first bytes are of no use to anybody, root included.
        QCOMPARE(EscPos::loadImage("/proc/self/mem").size(), 0U);
        const QString file = fileHolding(QByteArray("P5 1 1 255\n") + '\0');
        QVERIFY(QFile::setPermissions(file, QFile::WriteOwner));
        const DotMatrix dots = EscPos::loadImage(file.toStdString());
        QVERIFY(QFile::remove(file));
        QCOMPARE(dots.size(), geteuid() == 0 ? 1U : 0U);
    }

    void aFileThatCannotBeOpenedIsEmpty()
    {
        const std::string file = fileHolding(QByteArray("P5 1 1 255\n") + '\0').toStdString();
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

    void aLargerPictureIsNotDecoded()
    {
        QCOMPARE(loaded(whitePixels(4096 * 4097, "P5 4096 4097 255\n")).size(), 0U);
        QCOMPARE(loaded("P5 2000000000 2000000000 255\n").size(), 0U);
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
