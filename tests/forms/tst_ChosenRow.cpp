// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <utility>

namespace {
void clickFirst(QTableView& list, Qt::KeyboardModifiers modifiers)
{
    clickCell(*list.window(), qPrintable(list.objectName()), 0, 2, modifiers);
}

/// Walks with Tab from widget to widget until \a list has the focus.
void tabInto(QTableView& list)
{
    QWidget& window = *list.window();
    for (int step = 0; step < 30 && !list.hasFocus(); ++step) {
        QTest::keyClick(
            window.focusWidget() == nullptr ? &window : window.focusWidget(), Qt::Key_Tab);
    }
}

/// A way to make the first row of a list the current one without marking it.
using Way = void (*)(QTableView& list);
} // namespace
Q_DECLARE_METATYPE(Way)

namespace {
/// Whether the way of the running row leads to a first row of \a list that is current, not marked.
bool leadsToAFrameWithoutAMark(QTableView& list)
{
    QFETCH_GLOBAL(const Way, way);
    way(list);
    return list.hasFocus() && list.currentIndex().row() == 0
        && !list.selectionModel()->hasSelection();
}

constexpr auto noArticleChosen = "Supprimer: Selectionner un/des article(s) dans le menu";
} // namespace

/// A button means the row that the user has marked, never one that only has the keyboard's frame.
class TestChosenRow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<Way>("way");
        QTest::newRow("Tab into the list") << Way(tabInto);
        QTest::newRow("twice Ctrl and click") << Way([](QTableView& list) {
            clickFirst(list, Qt::ControlModifier);
            clickFirst(list, Qt::ControlModifier);
        });
        QTest::newRow("a click, then Ctrl and click") << Way([](QTableView& list) {
            clickFirst(list, Qt::NoModifier);
            clickFirst(list, Qt::ControlModifier);
        });
        QTest::newRow("a click, then Ctrl and space") << Way([](QTableView& list) {
            clickFirst(list, Qt::NoModifier);
            QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
        });
    }

    void removingOrRenamingAnArticleNeedsAMarkedRow()
    {
        for (const auto& [button, said] : {std::pair("btn_Supprimer", noArticleChosen),
                 std::pair(
                     "btn_Renommer", "Renommer: Selectionner 1 article dans le menu à renommer")}) {
            OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
            click(editor.window, "btn_Afficher");
            editor.type("txt_Article", "Eau");
            editor.type("txt_Montant", "4");
            QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(editor.window, "tableView")));
            QCOMPARE(saidAtClick(editor.window, button, QMessageBox::Yes), QStringList(said));
            QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        }
    }

    void removingAStockArticleNeedsAMarkedRow()
    {
        OpenStock at;
        child<QWidget>(at.window, "btn_Display").setFocus();
        QVERIFY(leadsToAFrameWithoutAMark(at.left));
        QCOMPARE(
            saidAtClick(at.window, "btn_Remove", QMessageBox::Yes), QStringList(noArticleChosen));
        QCOMPARE(at.articles(), QString("1,2,3"));
    }

    void movingALineNeedsAMarkedRow()
    {
        OpenTransfer at;
        clickCell(at.window, "tableView1", 0, 1);
        QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(at.window, "tableView2")));
        const AnswerBox box(QMessageBox::Yes);
        click(at.window, "btn_Modify");
        QCOMPARE(box.said(),
            QStringList("Modifier: Selectionner un/des composition(s) / dose(s) dans la list"));
        QVERIFY(box.isNoticeOf(at.window));
        QCOMPARE(at.cell("select id from DoseStock where idlig = 12"), QString("3"));
    }

    void theDeleteKeyNeedsAMarkedLine()
    {
        OpenStock at;
        at.mark(0);
        QVERIFY(leadsToAFrameWithoutAMark(at.right));
        QTest::keyClick(&at.right, Qt::Key_Delete);
        QCOMPARE(at.lines(), QString("10,11,12"));
    }
};

VENDEL_TEST(TestChosenRow)
#include "tst_ChosenRow.moc"
