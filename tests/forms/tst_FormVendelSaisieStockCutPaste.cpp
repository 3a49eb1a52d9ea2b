// SPDX-License-Identifier: MIT
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QComboBox>

namespace {
/// The transfer window, the recipe of Sirop shown and its line marked.
struct Moving : OpenTransfer
{
    explicit Moving(const char* change = "")
        : OpenTransfer(change)
    {
        clickCell(window, "tableView1", rowCount(window, "tableView1") - 1, 1);
        clickCell(window, "tableView2", 0, 2);
    }

    QComboBox& targets() { return child<QComboBox>(window, "cbx_Article"); }

    /// Clicks "Modifier" and answers; what is said then.
    QStringList modify(QMessageBox::StandardButton answer)
    {
        return saidAtClick(window, "btn_Modify", answer);
    }

    /// The stock article that the line of Sirop belongs to.
    QString owner() const { return cell("select id from DoseStock where idlig = 12"); }
};
} // namespace

class TestFormVendelSaisieStockCutPaste : public QObject
{
    Q_OBJECT

private slots:
    void offersTheArticlesOfTheMenuAndListsTheOthers()
    {
        OpenTransfer at("insert into ArticleStock values (5, 'Ancien'), (1000, 'hors menu')");
        const auto& targets = child<QComboBox>(at.window, "cbx_Article");
        QCOMPARE(targets.count(), 2);
        QCOMPARE(targets.itemText(0), QString("1, Café, Valide"));
        QCOMPARE(targets.itemText(1), QString("2, Thé, Valide"));
        QCOMPARE(rows(at.window, "tableView1"),
            QStringList({"5|Ancien|Périmé", "1000|hors menu|Périmé", "3|Sirop|Périmé"}));
        QCOMPARE(rowCount(at.window, "tableView2"), 0);
    }

    void displayFillsTheListAgain()
    {
        OpenTransfer at;
        at.sql("delete from Article where id = 2");
        at.window.Display();
        QCOMPARE(rows(at.window, "tableView1"), QStringList({"3|Sirop|Périmé", "2|Thé|Périmé"}));
    }

    void selectingAWithdrawnArticleShowsItsRecipe()
    {
        OpenTransfer at("insert into ArticleStock values (5, 'Ancien');"
                        "insert into DoseStock values (13, 5, 'Zeste', 1234.5, 'g'),"
                        " (14, 5, 'Eau', 2, 'cl')");
        clickCell(at.window, "tableView1", 0, 2);
        QCOMPARE(rows(at.window, "tableView2"),
            QStringList({"14|5|Eau|2.00|cl", "13|5|Zeste|1,234.50|g"}));
        auto& articles = child<QTableView>(at.window, "tableView1");
        QTest::keyClick(&articles, Qt::Key_Down);
        QCOMPARE(rows(at.window, "tableView2"), QStringList("12|3|Menthe|3.00|cl"));

        articles.selectionModel()->setCurrentIndex(
            articles.model()->index(0, 1), QItemSelectionModel::NoUpdate);
        QCOMPARE(rows(at.window, "tableView2"), QStringList("12|3|Menthe|3.00|cl"));
    }

    void withoutLinesThereIsNothingToMove()
    {
        OpenTransfer at("delete from ArticleStock; delete from Article");
        QCOMPARE(rowCount(at.window, "tableView1"), 0);
        const AnswerBox box;
        click(at.window, "btn_Modify");
        QCOMPARE(box.said(), QStringList("Modifier: Vous n'avez rien à couper / coller"));
        QVERIFY(box.isNoticeOf(at.window));
    }

    void withoutASelectionItAsksForOne()
    {
        OpenTransfer at;
        clickCell(at.window, "tableView1", 0, 1);
        QCOMPARE(saidAtClick(at.window, "btn_Modify", QMessageBox::Yes),
            QStringList("Modifier: Selectionner un/des composition(s) / dose(s) dans la list"));
    }

    void noMovesNothingAndTheQuestionShowsNamesAsTheyAre()
    {
        Moving at("update ArticleStock set article = '<b>l''eau</b>' where id = 1;"
                  "update DoseStock set composition = '<i>l''anis</i>' where idlig = 12");
        const AnswerBox box(QMessageBox::No);
        click(at.window, "btn_Modify");
        QCOMPARE(box.said(),
            QStringList("Modifier: Voulez-vous modifier : <i>l'anis</i> ... dans  <b>l'eau</b>,  "
                        "Valide"));
        QVERIFY(box.isQuestionOf(at.window));
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(at.owner(), QString("3"));
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }

