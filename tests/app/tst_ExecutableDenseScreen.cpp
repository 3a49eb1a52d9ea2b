// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QBitmap>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QScreen>

namespace {
/// The sales screen in the middle of the screen.
constexpr QRect windowArea(158, 71, 1050, 626);
/// The clock's label, 22 pixels of the menu bar above it.
constexpr QRect clockArea(158 + 827, 71 + 22 + 8, 211, 21);

QImage shown(const QRect& area)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// The sales screen and its splash as they are shown, the running clock left out.
QImage shownWithoutTheClock()
{
    QImage picture = shown(windowArea);
    QPainter(&picture).fillRect(clockArea.translated(-windowArea.topLeft()), Qt::white);
    return picture;
}

/// The same once it has stayed as it is for three grabs in a row: the two windows appear one by
/// one.
QImage settledPicture()
{
    QImage picture;
    int grabs = 0;
    static_cast<void>(QTest::qWaitFor(
        [&] {
            const QImage next = shownWithoutTheClock();
            grabs = next == picture ? grabs + 1 : 0;
            picture = next;
            return grabs == 3;
        },
        30000));
    return picture;
}

/// The smallest rectangle around all that is not of the colour of the first pixel.
QRect ink(const QImage& picture)
{
    const QColor ground = picture.pixelColor(0, 0);
    return QRegion(QBitmap::fromImage(picture.createMaskFromColor(ground.rgb(), Qt::MaskInColor)))
        .boundingRect();
}

bool bothOpen() { return opens("Vendel") && opens("Dialog"); }
} // namespace

/// The program itself on a screen of 1366 x 768 with 144 dots per inch, a small laptop's.
class TestExecutableDenseScreen : public QObject
{
    Q_OBJECT

private slots:
    void theScreenHas144DotsPerInch()
    {
        QVERIFY(outputOf("xdpyinfo", {}).contains("144x144 dots per inch"));
    }

    void textIsAsLargeAsAt96DotsPerInch()
    {
        const Shop shop;
        QImage expected;
        {
            const StartedTill till(96);
            QVERIFY(bothOpen());
            expected = settledPicture();
            QVERIFY(!ink(expected).isNull());
        }
        QVERIFY(closes("Vendel"));
        const StartedTill till;
        // With the splash, or without it where the first picture took longer than the splash.
        QTRY_VERIFY_WITH_TIMEOUT(shownWithoutTheClock() == expected, 30000);
    }

    void theClockIsShownWhole()
    {
        const Shop shop;
        const StartedTill till;
        QVERIFY(opens("Vendel"));
        // Nineteen characters take most of the label and leave its right end free.
        QTRY_VERIFY_WITH_TIMEOUT(ink(shown(clockArea)).width() > 120, 30000);
        const QRect letters = ink(shown(clockArea));
        QVERIFY2(letters.right() < 205, qPrintable(QString::number(letters.right())));
        QVERIFY2(letters.height() <= 19, qPrintable(QString::number(letters.height())));
    }

    void theLanguageOfTheFolderIsSpoken()
    {
        const Shop shop;
        QVERIFY(QFile::copy(TRANSLATION_FILE, "FormVendelTr_Us"));
        const StartedTill till;
        QVERIFY(opens("The till"));
    }
};

VENDEL_BARE_TEST(TestExecutableDenseScreen)
#include "tst_ExecutableDenseScreen.moc"
