// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

namespace {
/// A till with an article and a line of its ticket on the screen.
struct Keyboard : OpenTill
{
    Keyboard()
        : OpenTill("insert into Article (article, prix) values ('Thé', 1), ('Vin', 3);"
                   "insert into Ticket (id, article, prix) values (1, 'Thé', 1), (2, 'Vin', 3)")
    { }

    QPushButton& button(const char* name) { return child<QPushButton>(window, name); }
};
} // namespace

/// The sales screen without a mouse: Tab and Space work as everywhere, and a row's key does what a
/// click on it does.
class TestFormVendelKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void tabFollowsTheEye()
    {
        Keyboard till;
        till.list("tableView1").setFocus();
        QCOMPARE(tabOrder(till.window).join(' '),
            QString("tableView1 tableView2 txt_montant btn_Effacer_Saisie btn_Afficher "
                    "btn_Ticket btn_Effacer_Ticket btn_Total_Ticket btn_1 btn_2 btn_3 btn_4 "
                    "btn_5 btn_6 btn_7 btn_8 btn_9 btn_10 btn_11 btn_13 btn_12 btn_Payer "
                    "chkbx_ToolTip"));
    }

    void returnPressesNoButton()
    {
        Keyboard till;
        const AnswerBox box;
        till.field().setText("5");
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&till.field(), key);
            QTest::keyClick(&till.button("btn_Payer"), key);
        }
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3"}));
        QCOMPARE(till.field().text(), QString("5"));
        QVERIFY(!box.wasShown());
    }

    void aKeySellsTheCurrentArticleOnce()
    {
        Keyboard till;
        QTableView& menu = till.list("tableView1");
        menu.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&menu, Qt::Key_Return);
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Space);
        QTest::keyClick(&menu, Qt::Key_Enter);
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3", "Thé 1", "Vin 3", "Vin 3"}));
        QCOMPARE(till.names("tableView2"), QString("Thé|Vin|Thé|Vin|Vin"));
        QVERIFY(menu.hasFocus());
    }

    void aHeldKeySellsOneAndTakesOneOff()
    {
        Keyboard till;
        for (const auto* name : {"tableView1", "tableView2"}) {
            QTableView& list = till.list(name);
            list.setFocus();
            list.setCurrentIndex(list.model()->index(0, 2));
            QTest::keyPress(&list, Qt::Key_Return);
            for (int time = 0; time < 5; ++time) {
                constexpr bool isRepeat = true;
                qt_sendShortcutOverrideEvent(
                    &list, 0, Qt::Key_Return, Qt::NoModifier, QString(), isRepeat);
            }
            QTest::keyRelease(&list, Qt::Key_Return);
        }
        QCOMPARE(till.ticket(), QStringList({"Vin 3", "Thé 1"}));
    }

    void aKeyTakesTheCurrentLineOffTheTicket()
    {
        Keyboard till;
        QTableView& ticket = till.list("tableView2");
        ticket.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&ticket, Qt::Key_Down);
        QTest::keyClick(&ticket, Qt::Key_Space);
        QCOMPARE(till.ticket(), QStringList("Thé 1"));
        QTest::keyClick(&ticket, Qt::Key_Return);
        QCOMPARE(till.ticket(), QStringList());
        const AnswerBox box;
        QTest::keyClick(&ticket, Qt::Key_Return);
        QVERIFY(!box.wasShown());
    }

    void aKeyOnATotalTakesTheTotalsAway()
    {
        Keyboard till;
        click(till.window, "btn_Total_Ticket");
        QTableView& ticket = till.list("tableView2");
        ticket.setFocus();
        ticket.setCurrentIndex(ticket.model()->index(4, 2));
        QTest::keyClick(&ticket, Qt::Key_Return);
        QCOMPARE(till.names("tableView2"), QString("Thé|Vin"));
        QCOMPARE(ticket.currentIndex().row(), 1);
    }

    void aSaleNeedsNoMouse()
    {
        Keyboard till;
        till.setSwitch("0");
        const auto press = [](Qt::Key key, int times = 1) {
            for (int time = 0; time < times; ++time) {
                QTest::keyClick(QApplication::focusWidget(), key);
            }
        };
        till.list("tableView1").setFocus(Qt::TabFocusReason);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        press(Qt::Key_Tab, 6);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("btn_Total_Ticket"));
        press(Qt::Key_Space);
        press(Qt::Key_Tab, 14);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("btn_Payer"));
        press(Qt::Key_Space);
        QCOMPARE(till.history().size(), 2);
        QCOMPARE(till.ticket(), QStringList());
        const QPointer<FormVendelTicket> receipt = till.receipt();
        QVERIFY(receipt != nullptr);
        QTRY_VERIFY(receipt->isActiveWindow());
        press(Qt::Key_Escape);
        QTRY_VERIFY(receipt == nullptr);
    }

    void spacePressesTheButton()
    {
        Keyboard till;
        QTest::keyClick(&till.button("btn_7"), Qt::Key_Space);
        QTest::keyClick(&till.button("btn_12"), Qt::Key_Space);
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3", "---- 7"}));
    }

    void thereAreNoShortcuts()
    {
        Keyboard till;
        const auto actions = till.window.findChildren<QAction*>();
        QVERIFY(actions.size() >= 6);
        for (const QAction* action : actions) {
            QVERIFY(action->shortcut().isEmpty());
            QVERIFY(!action->text().contains('&'));
        }
        const auto buttons = till.window.findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            QVERIFY(button->shortcut().isEmpty());
        }
        QTest::keyClicks(&till.button("btn_Payer"), "12+");
        QCOMPARE(till.field().text(), QString());
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3"}));
    }
};

VENDEL_TEST(TestFormVendelKeyboard)
#include "tst_FormVendel_keyboard.moc"
