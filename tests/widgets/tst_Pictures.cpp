// SPDX-License-Identifier: MIT
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "widgets/Pictures.h"

#include <QImage>

#include <sys/stat.h>

namespace {
const QString name = QString("Vendel.png");

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
    const QString file = QString("made");
    if (!image.save(file, format)) {
        qFatal("no picture");
    }
    QFile made(file);
    return made.open(QIODevice::ReadOnly) ? made.readAll() : QByteArray();
}
} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void aPictureIsRead_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {"png", "jpeg", "bmp"}) {
            QTest::newRow(format) << QByteArray(format);
        }
    }

    void aPictureIsRead()
    {
        QFETCH(QByteArray, format);
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        shop.write(name, pictureOf(30, 20, format.constData()));
        const QPixmap picture = Pictures::read(name);
        QCOMPARE(picture.size(), QSize(30, 20));
        QVERIFY(picture.toImage().pixelColor(29, 19).blue() > 250);
        QCOMPARE(log.criticals(), QStringList());
    }

    // Qt reads this format and does not write it: two blue dots beside each other.
    void aGifIsRead()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        shop.write(name,
            QByteArray("GIF89a\x02\0\x01\0\x80\0\0\0\0\xff\0\0\0,\0\0\0\0\x02\0\x01\0\0"
                       "\x02\x02\x04\x0a\0;",
                35));
        const QPixmap picture = Pictures::read(name);
        QCOMPARE(picture.size(), QSize(2, 1));
        QCOMPARE(picture.toImage().pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aMissingPictureIsNoTrouble()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(), QStringList());
    }

    void theLongestSideIsRead()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        shop.write(name, pictureOf(4096, 1, "png"));
        QCOMPARE(Pictures::read(name).size(), QSize(4096, 1));
        shop.write(name, pictureOf(1, 4096, "png"));
        QCOMPARE(Pictures::read(name).size(), QSize(1, 4096));
        QCOMPARE(log.criticals(), QStringList());
    }

    void whatIsNoPictureIsLogged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* what, const QByteArray& bytes, const char* reason) {
            QTest::newRow(what) << bytes << QString::fromUtf8(reason);
        };
        const Shop shop(Shop::Database::None);
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
        QFETCH(QString, reason);
        const Shop shop(Shop::Database::None);
        shop.write(name, bytes);
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(), QStringList(QString("Vendel.png is not shown: ") + reason));
    }

    void aFifoIsNotWaitedFor()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(mkfifo("Vendel.png", 0600) == 0);
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(),
            QStringList(QString("Vendel.png is not read: it is not a regular file")));
    }

    void aHugeFileIsNotRead()
    {
        const Shop shop(Shop::Database::None);
        shop.write(name, pictureOf(8, 8, "png"));
        QVERIFY(QFile::resize(name, 1LL << 40));
        const CapturedLog log;
        QVERIFY(Pictures::read(name).isNull());
        QCOMPARE(log.criticals(),
            QStringList(QString("Vendel.png is not read: it is larger than 4 MB")));
    }
};

VENDEL_TEST(TestPictures)
#include "tst_Pictures.moc"
