// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
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

/// A key at \a moment, in ms.
void sendKey(QWidget& widget, QEvent::Type type, Qt::Key key, ulong moment)
{
    QKeyEvent event(type, key, Qt::NoModifier);
    event.setTimestamp(moment);
    QApplication::sendEvent(&widget, &event);
}
} // namespace

/// The sales screen without a mouse: Tab and Space work as everywhere, and a row's key does what a
/// click on it does.
class TestFormVendelKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void tabFollowsTheSale()
    {
        Till till;
        QVERIFY(till.field().hasFocus());
        QCOMPARE(tabOrder(till.window).join(' '),
            QString("txt_montant btn_12 btn_13 btn_Total_Ticket btn_Payer tableView1 tableView2 "
                    "btn_Effacer_Saisie btn_Afficher btn_Ticket chkbx_ToolTip btn_Effacer_Ticket "
                    "btn_1 btn_2 btn_3 btn_4 btn_5 btn_6 btn_7 btn_8 btn_9 btn_10 btn_11"));
    }

    void theSplashLeavesTheFocusToTheAmount()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        QTest::keyClick(&child<FormVendelStart>(window, "FormVendelStart"), Qt::Key_Escape);
        window.activateWindow();
        QTRY_COMPARE(QApplication::focusWidget(), &child<QWidget>(window, "txt_montant"));
    }

    void returnInTheFieldPressesNoButton()
    {
        Keyboard till;
        const AnswerBox box;
        till.field().setText("5");
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&till.field(), key);
        }
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3"}));
        QCOMPARE(till.field().text(), QString("5"));
        QVERIFY(!box.wasShown());
    }

    void anEmptiedAmountIsTypedAgain()
    {
        Keyboard till;
        till.field().setText("5");
        till.button("btn_Effacer_Saisie").setFocus();
        QTest::keyClick(&till.button("btn_Effacer_Saisie"), Qt::Key_Return);
        QCOMPARE(till.field().text(), QString());
        QVERIFY(till.field().hasFocus());
        for (const char* name : {"btn_12", "btn_13"}) {
            till.field().setText("  ");
            till.button(name).setFocus();
            const AnswerBox box;
            QTest::keyClick(&till.button(name), Qt::Key_Return);
            QVERIFY(box.wasShown());
            QVERIFY(till.field().text().isEmpty());
            QCOMPARE(till.window.focusWidget(), &till.field());
            till.window.activateWindow();
            QTRY_VERIFY(till.field().hasFocus());
        }
        // What stays can be put on the ticket again.
        till.field().setText("5");
        till.button("btn_12").setFocus();
        QTest::keyClick(&till.button("btn_12"), Qt::Key_Return);
        QVERIFY(till.button("btn_12").hasFocus());
    }

    void aHeldKeyOnAButtonSellsAndPaysOnce()
    {
        for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
            Keyboard till;
            till.setSwitch("1");
            till.field().setText("5");
            const AnswerBox box = AnswerBox::agreeing();
            for (const char* name : {"btn_12", "btn_Payer"}) {
                QPushButton& button = till.button(name);
                button.setFocus();
                sendKey(button, QEvent::KeyPress, key, 1000);
                for (const ulong moment : {1500UL, 1530UL}) {
                    sendKey(button, QEvent::KeyRelease, key, moment);
                    sendKey(button, QEvent::KeyPress, key, moment);
                }
                sendKey(button, QEvent::KeyRelease, key, 1600);
            }
            QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3", "---- 5"}));
            QCOMPARE(till.history(), QStringList({"1 Thé 1", "2 Vin 3", "0 ---- 5"}));
            QCOMPARE(box.titles(), QStringList("Payer"));
        }
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
        till.field().setFocus();
        QTest::keyClicks(&till.field(), "2,5");
        press(Qt::Key_Tab);
        press(Qt::Key_Enter);
        press(Qt::Key_Tab, 4);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        press(Qt::Key_Backtab, 2);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("btn_Total_Ticket"));
        press(Qt::Key_Return);
        QCOMPARE(
            till.names("tableView2"), QString("Thé|Vin|----|Vin|Total ticket|TVA 0.00%|TOTAL "));
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("btn_Payer"));
        press(Qt::Key_Return);
        QCOMPARE(till.history().size(), 4);
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
