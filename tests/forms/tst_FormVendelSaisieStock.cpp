// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QPushButton>

class TestFormVendelSaisieStock : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheStockEditor()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelSaisieStock stock;
        QCOMPARE(stock.size(), QSize(904, 531));
        QCOMPARE(stock.minimumSize(), QSize(904, 531));
        QCOMPARE(stock.maximumSize(), QSize(904, 531));
        QCOMPARE(stock.windowModality(), Qt::WindowModal);
        QCOMPARE(stock.windowTitle(), QString("Saisie Stock"));
        QCOMPARE(child<QPushButton>(stock, "btn_Display").text(), QString("Afficher"));
        QCOMPARE(child<QPushButton>(stock, "btn_Update").text(), QString("Mise à Jour"));
        QCOMPARE(child<QPushButton>(stock, "btn_Remove").text(), QString("Supprimer"));
        QCOMPARE(child<QPushButton>(stock, "btn_Cut_Paste").text(), QString("Couper /\nColler"));
        QVERIFY(!anyAutoDefault(stock));

        const auto& articles = child<QTableView>(stock, "tableView1");
        QCOMPARE(labels(articles), cells({"#", "Article", "Validité"}));
        QCOMPARE(widths(articles), std::vector({50, 210, 110}));
        QVERIFY(looksLikeAList(articles));
        const auto& recipe = child<QTableView>(stock, "tableView2");
        QCOMPARE(labels(recipe), cells({"#", "id", "Composition", "Dose", "Unité"}));
        QCOMPARE(widths(recipe), std::vector({50, 180, 90, 50}));
        QVERIFY(recipe.isColumnHidden(1));
        QVERIFY(looksLikeAList(recipe));
        QCOMPARE(log.warnings(), QStringList());
    }

    void staysEmptyUntilAsked()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        QCOMPARE(rowCount(stock, "tableView1"), 0);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
        click(stock, "btn_Display");
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
    }

    void anEmptyStockSaysSo()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.Display(true);
        shop.sql("delete from ArticleStock");
        const AnswerBox box;
        click(stock, "btn_Display");
        QCOMPARE(box.text(), QString("Aucun Article\nFaite Mise à jour"));
        QCOMPARE(box.title(), QString("Afficher"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &stock);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowCount(stock, "tableView1"), 0);
    }

    void listsArticlesByNameAndMarksTheWithdrawn()
    {
        const Shop shop;
        shop.sql("insert into Article (id, article, prix) values (1, 'b', 1), (3, 'C', 1)");
        shop.sql("insert into ArticleStock values (1, 'b'), (2, 'A'), (3, 'C'), (4, '<b>d</b>')");
        FormVendelSaisieStock stock;
        click(stock, "btn_Display");
        QCOMPARE(rowCount(stock, "tableView1"), 4);
        QCOMPARE(rowTexts(stock, "tableView1", 0), cells({"4", "<b>d</b>", "Périmé"}));
        QCOMPARE(rowTexts(stock, "tableView1", 1), cells({"2", "A", "Périmé"}));
        QCOMPARE(rowTexts(stock, "tableView1", 2), cells({"1", "b", "Valide"}));
        QCOMPARE(rowTexts(stock, "tableView1", 3), cells({"3", "C", "Valide"}));

        shop.sql("delete from Article where id = 3");
        click(stock, "btn_Display");
        QCOMPARE(rowCount(stock, "tableView1"), 4);
        QCOMPARE(rowTexts(stock, "tableView1", 3), cells({"3", "C", "Périmé"}));
    }

    void theFlagOfDisplayChangesNothing()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.Display(false);
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        stock.Display(true);
        QCOMPARE(rowCount(stock, "tableView1"), 3);
    }

    void aWithdrawnIdBeyondAnIntLeavesItsMarkOut()
    {
        const Shop shop;
        shop.sql("insert into ArticleStock values (3000000000, 'Sirop')");
        FormVendelSaisieStock stock;
        const CapturedLog log;
        click(stock, "btn_Display");
        QCOMPARE(rowTexts(stock, "tableView1", 0), cells({"3000000000", "Sirop", "Valide"}));
        QCOMPARE(log.criticals(), cells({"Errors FormVendelSaisieStock Display : stoi"}));
    }

    void aClickShowsTheRecipe()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        QCOMPARE(rowCount(stock, "tableView2"), 2);
        QCOMPARE(rowTexts(stock, "tableView2", 0), cells({"11", "1", "Grains", "7.00", "g"}));
        QCOMPARE(rowTexts(stock, "tableView2", 1), cells({"10", "1", "Lait", "1.50", "cl"}));
        clickCell(stock, "tableView1", 2, 2);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
        clickCell(stock, "tableView1", 1, 0);
        QCOMPARE(rowCount(stock, "tableView2"), 1);
        QCOMPARE(rowTexts(stock, "tableView2", 0), cells({"12", "3", "Menthe", "3.00", "cl"}));
    }

    void arrowKeysShowTheRecipe()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        auto& articles = child<QTableView>(stock, "tableView1");
        clickCell(stock, "tableView1", 0, 1);
        QTest::keyClick(&articles, Qt::Key_Down);
        QCOMPARE(rowCount(stock, "tableView2"), 1);
        QCOMPARE(rowTexts(stock, "tableView2", 0).at(2), QString("Menthe"));
        QTest::keyClick(&articles, Qt::Key_Up);
        QCOMPARE(rowCount(stock, "tableView2"), 2);
    }

    void anUnselectedArticleShowsNothing()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        auto& articles = child<QTableView>(stock, "tableView1");
        const QModelIndex withdrawn = articles.model()->index(1, 1);
        QVERIFY(QMetaObject::invokeMethod(
            &stock, "on_tableView1_clicked", Q_ARG(QModelIndex, withdrawn)));
        articles.selectionModel()->setCurrentIndex(withdrawn, QItemSelectionModel::NoUpdate);
        QCOMPARE(rowCount(stock, "tableView2"), 2);
    }

    void dosesAreShownWithTwoDecimals_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("decimals are filled up") << QString("1.5") << QString("1.50");
        QTest::newRow("whole") << QString("12") << QString("12.00");
        QTest::newRow("grouped") << QString("1234.5") << QString("1,234.50");
        QTest::newRow("double precision") << QString("16777217.25") << QString("16,777,217.25");
        QTest::newRow("negative") << QString("-0.25") << QString("-0.25");
        QTest::newRow("text stays") << QString("'une pincée'") << QString("une pincée");
    }

    void dosesAreShownWithTwoDecimals()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, shown);
        const StockSample shop;
        shop.sql(QString("update DoseStock set dose = %1 where idlig = 12")
                     .arg(stored)
                     .toUtf8()
                     .constData());
        FormVendelSaisieStock stock;
        stock.Display_DoseStock(QString("3"));
        QCOMPARE(rowTexts(stock, "tableView2", 0),
            cells({"12", "3", "Menthe", qUtf8Printable(shown), "cl"}));
    }

    void clearListEmptiesTheRecipe()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.Display_DoseStock(QString("1"));
        stock.Clear_List();
        QCOMPARE(rowCount(stock, "tableView2"), 0);
        QCOMPARE(widths(child<QTableView>(stock, "tableView2")), std::vector({50, 180, 90, 50}));
    }

    void aDoubleClickComposes()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        stock.Display(true);
        doubleClickCell(stock, "tableView1", 1, 2);
        const auto windows = stock.findChildren<FormVendelSaisieStockComposition*>();
        QCOMPARE(windows.size(), 1);
        QVERIFY(windows.front()->isVisible());
        QVERIFY(windows.front()->testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(child<QLabel>(*windows.front(), "lbl_Article").text(), QString("Sirop"));
    }

    void returnAndEnterCompose()
    {
        const StockSample shop;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            FormVendelSaisieStock stock;
            QVERIFY(showActive(stock));
            stock.Display(true);
            clickCell(stock, "tableView1", 0, 1);
            QTest::keyClick(&child<QTableView>(stock, "tableView1"), key);
            const auto windows = stock.findChildren<FormVendelSaisieStockComposition*>();
            QCOMPARE(windows.size(), 1);
            QCOMPARE(child<QLabel>(*windows.front(), "lbl_Article").text(), QString("Café"));
        }
    }

    void returnPressesNoButton()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        child<QTableView>(stock, "tableView1").setFocus();
        const AnswerBox box;
        QTest::keyClick(&child<QTableView>(stock, "tableView1"), Qt::Key_Return);
        child<QTableView>(stock, "tableView2").setFocus();
        QTest::keyClick(&child<QTableView>(stock, "tableView2"), Qt::Key_Return);
        QCOMPARE(rowCount(stock, "tableView1"), 0);
        QVERIFY(stock.findChildren<QDialog*>().isEmpty());
        QVERIFY(!box.wasShown());
        QVERIFY(stock.isVisible());
    }

    void tabLeavesALine()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        QTest::keyClick(&child<QTableView>(stock, "tableView1"), Qt::Key_Tab);
        QCOMPARE(stock.focusWidget(), &child<QTableView>(stock, "tableView2"));
    }

    void opensTheOtherStockWindows()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        click(stock, "btn_Update");
        auto* update = stock.findChild<FormVendelSaisieStockMaj*>();
        QVERIFY(update != nullptr);
        QVERIFY(update->isVisible());
        QVERIFY(update->isModal());
        update->close();
        QTRY_VERIFY(stock.findChildren<QDialog*>().isEmpty());
        click(stock, "btn_Cut_Paste");
        QVERIFY(stock.findChild<FormVendelSaisieStockCutPaste*>()->isVisible());
    }

    void textsAreTranslatedInTheirContexts()
    {
        const StockSample shop;
        {
            const MarkedContext captions("FormVendelSaisieStock");
            FormVendelSaisieStock stock;
            QCOMPARE(stock.windowTitle(), QString("FormVendelSaisieStock:Saisie Stock"));
            QCOMPARE(child<QPushButton>(stock, "btn_Remove").text(),
                QString("FormVendelSaisieStock:Supprimer"));
        }
        const MarkedContext texts("FormVendelSaisieStockMessages");
        FormVendelSaisieStock stock;
        stock.Display(true);
        QCOMPARE(stock.windowTitle(), QString("FormVendelSaisieStockMessages:Saisie Stock"));
        QCOMPARE(labels(child<QTableView>(stock, "tableView1")).at(1),
            QString("FormVendelSaisieStockMessages:Article"));
        QCOMPARE(rowTexts(stock, "tableView1", 0).at(2),
            QString("FormVendelSaisieStockMessages:Valide"));
        const AnswerBox box;
        click(stock, "btn_Remove");
        QCOMPARE(box.title(), QString("FormVendelSaisieStockMessages:Supprimer"));
    }

    void troubleIsLogged()
    {
        const StockSample shop;
        const CapturedLog log;
        {
            const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelSaisieStock");
            FormVendelSaisieStock broken;
        }
        FormVendelSaisieStock stock;
        stock.Display(true);
        {
            const FailingEvent trouble(QEvent::Show, "FormVendelSaisieStockMaj");
            click(stock, "btn_Update");
        }
        {
            const FailingEvent trouble(QEvent::Show, "FormVendelSaisieStockCutPaste");
            click(stock, "btn_Cut_Paste");
        }
        FailingModel unreadable;
        auto& articles = child<QTableView>(stock, "tableView1");
        articles.setModel(&unreadable);
        const QModelIndex index = unreadable.index(0, 0);
        articles.selectionModel()->select(index, QItemSelectionModel::Select);
        articles.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        const auto call = [&](const char* slot) {
            QMetaObject::invokeMethod(&stock, slot, Q_ARG(QModelIndex, index));
        };
        call("on_tableView1_doubleClicked");
        call("on_tableView1_clicked");
        QMetaObject::invokeMethod(
            &stock, "on_tableViewSelection", Q_ARG(QModelIndex, index), Q_ARG(QModelIndex, index));
        click(stock, "btn_Remove");
        auto& recipe = child<QTableView>(stock, "tableView2");
        recipe.setModel(&unreadable);
        recipe.selectionModel()->select(index, QItemSelectionModel::Select);
        call("on_tableView2_doubleClicked");
        shop.sql("drop table DoseStock");
        shop.sql("create table DoseStock (id, composition)");
        shop.sql("insert into DoseStock values (1, 'Lait')");
        stock.Display_DoseStock(QString("1"));

        QCOMPARE(log.criticals().mid(0, 8),
            cells({"Errors FormVendelSaisieStock Contructor : trouble",
                "Errors FormVendelSaisieStock on_btn_Update_clicked : trouble",
                "Errors FormVendelSaisieStock on_btn_Cut_Paste_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableView1_doubleClicked : trouble",
                "Errors FormVendelSaisieStock on_tableView1_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableViewSelection : trouble",
                "Errors FormVendelSaisieStock on_btn_Remove_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableView2_doubleClicked : trouble"}));
        QCOMPARE(log.criticals().size(), 9);
        QVERIFY(log.criticals().constLast().startsWith(
            QLatin1String("Errors FormVendelSaisieStock Display_DoseStock : ")));
    }
};

VENDEL_TEST(TestFormVendelSaisieStock)
#include "tst_FormVendelSaisieStock.moc"
