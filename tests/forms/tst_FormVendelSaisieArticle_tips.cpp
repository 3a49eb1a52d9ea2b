// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/TestProgram.h"

#include <QMouseEvent>

/// The tips of the list's rows.
class TestFormVendelSaisieArticleTips : public QObject
{
    Q_OBJECT

private slots:
    void hoveringARowShowsItsTip()
    {
        ListedMenu editor("('<b>Cafe</b>', 1), ('The', 2)");
        hoverCell(editor.window, "tableView", 0, 2);
        QCOMPARE(tipText(),
            QString("Menu\nDblClick sur : <b>Cafe</b>\nPour l'afficher dans Article et Montant"));
        hoverCell(editor.window, "tableView", 1, 1);
        QCOMPARE(tipText(),
            QString("Menu\nDblClick sur : The\nPour l'afficher dans Article et Montant"));
        QVERIFY(tipStandsAt(editor.centreOf("tableView", 1, 1) + QPoint(350, 130)));
    }

    void emptyPlacesHaveNoTip()
    {
        ListedMenu editor("('Cafe', 1)");
        for (const QPoint empty : {QPoint(100, 400), QPoint(0, 0)}) {
            for (const QPoint beside : {QPoint(0, 1), QPoint(1, 0)}) {
                editor.moveOver("tableView", beside);
                QVERIFY(!tipText().isEmpty());
                editor.moveOver("tableView", empty);
                QTRY_VERIFY(tipText().isEmpty());
            }
        }
    }

    void onlyTheListIsWatchedAndNothingIsSwallowed()
    {
        ListedMenu editor("('Cafe', 1)");
        const QPoint point = editor.centreOf("tableView", 0, 2);
        QMouseEvent move(
            QEvent::MouseMove, point, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QVERIFY(!editor.window.eventFilter(&editor.list, &move));
        QVERIFY(tipText().isEmpty());
        QVERIFY(!editor.window.eventFilter(editor.list.viewport(), &move));
        QVERIFY(!tipText().isEmpty());
        QVERIFY(editor.list.viewport()->hasMouseTracking());
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleTips)
#include "tst_FormVendelSaisieArticle_tips.moc"
