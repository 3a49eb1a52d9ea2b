// SPDX-License-Identifier: MIT
#include "tests/forms/StockSample.h"
#include "tests/support/TestProgram.h"

#include <QHeaderView>

#include <memory>

namespace {
/// The window of the running row, which lists articles on its left, the recipe of the marked one on
/// its right: in the stock editor Café, Limonade, Sirop and Thé, in the transfer Limonade and
/// Sirop.
struct Opened
{
    const bool isTransfer = [] {
        QFETCH_GLOBAL(const bool, inTransfer);
        return inTransfer;
    }();
    const StockSample shop{"insert into ArticleStock values (4, 'Limonade');"
                           "insert into DoseStock values (13, 4, 'Eau', 20, 'cl')"};
    const std::unique_ptr<QDialog> window = open();
    QTableView& articles = child<QTableView>(*window, "tableView1");
    /// The recipes of the first two articles, their compositions parted by "|".
    const QString first = isTransfer ? "Eau" : "Grains|Lait";
    const QString second = isTransfer ? "Menthe" : "Eau";

    std::unique_ptr<QDialog> open() const
    {
        if (isTransfer) {
            return std::make_unique<FormVendelSaisieStockCutPaste>();
        }
        auto stock = std::make_unique<FormVendelSaisieStock>();
        stock->Display(true);
        return stock;
    }

    void mark(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        clickCell(*window, "tableView1", row, 1, modifiers);
    }

    void clickRowNumber(int row) const
    {
        const QHeaderView& numbers = *articles.verticalHeader();
        const QPoint place(5, numbers.sectionViewportPosition(row) + numbers.sectionSize(row) / 2);
        QTest::mouseClick(numbers.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
};
} // namespace

/// The recipe on the right always belongs to the marked article, or is empty: a double click on it
/// removes a line.
class TestStockListsMarkedRecipe : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("inTransfer");
        QTest::newRow("stock editor") << false;
        QTest::newRow("transfer") << true;
    }

    void aMarkedRowShowsItsRecipe()
    {
        const Opened at;
        QVERIFY(showActive(*at.window));
        at.mark(0);
        QCOMPARE(recipe(*at.window), at.first);
        at.clickRowNumber(1);
        QCOMPARE(recipe(*at.window), at.second);
        at.clickRowNumber(0);
        QCOMPARE(recipe(*at.window), at.first);
        at.articles.selectRow(1);
        QCOMPARE(recipe(*at.window), at.second);
        at.articles.selectRow(0);
        QCOMPARE(recipe(*at.window), at.first);
    }

    void theKeyboardShowsTheRecipeOfTheRowItMarks()
    {
        const Opened at;
        QVERIFY(showActive(*at.window));
        at.mark(1);
        QTest::keyClick(&at.articles, Qt::Key_Up);
        QCOMPARE(recipe(*at.window), at.first);
        QTest::keyClick(&at.articles, Qt::Key_Down);
        QCOMPARE(recipe(*at.window), at.second);
        // With Ctrl the row becomes the current one and the other stays marked.
        QTest::keyClick(&at.articles, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(recipe(*at.window), at.second);
        QTest::keyClick(&at.articles, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(recipe(*at.window), at.first);
    }

    void withoutAMarkedArticleThereIsNoRecipe()
    {
        const Opened at;
        QVERIFY(showActive(*at.window));
        at.mark(0);
        at.mark(0, Qt::ControlModifier);
        QVERIFY(!at.articles.selectionModel()->hasSelection());
        QCOMPARE(recipe(*at.window), QString());
        at.articles.selectRow(1);
        at.articles.clearSelection();
        QCOMPARE(recipe(*at.window), QString());
    }

    void theCurrentOfSeveralMarkedArticlesCounts()
    {
        const Opened at;
        QVERIFY(showActive(*at.window));
        at.mark(0);
        at.mark(1, Qt::ControlModifier);
        QCOMPARE(recipe(*at.window), at.second);
        // Unmarked again, the current row leaves the other one marked.
        at.mark(1, Qt::ControlModifier);
        QCOMPARE(recipe(*at.window), at.first);
    }

    void aDoubleClickRemovesALineOfTheMarkedArticle()
    {
        const Opened at;
        QVERIFY(showActive(*at.window));
        at.mark(0);
        at.clickRowNumber(1);
        doubleClickCell(*at.window, "tableView2", 0, 2);
        // A double click removes nothing in the transfer.
        QCOMPARE(at.shop.lines(), QString(at.isTransfer ? "10,11,12,13" : "10,11,12"));
    }
};

VENDEL_TEST(TestStockListsMarkedRecipe)
#include "tst_StockLists_markedRecipe.moc"
