// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "tests/forms/StockSample.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QMouseEvent>
#include <QTableView>
#include <QToolTip>

/// The hover tips of the stock editor and of the transfer window.
class TestStockTips : public QObject
{
    Q_OBJECT

private slots:
    void tipsSayWhatADoubleClickDoes()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        QCursor::setPos(300, 200);
        QCoreApplication::processEvents();
        hoverCell(stock, "tableView1", 0, 2);
        QCOMPARE(
            QToolTip::text(), QString("Article\nDoubleClick sur : Café\nPour faire composition"));
        QVERIFY(tipIsBeside(QPoint(300, 200)));
        hoverCell(stock, "tableView2", 1, 3);
        QCOMPARE(QToolTip::text(),
            QString(
                "Composition\nDoubleClick sur : Lait\nPour supprimer l'article de la composition"));

        stock.Clear_List();
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QVERIFY(!static_cast<QObject&>(stock).eventFilter(
            child<QTableView>(stock, "tableView2").viewport(), &move));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void tipsShowNamesAsTheyAre()
    {
        const StockSample shop;
        shop.sql("update ArticleStock set article = '<b>l''eau</b>' where id = 1");
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        hoverCell(stock, "tableView1", 0, 1);
        QCOMPARE(QToolTip::text(),
            QString("Article\nDoubleClick sur : <b>l'eau</b>\nPour faire composition"));
    }

    void tipsIgnoreOtherEvents()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        hoverCell(stock, "tableView1", 0, 1);
        QEvent paint(QEvent::Enter);
        QVERIFY(!static_cast<QObject&>(stock).eventFilter(
            child<QTableView>(stock, "tableView1").viewport(), &paint));
        QMouseEvent elsewhere(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QVERIFY(!static_cast<QObject&>(stock).eventFilter(&stock, &elsewhere));
        QCOMPARE(
            QToolTip::text(), QString("Article\nDoubleClick sur : Café\nPour faire composition"));
    }

    void tipsSayHowToMove()
    {
        const StockSample shop;
        FormVendelSaisieStockCutPaste window;
        window.show();
        clickCell(window, "tableView1", 0, 1);
        QCursor::setPos(300, 200);
        hoverCell(window, "tableView2", 0, 3);
        QCOMPARE(QToolTip::text(),
            QString("Composition\nFaire votre choix dans la liste déroulante\nSélectionner la "
                    "composition : Menthe\nPuis Modifier"));
        QVERIFY(tipIsBeside(QPoint(300, 200)));
        hoverCell(window, "tableView1", 0, 1);
        QVERIFY(QToolTip::isVisible());
        QEvent enter(QEvent::Enter);
        auto& viewport = *child<QTableView>(window, "tableView2").viewport();
        QVERIFY(!static_cast<QObject&>(window).eventFilter(&viewport, &enter));
        QVERIFY(QToolTip::isVisible());
        window.Display_DoseStock(QString("2"));
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QVERIFY(!static_cast<QObject&>(window).eventFilter(&viewport, &move));
        QTRY_VERIFY(!QToolTip::isVisible());
    }
};

VENDEL_TEST(TestStockTips)
#include "tst_StockTips.moc"
