// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QLabel>

/// The list of stock articles, and the windows that open over it.
class TestFormVendelSaisieStockArticles : public QObject
{
    Q_OBJECT

private slots:
    void staysEmptyUntilAsked()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        QCOMPARE(rowCount(stock, "tableView1"), 0);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
        QCOMPARE(saidAtClick(stock, "btn_Remove"),
            QStringList("Afficher: Aucun Article\nFaite Mise à jour"));
        QCOMPARE(rowCount(stock, "tableView1"), 0);
        click(stock, "btn_Display");
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
    }

    void anEmptyStockSaysSoWhenItIsDisplayedAndWhenAnArticleIsRemoved()
    {
        OpenStock at;
        at.sql("delete from ArticleStock");
        for (const char* button : {"btn_Display", "btn_Remove"}) {
            const AnswerBox box;
            click(at.window, button);
            QCOMPARE(box.said(), QStringList("Afficher: Aucun Article\nFaite Mise à jour"));
            QVERIFY2(box.isNoticeOf(at.window), button);
            QCOMPARE(rowCount(at.window, "tableView1"), 0);
        }
    }

    void listsArticlesByNameAndMarksTheWithdrawn()
    {
        const Shop shop;
        shop.fill("insert into Article (id, article, prix) values (1, 'b', 1), (3, 'C', 1);"
                  "insert into ArticleStock values (1, 'b'), (2, 'A'), (3, 'C'), (4, '<b>d</b>')");
        FormVendelSaisieStock stock;
        click(stock, "btn_Display");
        QCOMPARE(rows(stock, "tableView1"),
            QStringList({"4|<b>d</b>|Périmé", "2|A|Périmé", "1|b|Valide", "3|C|Valide"}));
        shop.sql("delete from Article where id = 3");
        click(stock, "btn_Display");
        QCOMPARE(rows(stock, "tableView1"),
            QStringList({"4|<b>d</b>|Périmé", "2|A|Périmé", "1|b|Valide", "3|C|Périmé"}));
    }

    void theFlagOfDisplayChangesNothing()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        for (const bool flag : {false, true}) {
            stock.Display(flag);
            QCOMPARE(rowCount(stock, "tableView1"), 3);
        }
    }

    void aWithdrawnIdBeyondAnIntLeavesItsMarkOut()
    {
        const Shop shop;
        shop.sql("insert into ArticleStock values (3000000000, 'Sirop')");
        FormVendelSaisieStock stock;
        const CapturedLog log;
        click(stock, "btn_Display");
        QCOMPARE(rows(stock, "tableView1"), QStringList("3000000000|Sirop|Valide"));
        QCOMPARE(log.criticals(), QStringList("Errors FormVendelSaisieStock Display : stoi"));
    }

    void theValidityIsTranslated()
    {
        const MarkedContext texts("FormVendelSaisieStockMessages");
        OpenStock at;
        QCOMPARE(rowTexts(at.window, "tableView1", 0).at(2),
            QString("FormVendelSaisieStockMessages:Valide"));
    }

    void aDoubleClickComposes()
    {
        OpenStock at;
        doubleClickCell(at.window, "tableView1", 1, 2);
        const auto windows = at.window.findChildren<FormVendelSaisieStockComposition*>();
        QCOMPARE(windows.size(), 1);
        QVERIFY(windows.front()->isVisible());
        QVERIFY(windows.front()->testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(child<QLabel>(*windows.front(), "lbl_Article").text(), QString("Sirop"));
    }

    void returnComposesInTheListOnly()
    {
        for (const char* name : {"tableView1", "tableView2"}) {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                OpenStock at;
                at.mark(0);
                clickCell(at.window, "tableView2", 1, 2);
                auto& widget = child<QWidget>(at.window, name);
                widget.setFocus();
                QTest::keyClick(&widget, key);
                const auto windows = at.window.findChildren<QDialog*>();
                QVERIFY2(windows.size() == (&widget == &at.left ? 1 : 0), name);
                for (auto* composition : windows) {
                    QCOMPARE(child<QLabel>(*composition, "lbl_Article").text(), QString("Café"));
                }
                QCOMPARE(at.lines(), QString("10,11,12"));
                // Listed again, no article would be marked.
                QVERIFY2(at.left.selectionModel()->hasSelection(), name);
            }
        }
    }

    void tabLeavesALine()
    {
        OpenStock at;
        at.mark(0);
        QTest::keyClick(&at.left, Qt::Key_Tab);
        QCOMPARE(at.window.focusWidget(), &at.right);
    }

    void opensTheOtherStockWindows()
    {
        OpenStock at;
        click(at.window, "btn_Update");
        auto* update = at.window.findChild<FormVendelSaisieStockMaj*>();
        QVERIFY(update != nullptr);
        QVERIFY(update->isVisible());
        QVERIFY(update->isModal());
        update->close();
        QTRY_VERIFY(at.window.findChildren<QDialog*>().isEmpty());
        click(at.window, "btn_Cut_Paste");
        QVERIFY(at.window.findChild<FormVendelSaisieStockCutPaste*>()->isVisible());
    }
};

VENDEL_TEST(TestFormVendelSaisieStockArticles)
#include "tst_FormVendelSaisieStock_articles.moc"
