// SPDX-License-Identifier: MIT
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "widgets/Pictures.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPixmap>

#include <sys/stat.h>

namespace {
const QString name = "Vendel.png";

/// A PNG up to its first dot: \a width and \a height as four bytes each, the check sum \a sum.
QByteArray pngHeader(const QByteArray& width, const QByteArray& height, const QByteArray& sum)
{
    return "\x89PNG\r\n\x1a\n" + QByteArray("\0\0\0\x0dIHDR", 8) + width + height
        + QByteArray("\x01\0\0\0\0", 5) + sum + QByteArray("\0\0\0\x0aIDAT", 8);
}

QByteArray pictureOf(int width, int height, const char* format)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer file;
    if (!image.save(&file, format)) {
        qFatal("no picture");
    }
    return file.data();
}

/// A folder with the picture in it, and what is logged when it is read.
struct Folder
{
    const Shop shop{Shop::Database::None};
    const CapturedLog log;

    explicit Folder(const QByteArray& picture) { shop.write(name, picture); }
};
} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void aPictureIsRead()
    {
        for (const char* format : {"png", "jpeg", "bmp"}) {
            const Folder folder(pictureOf(30, 20, format));
            const QPixmap picture = Pictures::read(name);
            QCOMPARE(picture.size(), QSize(30, 20));
            QVERIFY2(picture.toImage().pixelColor(29, 19).blue() > 250, format);
            QCOMPARE(folder.log.criticals(), QStringList());
        }
    }

    // Qt reads this format and does not write it: two blue dots beside each other.
    void aGifIsRead()
    {
        const Folder folder(QByteArray("GIF89a\x02\0\x01\0\x80\0\0\0\0\xff\0\0\0,\0\0\0\0\x02"
                                       "\0\x01\0\0\x02\x02\x04\x0a\0;",
            35));
        const QPixmap picture = Pictures::read(name);
        QCOMPARE(picture.size(), QSize(2, 1));
        QCOMPARE(picture.toImage().pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(folder.log.criticals(), QStringList());
    }

    void aMissingPictureIsNoFailure()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(), QStringList());
    }

    void theLongestSideIsRead()
    {
        for (const QSize size : {QSize(4096, 1), QSize(1, 4096)}) {
            const Folder folder(pictureOf(size.width(), size.height(), "png"));
            QCOMPARE(Pictures::read(name).size(), size);
            QCOMPARE(folder.log.criticals(), QStringList());
        }
    }

    void whatIsNoPictureIsLogged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* what, const QByteArray& bytes, const char* reason) {
            QTest::newRow(what) << bytes << QString("Vendel.png is not shown: ") + reason;
        };
        const char* noPicture = "it is not a PNG, JPEG, GIF or BMP";
        const char* tooLarge = "it has a side of more than 4096 pixels";
        row("a side of 60,000",
            pngHeader(
                QByteArray("\0\0\xea\x60", 4), QByteArray("\0\0\xea\x60", 4), "\xa8\xa9\x48\xef"),
            tooLarge);
        row("a pixel too wide", pictureOf(4097, 1, "png"), tooLarge);
        row("a pixel too high", pictureOf(1, 4097, "png"), tooLarge);
        row("a JPEG that is too wide", pictureOf(4097, 1, "jpeg"), tooLarge);
        row("a PNG that ends before its first dot",
            pngHeader(QByteArray("\0\0\0\x08", 4), QByteArray("\0\0\0\x08", 4), "\xec\x74\x83\x26"),
            "it is damaged");
        row("nothing", QByteArray(), noPicture);
        row("a text", "Chez Paul", noPicture);
        row("an icon, whose pictures have sizes of their own", pictureOf(16, 16, "ico"), noPicture);
        row("a drawing, which may name other files",
            "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", noPicture);
    }

    void whatIsNoPictureIsLogged()
    {
        QFETCH(QByteArray, bytes);
        const Folder folder(bytes);
        QVERIFY(Pictures::read(name).isNull());
        QTEST(folder.log.criticals().join('\n'), "reason");
    }

    void aFifoIsNotWaitedFor()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(mkfifo("Vendel.png", 0600) == 0);
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(), QStringList("Vendel.png is not read: it is not a regular file"));
    }

    void aHugeFileIsNotRead()
    {
        const Folder folder(pictureOf(8, 8, "png"));
        QVERIFY(QFile::resize(name, 1LL << 40));
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(
            folder.log.criticals(), QStringList("Vendel.png is not read: it is larger than 4 MB"));
    }
};

VENDEL_TEST(TestPictures)
#include "tst_Pictures.moc"
