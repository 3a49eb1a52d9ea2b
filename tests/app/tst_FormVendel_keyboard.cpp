// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QLineEdit>
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

/// The sales screen without a mouse: Tab and Space work as everywhere, and no key sells.
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

    void returnSellsNothing()
    {
        Keyboard till;
        const AnswerBox box;
        till.field().setText("5");
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&till.field(), key);
            for (const auto* name : {"tableView1", "tableView2"}) {
                QTableView& view = till.list(name);
                view.setCurrentIndex(view.model()->index(0, 2));
                QTest::keyClick(&view, key);
            }
            QTest::keyClick(&till.button("btn_Payer"), key);
        }
        QCOMPARE(till.ticket(), QStringList({"Thé 1", "Vin 3"}));
        QCOMPARE(till.field().text(), QString("5"));
        QVERIFY(!box.wasShown());
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
