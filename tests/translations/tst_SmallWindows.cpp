// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
#include "tests/support/TestProgram.h"
#include "tests/translations/EveryWindow.h"
#include "tests/translations/WindowTexts.h"
#include "widgets/SmallScreen.h"

#include <QTableView>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>

namespace {
const QSize countersScreen(1024, 768);
const QSize smallestScreen(800, 600);
/// What a till at 200 per cent has of a screen of 1024 x 768.
const QSize halvedScreen(512, 384);

/// Where everything in the window of the running row is, and how large its letters are.
QStringList looksOfRow()
{
    const NumberedShop shop;
    QWidget opener;
    const auto window = openWindowOfRow(opener);
    QStringList looks;
    auto widgets = window->findChildren<QWidget*>();
    widgets.prepend(window.get());
    for (const QWidget* widget : widgets) {
        const QRect place(widget == window.get() ? QPoint() : widget->pos(), widget->size());
        looks << QString("%1 %2 %3,%4 %5x%6 %7")
                     .arg(widget->metaObject()->className(), widget->objectName())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height())
                     .arg(widget->font().pointSizeF());
        if (const auto* list = qobject_cast<const QTableView*>(widget)) {
            looks << QString("columns %1 %2, row %3")
                         .arg(list->columnWidth(1))
                         .arg(list->columnWidth(2))
                         .arg(list->rowHeight(0));
        }
    }
    return looks;
}
} // namespace

/// Every window where the screen is smaller than the till.
class TestSmallWindows : public QObject
{
    Q_OBJECT

private slots:
    void everyWindowFitsWithItsFrame_data() { eachWindow(); }

    void everyWindowFitsWithItsFrame()
    {
        for (const QSize& screen : {countersScreen, smallestScreen, halvedScreen}) {
            const SmallScreen small(qApp, screen);
            const NumberedShop shop;
            QWidget opener;
            const auto window = openWindowOfRow(opener);
            QVERIFY(window->width() + 8 <= screen.width());
            QVERIFY(window->height() + 38 <= screen.height());
            QVERIFY(window->rect().contains(window->childrenRect()));
        }
    }

    void noTextIsClipped_data() { eachWindow(); }

    void noTextIsClipped()
    {
        for (const QSize& screen : {countersScreen, smallestScreen, halvedScreen}) {
            const SmallScreen small(qApp, screen);
            QCOMPARE(clippedTexts(), QString());
        }
    }

    void noFrenchTextIsClipped_data() { eachWindow(); }

    void noFrenchTextIsClipped()
    {
        const InFrench french;
        for (const QSize& screen : {countersScreen, smallestScreen, halvedScreen}) {
            const SmallScreen small(qApp, screen);
            QCOMPARE(clippedTexts(), QString());
        }
    }

    void theReceiptsLinesStayWhole()
    {
        for (const QSize& screen : {halvedScreen, QSize(400, 300)}) {
            const SmallScreen small(qApp, screen);
            const NumberedShop shop;
            FormVendelTicket window(Payment::receipt());
            window.show();
            const auto* sheet = window.findChild<QTextEdit*>();
            QVERIFY(sheet->toPlainText().contains(QString(48, '-')));
            const QTextDocument& receipt = *sheet->document();
            for (auto line = receipt.begin(); line.isValid(); line = line.next()) {
                QVERIFY2(line.layout()->lineCount() == 1, qPrintable(line.text()));
            }
            QVERIFY(receipt.size().width() <= sheet->viewport()->width());
        }
    }

    void aLargeScreenChangesNothing_data() { eachWindow(); }

    void aLargeScreenChangesNothing()
    {
        const QStringList before = looksOfRow();
        const SmallScreen large(qApp, QSize(1228, 738));
        QCOMPARE(looksOfRow(), before);
    }
};

VENDEL_TEST(TestSmallWindows)
#include "tst_SmallWindows.moc"
