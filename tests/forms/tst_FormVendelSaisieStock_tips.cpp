// SPDX-License-Identifier: MIT
#include "tests/forms/StockSample.h"
#include "tests/support/TestProgram.h"

#include <QCursor>
#include <QMouseEvent>
#include <QToolTip>

namespace {
const QString articleTip = "Article\nDoubleClick sur : Café\nPour faire composition";

/// Whether the shown tip is beside \a cursor (screen pixels).
bool tipIsBeside(QPoint cursor)
{
    return (tipGeometry().topLeft() - cursor).manhattanLength() < 40;
}

/// Whether \a window lets \a event at \a watched pass on.
bool passesOn(QObject& window, QObject* watched, QEvent&& event)
{
    return !window.eventFilter(watched, &event);
}

QMouseEvent mouseMove()
{
    return {QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton,
        Qt::NoModifier};
}
} // namespace

/// The hover tips of the stock editor and of the transfer window.
class TestFormVendelSaisieStockTips : public QObject
{
    Q_OBJECT

private slots:
    void tipsSayWhatADoubleClickDoes()
    {
        OpenStock at;
        at.mark(0);
        QCursor::setPos(300, 200);
        QCoreApplication::processEvents();
        hoverCell(at.window, "tableView1", 0, 2);
        QCOMPARE(QToolTip::text(), articleTip);
        QVERIFY(tipIsBeside({300, 200}));
        hoverCell(at.window, "tableView2", 1, 3);
        QCOMPARE(QToolTip::text(),
            QString("Composition\nDoubleClick sur : Lait\n"
                    "Pour supprimer l'article de la composition"));

        at.window.Clear_List();
        QVERIFY(passesOn(at.window, at.right.viewport(), mouseMove()));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void tipsShowNamesAsTheyAre()
    {
        OpenStock at("update ArticleStock set article = '<b>l''eau</b>' where id = 1");
        hoverCell(at.window, "tableView1", 0, 1);
        QCOMPARE(QToolTip::text(),
            QString("Article\nDoubleClick sur : <b>l'eau</b>\nPour faire composition"));
    }

    void tipsIgnoreOtherEvents()
    {
        OpenStock at;
        hoverCell(at.window, "tableView1", 0, 1);
        QVERIFY(passesOn(at.window, at.left.viewport(), QEvent(QEvent::Enter)));
        QVERIFY(passesOn(at.window, &at.window, mouseMove()));
        QCOMPARE(QToolTip::text(), articleTip);
    }

    void tipsSayHowToMove()
    {
        OpenTransfer at;
        clickCell(at.window, "tableView1", 0, 1);
        QCursor::setPos(300, 200);
        hoverCell(at.window, "tableView2", 0, 3);
        QCOMPARE(QToolTip::text(),
            QString("Composition\nFaire votre choix dans la liste déroulante\nSélectionner la "
                    "composition : Menthe\nPuis Modifier"));
        QVERIFY(tipIsBeside({300, 200}));
        hoverCell(at.window, "tableView1", 0, 1);
        QVERIFY(QToolTip::isVisible());
        QObject* recipe = child<QTableView>(at.window, "tableView2").viewport();
        QVERIFY(passesOn(at.window, recipe, QEvent(QEvent::Enter)));
        QVERIFY(QToolTip::isVisible());
        at.window.Display_DoseStock("2");
        QVERIFY(passesOn(at.window, recipe, mouseMove()));
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

VENDEL_TEST(TestFormVendelSaisieStockTips)
#include "tst_FormVendelSaisieStock_tips.moc"
