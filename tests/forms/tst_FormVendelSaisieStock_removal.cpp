// SPDX-License-Identifier: MIT
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

#include <QPushButton>

/// Removing articles and lines of recipes in the stock editor.
class TestFormVendelSaisieStockRemoval : public QObject
{
    Q_OBJECT

private slots:
    void withoutASelectionAndACurrentRowItAsksForOne()
    {
        OpenStock at;
        const QStringList noneChosen("Supprimer: Selectionner un/des article(s) dans le menu");
        QCOMPARE(saidAtClick(at.window, "btn_Remove", QMessageBox::Yes), noneChosen);
        QCOMPARE(at.articles(), QString("1,2,3"));
        at.left.selectAll();
        at.left.selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
        const AnswerBox box(QMessageBox::Yes);
        CapturedOutput output;
        click(at.window, "btn_Remove");
        QCOMPARE(box.said(), noneChosen);
        QVERIFY(box.isNoticeOf(at.window));
        QCOMPARE(output.text(), QByteArray());
    }

    void noKeepsTheArticleThatTheQuestionNamesAsItIs()
    {
        OpenStock at("update ArticleStock set article = '<i>l''eau</i>' where id = 3");
        at.mark(0);
        const AnswerBox box(QMessageBox::No);
        click(at.window, "btn_Remove");
        QCOMPARE(
            box.said(), QStringList("Supprimer: Voulez-vous supprimer : <i>l'eau</i>, Périmé ..."));
        QVERIFY(box.isQuestionOf(at.window));
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(at.articles(), QString("1,2,3"));
        QCOMPARE(at.lines(), QString("10,11,12"));
        QCOMPARE(rowCount(at.window, "tableView1"), 3);
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }

    void aStrayKeyKeepsTheArticle()
    {
        OpenStock at;
        at.mark(0);
        const AnswerBox box(QMessageBox::Yes, [](QMessageBox& question) {
            QTest::keyClick(question.defaultButton(), Qt::Key_Return);
        });
        click(at.window, "btn_Remove");
        QVERIFY(box.isQuestionOf(at.window));
        QCOMPARE(at.articles(), QString("1,2,3"));
    }

    void yesRemovesTheArticleWithItsLines()
    {
        OpenStock at;
        at.mark(0);
        QCOMPARE(saidAtClick(at.window, "btn_Remove", QMessageBox::Yes),
            QStringList("Supprimer: Voulez-vous supprimer : Café, Valide ..."));
        QCOMPARE(at.articles(), QString("2,3"));
        QCOMPARE(at.lines(), QString("12"));
        QCOMPARE(at.cell("select count(*) from Article"), QString("2"));
        QCOMPARE(rowCount(at.window, "tableView1"), 2);
        QCOMPARE(rowCount(at.window, "tableView2"), 0);
    }

    void theLastArticleLeavesTheEmptyMessage()
    {
        OpenStock at("delete from ArticleStock where id < 3");
        at.mark(0);
        const AnswerBox boxes = AnswerBox::agreeing();
        click(at.window, "btn_Remove");
        QCOMPARE(boxes.said(),
            QStringList({"Supprimer: Voulez-vous supprimer : Sirop, Périmé ...",
                "Afficher: Aucun Article\nFaite Mise à jour"}));
        QCOMPARE(rowCount(at.window, "tableView1"), 0);
    }

    void linesGoBeforeTheirArticle()
    {
        OpenStock at("create trigger orphans before delete on ArticleStock when exists (select 1 "
                     "from DoseStock where id = old.id) begin select raise(abort, 'orphans'); end");
        at.mark(0);
        saidAtClick(at.window, "btn_Remove", QMessageBox::Yes);
        QCOMPARE(at.articles(), QString("2,3"));
    }

    void onlyTheCurrentRowIsRemoved()
    {
        OpenStock at;
        at.mark(0);
        clickCell(at.window, "tableView1", 2, 1, Qt::ShiftModifier);
        QCOMPARE(at.left.selectionModel()->selectedIndexes().size(), 3);
        QCOMPARE(saidAtClick(at.window, "btn_Remove", QMessageBox::Yes),
            QStringList("Supprimer: Voulez-vous supprimer : Thé, Valide ..."));
        QCOMPARE(at.articles(), QString("1,3"));
    }

    void aDoubleClickRemovesALineAtOnce()
    {
        OpenStock at;
        at.mark(0);
        const AnswerBox box;
        doubleClickCell(at.window, "tableView2", 0, 3);
        QVERIFY(!box.wasShown());
        QCOMPARE(at.lines(), QString("10,12"));
        QCOMPARE(rows(at.window, "tableView2"), QStringList("10|1|Lait|1.50|cl"));
    }

    void deleteRemovesALineInTheRecipeOnly()
    {
        OpenStock at;
        at.mark(0);
        clickCell(at.window, "tableView2", 1, 2);
        for (const char* name :
            {"tableView1", "btn_Display", "btn_Update", "btn_Remove", "btn_Cut_Paste"}) {
            child<QWidget>(at.window, name).setFocus();
            QTest::keyClick(&child<QWidget>(at.window, name), Qt::Key_Delete);
            QVERIFY2(at.lines() == "10,11,12", name);
        }
        // By name Grains (11) comes first, Lait (10) second.
        at.right.setFocus();
        QTest::keyClick(&at.right, Qt::Key_Delete);
        QCOMPARE(at.lines(), QString("11,12"));
    }

    void deleteRemovesTheCurrentLineOnly()
    {
        OpenStock at;
        at.mark(0);
        clickCell(at.window, "tableView2", 0, 2);
        QTest::keyClick(&at.right, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(at.right.selectionModel()->selectedIndexes().size(), 2);
        QTest::keyClick(&at.right, Qt::Key_Delete);
        QCOMPARE(at.lines(), QString("11,12"));
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }

    void aHeldDeleteKeyRemovesOneLine()
    {
        OpenStock at;
        at.mark(0);
        clickCell(at.window, "tableView2", 0, 2);
        constexpr bool isRepeat = true;
        qt_sendShortcutOverrideEvent(
            &at.right, 0, Qt::Key_Delete, Qt::NoModifier, QString(), isRepeat);
        QCOMPARE(at.lines(), QString("10,11,12"));
        qt_sendShortcutOverrideEvent(&at.right, 0, Qt::Key_Delete, Qt::NoModifier);
        QCOMPARE(at.lines(), QString("10,12"));
    }

    void anUnselectedLineStays()
    {
        OpenStock at;
        at.mark(0);
        for (const QModelIndex& line : {at.right.model()->index(0, 2), QModelIndex()}) {
            QVERIFY(QMetaObject::invokeMethod(
                &at.window, "on_tableView2_doubleClicked", Q_ARG(QModelIndex, line)));
            QCOMPARE(at.lines(), QString("10,11,12"));
        }
    }
};

VENDEL_TEST(TestFormVendelSaisieStockRemoval)
#include "tst_FormVendelSaisieStock_removal.moc"
