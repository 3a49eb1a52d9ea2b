// SPDX-License-Identifier: MIT
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <utility>

namespace {
using Widths = std::vector<int>;

/// The list of the running row in its \a window, which opens.
QTableView& openList(AnyWindow& window)
{
    QFETCH(const QString, owner);
    QFETCH(const QString, list);
    window = makeWindow(owner);
    window->show();
    return child<QTableView>(*window, qPrintable(list));
}

/// The window with the given class name, taking keys, its lists filled.
AnyWindow openFilled(const char* name)
{
    AnyWindow opened = makeWindow(name);
    if (!showActive(*opened)) {
        qFatal("the window does not become active");
    }
    if (opened->findChild<QPushButton*>("btn_Display") != nullptr) {
        click(*opened, "btn_Display");
    }
    if (auto* articles = opened->findChild<QTableView*>("tableView1")) {
        articles->selectRow(0);
    }
    return opened;
}

/// The lists of \a window that scroll sideways or lack the bar that scrolls down.
QStringList crampedLists(const QWidget& window)
{
    QStringList cramped;
    const auto lists = window.findChildren<QTableView*>();
    for (const auto* list : lists) {
        if (list->horizontalScrollBar()->isVisible() || !list->verticalScrollBar()->isVisible()) {
            cramped << list->objectName();
        }
    }
    return cramped;
}
} // namespace

/// The look that all lists of the till share, in each of them as its window shows it.
class TestEveryList : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeAllOthersWithItsLabelsAndColumns_data()
    {
        QTest::addColumn<QString>("owner");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("labels");
        QTest::addColumn<int>("points");
        QTest::addColumn<Widths>("widths");
        QTest::addColumn<QString>("hidden");
        const auto add = [](const char* window, const char* list, const char* labels, int points,
                             const Widths& widths, const char* hidden = "") {
            QTest::addRow("%s %s", window, list)
                << window << list << labels << points << widths << hidden;
        };
        add("FormVendelSaisieArticle", "tableView", "#|X|Article|Prix", 18, {50, 25, 210, 110},
            "0");
        add("FormVendelHistorique", "tableView1", "Article|Prix|Date Heure", 11, {210, 100, 250});
        add("FormVendelHistorique", "tableView2", "Date", 11, {150});
        add("FormVendelHistorique", "tableView3", "Qtité|Article|Prix|Qtité * Prix", 11,
            {50, 210, 100, 100});
        add("FormVendelSaisieStock", "tableView1", "#|Article|Validité", 12, {50, 210, 110});
        add("FormVendelSaisieStock", "tableView2", "#|id|Composition|Dose|Unité", 12,
            {50, 50, 180, 90, 50}, "1");
        add("FormVendelSaisieStockMaj", "tableView", "#|Article|Mise à jour", 12, {50, 210, 100});
        add("FormVendelSaisieStockCutPaste", "tableView1", "#|Article|Validité", 12,
            {50, 210, 110});
        add("FormVendelSaisieStockCutPaste", "tableView2", "#|Id|Composition|Dose|Unité", 12,
            {50, 50, 180, 90, 50}, "1");
        add("FormVendelStockCalculation", "tableView1",
            "Qtité|Article|Composition|Dose Unitaire|Qtité * Dose", 11, {50, 180, 150, 130, 100});
        add("FormVendelStockCalculation", "tableView2",
            "Composition|Consommation|Unité|Conversion|Unité", 11, {150, 140, 100, 140, 100});
    }

    void looksLikeAllOthersWithItsLabelsAndColumns()
    {
        QFETCH(const QString, owner);
        QFETCH(const int, points);
        QFETCH(const Widths, widths);
        QFETCH(const QString, hidden);
        const Shop shop;
        AnyWindow window;
        QTableView& list = openList(window);
        QTEST(labels(list).join('|'), "labels");
        compareList(list, points, widths, hidden);

        const ContextEcho echo;
        QStringList contexts = labels(openList(window));
        contexts.removeDuplicates();
        const bool hasOwnWords = owner.contains("Stock");
        QCOMPARE(contexts, QStringList((hasOwnWords ? owner : "FormVendel") + "Messages"));
    }

    void theStocksListsHaveRoomForLongRows()
    {
        const Bar bar;
        const QString many = "with recursive row(n) as (select 100 union all select n + 1 from row "
                             "where n < 220) select ";
        for (const QString& insert : {"insert into Article (id, article, prix) " + many
                     + "n + 1000, 'Nouveau ' || n, 1 from row",
                 "insert into ArticleStock " + many + "n, 'Ancien ' || n from row",
                 "insert into DoseStock (id, composition, dose, unite) " + many
                     + "100, 'Composition ' || n, 1234.5, 'fl. oz' from row"}) {
            bar.fill(qUtf8Printable(insert));
        }
        bar.sell("Ancien 100", 100);

        for (const char* name : {"FormVendelSaisieStock", "FormVendelSaisieStockCutPaste",
                 "FormVendelSaisieStockMaj", "FormVendelStockCalculation"}) {
            const AnyWindow window = openFilled(name);
            QTRY_VERIFY2(crampedLists(*window).isEmpty(), name);
        }
    }

    void keysThatActInOtherListsDoNothing()
    {
        const StockSample sample("insert into Article (id, article, prix) values (9, 'Vin', 3);"
                                 "insert into Historique values (1, 'Café', 2, "
                                 "'2019-05-01 10:00:00.000')");
        const auto stored = [&] {
            return sample.cell("select (select group_concat(id || article) from ArticleStock) || "
                               "(select group_concat(idlig || ',' || id) from DoseStock) || "
                               "(select group_concat(id || article) from Article)");
        };
        const QString before = stored();
        for (const auto& [window, list] : {std::pair("FormVendelSaisieStockCutPaste", "tableView1"),
                 {"FormVendelSaisieStockCutPaste", "tableView2"},
                 {"FormVendelSaisieStockMaj", "tableView"},
                 {"FormVendelStockCalculation", "tableView1"},
                 {"FormVendelStockCalculation", "tableView2"}}) {
            const AnyWindow opened = openFilled(window);
            const QStringList rowsBefore = rows(*opened, list);
            QVERIFY2(!rowsBefore.isEmpty(), window);
            const AnswerBox boxes = AnswerBox::agreeing();
            auto& view = child<QTableView>(*opened, list);
            clickCell(*opened, list, 0, 2);
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete,
                     Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Space}) {
                QTest::keyClick(&view, key);
            }
            QCOMPARE(boxes.said(), QStringList());
            QVERIFY2(stored() == before, window);
            QCOMPARE(rows(*opened, list), rowsBefore);
            QVERIFY2(opened->isVisible(), window);
            QVERIFY2(opened->findChildren<QDialog*>().isEmpty(), window);
            QVERIFY2(view.findChildren<QLineEdit*>().isEmpty(), window);
        }
    }
};

VENDEL_TEST(TestEveryList)
#include "tst_EveryList.moc"
