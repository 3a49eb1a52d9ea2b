// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QLineEdit>
#include <QTableView>

namespace {
/// The keys that lists know elsewhere: open, edit, choose, remove.
constexpr Qt::Key listKeys[]
    = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Space};

/// The stock editor of the sample shop, Café marked and the second line of its recipe, too.
struct Composing
{
    Composing()
    {
        if (!showActive(stock)) {
            qFatal("the stock editor does not become active");
        }
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        clickCell(stock, "tableView2", 1, 2);
    }

    /// Presses \a key in the widget \a name, which has the focus then.
    void press(const char* name, Qt::Key key)
    {
        auto& widget = child<QWidget>(stock, name);
        widget.setFocus();
        QTest::keyClick(&widget, key);
    }

    QString lines() const
    {
        return shop.cell("select group_concat(idlig) from DoseStock");
    }

    StockSample shop;
    FormVendelSaisieStock stock;
};

/// Whether no key that lists know does anything in the list \a name of \a window, a row marked.
bool areKeysWithoutEffect(QWidget& window, const char* name, const Shop& shop)
{
    const auto stored = [&] {
        return shop.cell("select (select group_concat(id || article) from ArticleStock) || "
                         "(select group_concat(idlig || ',' || id) from DoseStock) || "
                         "(select group_concat(id || article) from Article)");
    };
    const QString before = stored();
    const int rows = rowCount(window, name);
    const AnswerBox boxes = AnswerBox::agreeing();
    auto& list = child<QTableView>(window, name);
    clickCell(window, name, 0, 2);
    for (const Qt::Key key : listKeys) {
        QTest::keyClick(&list, key);
    }
    return rows > 0 && boxes.said().isEmpty() && stored() == before && rowCount(window, name) == rows
        && window.isVisible() && window.findChildren<QDialog*>().isEmpty()
        && list.findChildren<QLineEdit*>().isEmpty();
}
} // namespace

/// A key of a list means something in that list only.
class TestStockKeys : public QObject
{
    Q_OBJECT

private slots:
    void deleteRemovesALineInTheRecipeOnly_data()
    {
        QTest::addColumn<QString>("left");
        for (const char* name :
            {"tableView1", "btn_Display", "btn_Update", "btn_Remove", "btn_Cut_Paste"}) {
            QTest::newRow(name) << QString("10,11,12");
        }
        // By name Grains (11) comes first, Lait (10) second.
        QTest::newRow("tableView2") << QString("11,12");
    }

    void deleteRemovesALineInTheRecipeOnly()
    {
        Composing at;
        at.press(QTest::currentDataTag(), Qt::Key_Delete);
        QTEST(at.lines(), "left");
    }

    void returnComposesInTheArticlesOnly_data()
    {
        QTest::addColumn<int>("windows");
        for (const char* name :
            {"tableView2", "btn_Display", "btn_Update", "btn_Remove", "btn_Cut_Paste"}) {
            QTest::newRow(name) << 0;
        }
        QTest::newRow("tableView1") << 1;
    }

    void returnComposesInTheArticlesOnly()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            Composing at;
            at.press(QTest::currentDataTag(), key);
            const auto windows = at.stock.findChildren<FormVendelSaisieStockComposition*>();
            QTEST(static_cast<int>(windows.size()), "windows");
            QCOMPARE(at.stock.findChildren<QDialog*>().size(), windows.size());
            QCOMPARE(at.lines(), QString("10,11,12"));
        }
    }

    void theTransfersListsHaveNoKeys_data()
    {
        QTest::addColumn<bool>("isRecipe");
        QTest::newRow("tableView1") << false;
        QTest::newRow("tableView2") << true;
    }

    void theTransfersListsHaveNoKeys()
    {
        const StockSample shop;
        FormVendelSaisieStockCutPaste window;
        QVERIFY(showActive(window));
        clickCell(window, "tableView1", 0, 1);
        QVERIFY(areKeysWithoutEffect(window, QTest::currentDataTag(), shop));
    }

    void theUpdatesListHasNoKeys()
    {
        const StockSample shop;
        shop.sql("insert into Article (article, prix) values ('Vin', 3)");
        FormVendelSaisieStockMaj window;
        QVERIFY(showActive(window));
        QVERIFY(areKeysWithoutEffect(window, "tableView", shop));
    }

    void theConsumptionsListsHaveNoKeys_data()
    {
        QTest::addColumn<bool>("isTotal");
        QTest::newRow("tableView1") << false;
        QTest::newRow("tableView2") << true;
    }

    void theConsumptionsListsHaveNoKeys()
    {
        const Bar bar;
        bar.sell("Café", 3);
        Consumed at;
        QVERIFY(showActive(at.window));
        QVERIFY(areKeysWithoutEffect(at.window, QTest::currentDataTag(), bar));
    }
};

VENDEL_TEST(TestStockKeys)
#include "tst_StockKeys.moc"