    void yesMovesTheLineAndEmptiesTheEditorsRecipe()
    {
        Moving at;
        at.stock.Display_DoseStock("3");
        at.stock.Display(true);
        at.targets().setCurrentIndex(1);
        QCOMPARE(at.modify(QMessageBox::Yes),
            QStringList("Modifier: Voulez-vous modifier : Menthe ... dans  Thé,  Valide"));
        QCOMPARE(at.owner(), QString("2"));
        QCOMPARE(rowCount(at.window, "tableView2"), 0);
        QCOMPARE(rowCount(at.window, "tableView1"), 1);
        QCOMPARE(rowCount(at.stock, "tableView2"), 0);
        QCOMPARE(rowCount(at.stock, "tableView1"), 3);
        QVERIFY(at.window.isVisible());
    }

    void onlyTheCurrentRowIsMoved()
    {
        Moving at("insert into DoseStock values (13, 3, 'Eau', 1, 'cl'), (14, 3, 'Sucre', 1, 'g')");
        clickCell(at.window, "tableView2", 1, 2, Qt::ShiftModifier);
        const auto& recipe = child<QTableView>(at.window, "tableView2");
        QCOMPARE(recipe.selectionModel()->selectedIndexes().size(), 2);
        QCOMPARE(at.modify(QMessageBox::Yes),
            QStringList("Modifier: Voulez-vous modifier : Menthe ... dans  Café,  Valide"));
        QCOMPARE(
            at.cell("select group_concat(idlig) from DoseStock where id = 3"), QString("13,14"));
        QCOMPARE(rowCount(at.window, "tableView2"), 2);
    }

    void theQuestionCutsANameAtItsCommas()
    {
        Moving at("update ArticleStock set article = 'Café, crème' where id = 1");
        QCOMPARE(at.targets().itemText(0), QString("1, Café, crème, Valide"));
        QCOMPARE(at.modify(QMessageBox::Yes),
            QStringList("Modifier: Voulez-vous modifier : Menthe ... dans  Café,  crème"));
        QCOMPARE(at.owner(), QString("1"));
    }

    void withoutATargetNothingMoves()
    {
        // Café, Sirop and Thé are withdrawn then, and Sirop is the second.
        OpenTransfer at("delete from Article");
        QCOMPARE(child<QComboBox>(at.window, "cbx_Article").currentText(), QString());
        clickCell(at.window, "tableView1", 1, 1);
        clickCell(at.window, "tableView2", 0, 2);
        CapturedOutput output;
        const QStringList said = saidAtClick(at.window, "btn_Modify", QMessageBox::Yes);
        QCOMPARE(output.text(),
            databaseReport(
                "update DoseStock set id =  where idlig = 12", "near \"where\": syntax error"));
        QCOMPARE(said, QStringList("Modifier: Voulez-vous modifier : Menthe ... dans , "));
        QCOMPARE(at.cell("select id from DoseStock where idlig = 12"), QString("3"));
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }

    void aMovedLineOutlivesItsFormerArticle()
    {
        Moving at;
        at.modify(QMessageBox::Yes);
        at.window.close();
        at.stock.show();
        at.stock.Display(true);
        clickCell(at.stock, "tableView1", 1, 1);
        QCOMPARE(saidAtClick(at.stock, "btn_Remove", QMessageBox::Yes),
            QStringList("Supprimer: Voulez-vous supprimer : Sirop, Périmé ..."));
        QCOMPARE(at.owner(), QString("1"));
    }

    void theValidityIsTranslated()
    {
        const MarkedContext texts("FormVendelSaisieStockCutPasteMessages");
        Moving at;
        QCOMPARE(at.targets().itemText(0),
            QString("1, Café, FormVendelSaisieStockCutPasteMessages:Valide"));
        QCOMPARE(rows(at.window, "tableView1"),
            QStringList("3|Sirop|FormVendelSaisieStockCutPasteMessages:Périmé"));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockCutPaste)
#include "tst_FormVendelSaisieStockCutPaste.moc"
