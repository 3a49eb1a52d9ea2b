// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"
#include "widgets/ListModel.h"
#include "widgets/Lists.h"
#include "widgets/RowKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTableView>

namespace {
/// A list of three rows, taking keys, that remembers what its keys acted on.
struct List
{
    QTableView view;
    ListModel model;
    QStringList acted;
    RowAction act = [this](const QModelIndex& index) { acted << index.data().toString(); };

    List()
    {
        constexpr Texts texts{"FormVendelMessages"};
        setUpList(view, model, texts, Messages::Messages127, {150});
        fill({"one", "two", "three"});
        onRowKeys(view, [this](const QModelIndex& index) { act(index); });
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view)) {
            qFatal("the list does not become active");
        }
    }

    void fill(const QStringList& rows)
    {
        clearList(model);
        appendRows(view, model, rows, [](const QString& row) { return QStringList(row); });
    }

    /// Moves the keyboard's frame to \a row and marks it.
    void goTo(int row) { view.setCurrentIndex(model.index(row, 0)); }
};

/// Return at \a moment, in ms.
void pressAt(QTableView& view, ulong moment)
{
    qt_sendShortcutOverrideEvent(&view, moment, Qt::Key_Return, Qt::NoModifier);
}

void releaseAt(QTableView& view, ulong moment)
{
    QKeyEvent event(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    event.setTimestamp(moment);
    QApplication::sendEvent(&view, &event);
}
} // namespace

/// What the mouse does to a row, a key does too.
class TestRowKeys : public QObject
{
    Q_OBJECT

private slots:
    void returnEnterAndSpaceActOnTheCurrentRow()
    {
        List list;
        list.goTo(0);
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(&list.view, key);
            QTest::keyClick(&list.view, Qt::Key_Down);
        }
        QCOMPARE(list.acted, QStringList({"one", "two", "three"}));
    }

    void otherKeysDoNotAct()
    {
        List list;
        list.goTo(1);
        for (const auto key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_Delete, Qt::Key_T, Qt::Key_Tab}) {
            QTest::keyClick(&list.view, key);
        }
        QTest::keyClick(&list.view, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(list.acted, QStringList());
    }

    void aHeldKeyActsOnce()
    {
        List list;
        list.goTo(0);
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyPress(&list.view, key);
            for (int time = 0; time < 3; ++time) {
                constexpr bool isRepeat = true;
                qt_sendShortcutOverrideEvent(
                    &list.view, 0, key, Qt::NoModifier, QString(), isRepeat);
            }
            QTest::keyRelease(&list.view, key);
        }
        QCOMPARE(list.acted, QStringList({"one", "one", "one"}));
    }

    void aKeyThatX11RepeatsActsOnce()
    {
        List list;
        list.goTo(0);
        pressAt(list.view, 1000);
        for (const ulong moment : {1500UL, 1530UL, 1560UL}) {
            releaseAt(list.view, moment);
            pressAt(list.view, moment);
        }
        releaseAt(list.view, 1590);
        QCOMPARE(list.acted, QStringList("one"));
        pressAt(list.view, 1640);
        releaseAt(list.view, 1700);
        QCOMPARE(list.acted, QStringList({"one", "one"}));
    }

    void withoutACurrentRowNothingHappens()
    {
        List list;
        list.fill({"four"});
        QVERIFY(!list.view.currentIndex().isValid());
        QTest::keyClick(&list.view, Qt::Key_Return);
        QCOMPARE(list.acted, QStringList());
    }

    void theKeyboardStaysAtItsPlaceInAListThatIsFilledAgain()
    {
        List list;
        QStringList left{"one", "two", "three"};
        list.act = [&](const QModelIndex& index) {
            left.removeAt(index.row());
            list.fill(left);
        };
        list.goTo(1);
        QTest::keyClick(&list.view, Qt::Key_Return);
        QCOMPARE(left, QStringList({"one", "three"}));
        QCOMPARE(list.view.currentIndex().data().toString(), QString("three"));
        QVERIFY(!list.view.selectionModel()->hasSelection());
        QTest::keyClick(&list.view, Qt::Key_Return);
        QCOMPARE(left, QStringList("one"));
        QCOMPARE(list.view.currentIndex().data().toString(), QString("one"));
        QTest::keyClick(&list.view, Qt::Key_Return);
        QCOMPARE(left, QStringList());
        QVERIFY(!list.view.currentIndex().isValid());
    }
};

VENDEL_TEST(TestRowKeys)
#include "tst_RowKeys.moc"
