// SPDX-License-Identifier: MIT
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QLineEdit>
#include <QScrollBar>

namespace {
using Widths = std::vector<int>;

/// The lists of all windows but the sales screen: their labels, font in points and widths of all
/// columns in pixels, and which of these are hidden.
void addLists()
{
    QTest::addColumn<QString>("window");
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
    add("FormVendelSaisieArticle", "tableView", "#|X|Article|Prix", 18, {50, 25, 210, 110}, "0");
    add("FormVendelHistorique", "tableView1", "Article|Prix|Date Heure", 11, {210, 100, 250});
    add("FormVendelHistorique", "tableView2", "Date", 11, {150});
    add("FormVendelHistorique", "tableView3", "Qtité|Article|Prix|Qtité * Prix", 11,
        {50, 210, 100, 100});
    add("FormVendelSaisieStock", "tableView1", "#|Article|Validité", 12, {50, 210, 110});
    add("FormVendelSaisieStock", "tableView2", "#|id|Composition|Dose|Unité", 12,
        {50, 50, 180, 90, 50}, "1");
    add("FormVendelSaisieStockMaj", "tableView", "#|Article|Mise à jour", 12, {50, 210, 100});
    add("FormVendelSaisieStockCutPaste", "tableView1", "#|Article|Validité", 12, {50, 210, 110});
    add("FormVendelSaisieStockCutPaste", "tableView2", "#|Id|Composition|Dose|Unité", 12,
        {50, 50, 180, 90, 50}, "1");
    add("FormVendelStockCalculation", "tableView1",
        "Qtité|Article|Composition|Dose Unitaire|Qtité * Dose", 11, {50, 180, 150, 130, 100});
    add("FormVendelStockCalculation", "tableView2",
        "Composition|Consommation|Unité|Conversion|Unité", 11, {150, 140, 100, 140, 100});
}

/// The list of the running row in its open window.
struct Shown
{
    Shop shop;
    AnyWindow owner;
    QTableView* view = nullptr;

    Shown()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, list);
        owner = makeWindow(window);
        owner->show();
        view = &child<QTableView>(*owner, qPrintable(list));
    }
};

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
    void looksLikeAllOthers_data()
    {
        addLists();
    }

    void looksLikeAllOthers()
    {
        QFETCH(const int, points);
        compareLook(*Shown().view, points);
    }

    void hasItsColumnsAndStretchesNone_data()
    {
        addLists();
    }

    void hasItsColumnsAndStretchesNone()
    {
        QFETCH(const Widths, widths);
        QFETCH(const QString, hidden);
        compareColumns(*Shown().view, widths, hidden);
    }

    void isReadRowByRowAndNeverEdited_data()
    {
        addLists();
    }

    void isReadRowByRowAndNeverEdited()
    {
        compareUse(*Shown().view);
    }

    void hasItsLabels_data()
    {
        addLists();
    }

    void hasItsLabels()
    {
        QTEST(labels(*Shown().view).join('|'), "labels");
    }

    void labelsAreTranslatedAmongTheMessages_data()
    {
        addLists();
    }

    void labelsAreTranslatedAmongTheMessages()
    {
        QFETCH(const QString, window);
        const ContextEcho echo;
        QStringList contexts = labels(*Shown().view);
        contexts.removeDuplicates();
        const bool hasOwnWords = window.contains("Stock");
        QCOMPARE(contexts, QStringList((hasOwnWords ? window : "FormVendel") + "Messages"));
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

        FormVendelSaisieStock editor;
        editor.show();
        editor.Display(true);
        child<QTableView>(editor, "tableView1").selectRow(0);
        FormVendelSaisieStockCutPaste transfer;
        transfer.show();
        child<QTableView>(transfer, "tableView1").selectRow(0);
        FormVendelSaisieStockMaj update;
        update.show();
        Consumed at;
        QTRY_COMPARE(crampedLists(editor), QStringList());
        QTRY_COMPARE(crampedLists(transfer), QStringList());
        QTRY_COMPARE(crampedLists(update), QStringList());
        QTRY_COMPARE(crampedLists(at.window), QStringList());
    }

    void keysThatActInOtherListsDoNothing_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("list");
        const auto add = [](const char* window, const char* list) {
            QTest::addRow("%s %s", window, list) << window << list;
        };
        add("FormVendelSaisieStockCutPaste", "tableView1");
        add("FormVendelSaisieStockCutPaste", "tableView2");
        add("FormVendelSaisieStockMaj", "tableView");
        add("FormVendelStockCalculation", "tableView1");
        add("FormVendelStockCalculation", "tableView2");
    }

    void keysThatActInOtherListsDoNothing()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, list);
        const QByteArray name = list.toLatin1();
        const StockSample shop(
            "insert into Article (id, article, prix) values (9, 'Vin', 3);"
            "insert into Historique values (1, 'Café', 2, '2019-05-01 10:00:00.000')");
        const auto stored = [&] {
            return shop.cell("select (select group_concat(id || article) from ArticleStock) || "
                             "(select group_concat(idlig || ',' || id) from DoseStock) || "
                             "(select group_concat(id || article) from Article)");
        };
        const QString before = stored();
        const AnswerBox boxes = AnswerBox::agreeing();
        const AnyWindow shown = makeWindow(window);
        QVERIFY(showActive(*shown));
        if (window == "FormVendelStockCalculation") {
            click(*shown, "btn_Display");
        } else {
            clickCell(*shown, qPrintable(shown->findChild<QTableView*>()->objectName()), 0, 1);
        }
        const QStringList rowsBefore = rows(*shown, name);
        QVERIFY(!rowsBefore.isEmpty());
        auto& view = child<QTableView>(*shown, name);
        clickCell(*shown, name, 0, 2);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Delete, Qt::Key_Backspace,
                 Qt::Key_F2, Qt::Key_Space}) {
            QTest::keyClick(&view, key);
        }
        QCOMPARE(boxes.said(), QStringList());
        QCOMPARE(stored(), before);
        QCOMPARE(rows(*shown, name), rowsBefore);
        QVERIFY(shown->isVisible());
        QVERIFY(shown->findChildren<QDialog*>().isEmpty());
        QVERIFY(view.findChildren<QLineEdit*>().isEmpty());
    }
};

VENDEL_TEST(TestEveryList)
#include "tst_EveryList.moc"
