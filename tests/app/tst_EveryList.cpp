// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QTableView>

#include <memory>
#include <vector>

namespace {
using Widths = std::vector<int>;

/// The window with a class's name on the screen.
std::unique_ptr<QWidget> open(const QString& name)
{
    std::unique_ptr<QWidget> window;
    if (name == QLatin1String("FormVendel")) {
        window = std::make_unique<FormVendel>();
    } else if (name == QLatin1String("FormVendelSaisieArticle")) {
        window = std::make_unique<FormVendelSaisieArticle>();
    } else if (name == QLatin1String("FormVendelHistorique")) {
        window = std::make_unique<FormVendelHistorique>();
    } else if (name == QLatin1String("FormVendelSaisieStock")) {
        window = std::make_unique<FormVendelSaisieStock>();
    } else if (name == QLatin1String("FormVendelSaisieStockMaj")) {
        window = std::make_unique<FormVendelSaisieStockMaj>();
    } else if (name == QLatin1String("FormVendelSaisieStockCutPaste")) {
        window = std::make_unique<FormVendelSaisieStockCutPaste>();
    } else {
        const QString day = QString("05/01/2019");
        window = std::make_unique<FormVendelStockCalculation>(day, day);
    }
    window->show();
    return window;
}

/// All lists of the till: font in points, widths of all columns, hidden ones included, and the
/// number of columns hidden.
void addLists()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("points");
    QTest::addColumn<Widths>("widths");
    QTest::addColumn<QString>("hidden");
    const auto add = [](const char* window, const char* list, int points, const Widths& widths,
                         const char* hidden = "") {
        QTest::addRow("%s %s", window, list)
            << QString::fromLatin1(window) << QString::fromLatin1(list) << points << widths
            << QString::fromLatin1(hidden);
    };
    add("FormVendel", "tableView1", 18, {50, 25, 210, 110}, "0");
    add("FormVendel", "tableView2", 18, {50, 50, 210, 110}, "01");
    add("FormVendelSaisieArticle", "tableView", 18, {50, 25, 210, 110}, "0");
    add("FormVendelHistorique", "tableView1", 11, {210, 100, 250});
    add("FormVendelHistorique", "tableView2", 11, {150});
    add("FormVendelHistorique", "tableView3", 11, {50, 210, 100, 100});
    add("FormVendelSaisieStock", "tableView1", 12, {50, 210, 110});
    add("FormVendelSaisieStock", "tableView2", 12, {50, 50, 180, 90, 50}, "1");
    add("FormVendelSaisieStockMaj", "tableView", 12, {50, 210, 100});
    add("FormVendelSaisieStockCutPaste", "tableView1", 12, {50, 210, 110});
    add("FormVendelSaisieStockCutPaste", "tableView2", 12, {50, 50, 180, 90, 50}, "1");
    add("FormVendelStockCalculation", "tableView1", 11, {50, 180, 150, 130, 100});
    add("FormVendelStockCalculation", "tableView2", 11, {150, 140, 100, 140, 100});
}

/// The list of the running row in its open window.
struct Shown
{
    Shown()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, list);
        owner = open(window);
        view = &child<QTableView>(*owner, list.toLatin1().constData());
    }

    Shop shop;
    std::unique_ptr<QWidget> owner;
    QTableView* view = nullptr;
};
} // namespace

/// The look that all lists of the till share, in each of them as its window shows it.
class TestEveryList : public QObject
{
    Q_OBJECT

private slots:
    void hasItsFont_data()
    {
        addLists();
    }

    void hasItsFont()
    {
        QFETCH(const int, points);
        const Shown at;
        QCOMPARE(at.view->font().pointSize(), points);
        QCOMPARE(at.view->font().families().constFirst(), QString("Carlito"));
        QVERIFY(!at.view->font().bold());
    }

    void hasItsColumnWidthsAndStretchesNone_data()
    {
        addLists();
    }

    void hasItsColumnWidthsAndStretchesNone()
    {
        QFETCH(const Widths, widths);
        QFETCH(const QString, hidden);
        const Shown at;
        const QHeaderView& header = *at.view->horizontalHeader();
        QVERIFY(!header.stretchLastSection());
        QCOMPARE(header.count(), static_cast<int>(widths.size()));
        for (int column = 0; column < header.count(); ++column) {
            QCOMPARE(header.sectionResizeMode(column), QHeaderView::Interactive);
            QCOMPARE(at.view->isColumnHidden(column), hidden.contains(QString::number(column)));
            at.view->showColumn(column);
            QCOMPARE(at.view->columnWidth(column), widths.at(static_cast<std::size_t>(column)));
        }
    }

    void hasItsColours_data()
    {
        addLists();
    }

    void hasItsColours()
    {
        const Shown at;
        QCOMPARE(at.view->styleSheet(),
            QString("alternate-background-color: LightBlue;background-color: White"));
        QVERIFY(at.view->alternatingRowColors());
        QVERIFY(at.view->showGrid());
    }

    void hasItsHeaders_data()
    {
        addLists();
    }

    void hasItsHeaders()
    {
        const Shown at;
        const QHeaderView& columns = *at.view->horizontalHeader();
        QCOMPARE(columns.defaultAlignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
        QCOMPARE(columns.minimumSectionSize(), 10);
        QVERIFY(columns.isVisible());
        const QHeaderView& rows = *at.view->verticalHeader();
        QCOMPARE(rows.minimumSectionSize(), 10);
        QCOMPARE(rows.defaultSectionSize(), 10);
        QCOMPARE(rows.font().pointSize(), 10);
        QVERIFY(rows.isVisible());
    }

    void isReadRowByRowAndNeverEdited_data()
    {
        addLists();
    }

    void isReadRowByRowAndNeverEdited()
    {
        const Shown at;
        QCOMPARE(at.view->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(at.view->selectionMode(), QAbstractItemView::ExtendedSelection);
        QVERIFY(!at.view->wordWrap());
        QVERIFY(!at.view->tabKeyNavigation());
        QVERIFY(!at.view->isSortingEnabled());
        QVERIFY(!at.view->dragEnabled());
    }
};

VENDEL_TEST(TestEveryList)
#include "tst_EveryList.moc"
