// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QLineEdit>
#include <QTableView>

namespace {
struct Keypad : Till
{
    using Till::Till;

    QLineEdit& field()
    {
        return child<QLineEdit>(window, "txt_montant");
    }

    void plus(const QString& amount)
    {
        field().setText(amount);
        click(window, "btn_12");
    }

    void minus(const QString& amount)
    {
        field().setText(amount);
        click(window, "btn_13");
    }

    DbRows stored() const
    {
        return shop.sql("select id, article, prix from Ticket");
    }
};
} // namespace

class TestFormVendelKeypad : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyAppendsItsDigit()
    {
        Keypad keypad;
        QString expected;
        const auto press = [&](const char* key, const char* text) {
            click(keypad.window, key);
            expected += QString::fromLatin1(text);
            QCOMPARE(keypad.field().text(), expected);
        };
        press("btn_1", "1");
        press("btn_2", "2");
        press("btn_3", "3");
        press("btn_4", "4");
        press("btn_5", "5");
        press("btn_6", "6");
        press("btn_7", "7");
        press("btn_8", "8");
        press("btn_9", "9");
        press("btn_10", "0");
        press("btn_11", ",");
        press("btn_1", "1");
    }

    void keysAppendAtTheEndWhereverTheCursorStands()
    {
        Keypad keypad;
        keypad.field().setText(QString("12"));
        keypad.field().setCursorPosition(0);
        click(keypad.window, "btn_3");
        QCOMPARE(keypad.field().text(), QString("123"));
        keypad.field().selectAll();
        click(keypad.window, "btn_11");
        QCOMPARE(keypad.field().text(), QString("123,"));
    }

    void keysCheckNothing()
    {
        Keypad keypad;
        for (const auto* key : {"btn_11", "btn_11", "btn_10", "btn_10"}) {
            click(keypad.window, key);
        }
        QCOMPARE(keypad.field().text(), QString(",,00"));
    }

    void theSeparatorFollowsTheTranslation()
    {
        Translation translation;
        translation.add(QString("FormVendelMessages"), QString(","), QString("."));
        Keypad keypad;
        for (const auto* key : {"btn_1", "btn_11", "btn_5"}) {
            click(keypad.window, key);
        }
        QCOMPARE(keypad.field().text(), QString("1.5"));
        click(keypad.window, "btn_12");
        QCOMPARE(keypad.stored(), (DbRows{{"0", "----", "1.5"}}));
    }

    void theFieldIsCleared()
    {
        Keypad keypad;
        keypad.field().setText(QString("12,5"));
        click(keypad.window, "btn_Effacer_Saisie");
        QCOMPARE(keypad.field().text(), QString());
        click(keypad.window, "btn_Effacer_Saisie");
        QCOMPARE(keypad.field().text(), QString());
    }

    void theFieldIsTypedInto()
    {
        Keypad keypad;
        QTest::keyClicks(&keypad.field(), QString("12,5"));
        click(keypad.window, "btn_12");
        QCOMPARE(keypad.stored(), (DbRows{{"0", "----", "12.5"}}));
    }

    void plusAddsAnAmount()
    {
        Keypad keypad("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        AnswerBox box;
        keypad.plus(QString("12,5"));
        QCOMPARE(keypad.stored(), (DbRows{{"1", "Thé", "1"}, {"0", "----", "12.5"}}));
        QCOMPARE(rowTexts(keypad.window, "tableView2", 1).join(';'), QString("2;0;----;12.50$"));
        QCOMPARE(keypad.names("tableView2"), QString("Thé|----"));
        QCOMPARE(keypad.field().text(), QString("12,5"));
        click(keypad.window, "btn_12");
        QCOMPARE(keypad.stored().size(), std::size_t{3});
        QTest::qWait(20);
        QVERIFY(!box.wasShown());
    }

    void minusAddsANegativeAmount()
    {
        Keypad keypad;
        keypad.minus(QString("12,5"));
        QCOMPARE(keypad.stored(), (DbRows{{"0", "----", "-12.5"}}));
        QCOMPARE(rowTexts(keypad.window, "tableView2", 0).join(';'), QString("1;0;----;-12.50$"));
        QCOMPARE(keypad.field().text(), QString("12,5"));
    }

    void blanksAroundAnAmountAreRemoved()
    {
        Keypad keypad;
        keypad.plus(QString("  12,5\t "));
        QCOMPARE(keypad.field().text(), QString("12,5"));
        keypad.minus(QString("3 "));
        QCOMPARE(keypad.field().text(), QString("3"));
        QCOMPARE(keypad.stored(), (DbRows{{"0", "----", "12.5"}, {"0", "----", "-3"}}));
    }

    void anAmountIsNeeded_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::newRow("empty") << "";
        QTest::newRow("blanks") << " \t ";
    }

    void anAmountIsNeeded()
    {
        QFETCH(QString, amount);
        Keypad keypad;
        AnswerBox box;
        keypad.plus(amount);
        QCOMPARE(box.title(), QString("+/-"));
        QCOMPARE(box.text(), QString("Saisir un montant"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &keypad.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(keypad.field().text(), QString());
        QVERIFY(keypad.stored().empty());
    }

    void amountsAreChecked_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("isNegative");
        QTest::addColumn<QString>("fieldAfter");
        QTest::newRow("- with an empty field") << "" << true << "";
        QTest::newRow("- with blanks") << "  " << true << "";
        QTest::newRow("a minus alone") << "-" << false << "-";
        QTest::newRow("a minus of a minus") << "-" << true << "-";
        QTest::newRow("1,2,3") << "1,2,3" << false << "1,2,3";
        QTest::newRow("1.2.3") << "1.2.3" << false << "1.2.3";
        QTest::newRow("--1") << "--1" << false << "--1";
        QTest::newRow("- of -1") << "-1" << true << "-1";
        QTest::newRow("- of +1") << "+1" << true << "+1";
        QTest::newRow("0x10") << "0x10" << false << "0x10";
        QTest::newRow("a thousands separator") << "1,234.50" << false << "1,234.50";
        QTest::newRow("a currency sign") << "5$" << false << "5$";
        QTest::newRow("a blank inside") << "1 000" << false << "1 000";
        QTest::newRow("- of a blank and a number") << " 5" << true << " 5";
        QTest::newRow("a name") << QString("Thé") << false << QString("Thé");
        QTest::newRow("a separator alone") << "," << false << ",";
        QTest::newRow("SQL") << "1); delete from Ticket; --" << false
                             << "1); delete from Ticket; --";
        QTest::newRow("a quote") << "1'" << false << "1'";
        QTest::newRow("out of range") << "1e999" << false << "1e999";
    }

    void amountsAreChecked()
    {
        QFETCH(QString, amount);
        QFETCH(bool, isNegative);
        Keypad keypad("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        const CapturedLog log;
        CapturedOutput output;
        AnswerBox box;
        if (isNegative) {
            keypad.minus(amount);
        } else {
            keypad.plus(amount);
        }
        QCOMPARE(box.title(), QString("+/-"));
        QCOMPARE(box.text(), QString("Saisir un montant valide"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.strays(), 0);
        QTEST(keypad.field().text(), "fieldAfter");
        QCOMPARE(keypad.stored(), (DbRows{{"1", "Thé", "1"}}));
        QCOMPARE(output.text(), QByteArray());
    }

    void amountsAreSplicedAsTyped_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("an exponent") << "1e5" << QByteArray("100000.0") << "100,000.00$";
        QTest::newRow("a plus") << "+2,5" << QByteArray("2.5") << "2.50$";
        QTest::newRow("a typed minus") << "-2" << QByteArray("-2") << "-2.00$";
        QTest::newRow("no digit before the separator") << ",5" << QByteArray("0.5") << "0.50$";
        QTest::newRow("no digit behind the separator") << "5," << QByteArray("5") << "5.00$";
        QTest::newRow("zero") << "0" << QByteArray("0") << "0.00$";
        QTest::newRow("more decimals than shown") << "1,2345" << QByteArray("1.2345") << "1.23$";
        QTest::newRow("thousands") << "1234,5" << QByteArray("1234.5") << "1,234.50$";
    }

    void amountsAreSplicedAsTyped()
    {
        QFETCH(QString, amount);
        QFETCH(QByteArray, stored);
        Keypad keypad;
        keypad.plus(amount);
        QVERIFY(keypad.shop.sql(("select 1 from Ticket where prix = " + stored).constData()).size()
            == 1);
        QTEST(rowTexts(keypad.window, "tableView2", 0).at(3), "shown");
        QCOMPARE(keypad.field().text(), amount);
    }

    void amountsThatSqlDoesNotKnowAreReported_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QByteArray>("report");
        const QByteArray insert
            = "Errors Db::DbLoad sqlite3_errmsg : insert into Ticket(id, article, "
              "prix) values (0, '----', ";
        QTest::newRow("inf") << "inf" << insert + "inf) no such column: inf\n";
        QTest::newRow("nan") << "nan" << insert + "nan) no such column: nan\n";
    }

    void amountsThatSqlDoesNotKnowAreReported()
    {
        QFETCH(QString, amount);
        Keypad keypad("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        CapturedOutput output;
        AnswerBox box;
        keypad.plus(amount);
        QTest::qWait(20);
        QVERIFY(!box.wasShown());
        QTEST(output.text(), "report");
        QCOMPARE(keypad.names("tableView2"), QString("Thé"));
        keypad.plus(QString("2"));
        QCOMPARE(keypad.names("tableView2"), QString("Thé|----"));
    }

    void theFieldShowsTheSignDuringTheRefusal()
    {
        Keypad keypad;
        QString shown;
        AnswerBox box(QMessageBox::Ok, [&](QMessageBox&) { shown = keypad.field().text(); });
        keypad.minus(QString());
        QCOMPARE(shown, QString("-"));
        QCOMPARE(keypad.field().text(), QString());
    }

    void refusalsAreTranslated()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        translation.add(context, QString("Saisir un montant"), QString("Amount, please"));
        translation.add(context, QString("Saisir un montant valide"), QString("A number, please"));
        translation.add(context, QString("+/-"), QString("Plus"));
        Keypad keypad;
        {
            AnswerBox box;
            keypad.plus(QString());
            QCOMPARE(box.title(), QString("Plus"));
            QCOMPARE(box.text(), QString("Amount, please"));
        }
        AnswerBox box;
        keypad.plus(QString("x"));
        QCOMPARE(box.title(), QString("Plus"));
        QCOMPARE(box.text(), QString("A number, please"));
    }

    void aRefusedAmountLeavesTheListAlone()
    {
        Keypad keypad("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(keypad.window, "btn_Total_Ticket");
        AnswerBox box;
        keypad.plus(QString("x"));
        QCOMPARE(rowCount(keypad.window, "tableView2"), 4);
    }

    void anAddedAmountTakesTheTotalsAway()
    {
        Keypad keypad("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(keypad.window, "btn_Total_Ticket");
        keypad.plus(QString("2"));
        QCOMPARE(keypad.names("tableView2"), QString("Thé|----"));
    }

    void theNewestAmountIsInView()
    {
        Keypad keypad("with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
                      "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, 1 from n");
        keypad.plus(QString("2"));
        const auto& view = child<QTableView>(keypad.window, "tableView2");
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(60, 3))));
    }

    void theTillMayBeAskedDirectly()
    {
        Keypad keypad;
        keypad.window.operator_more_or_less(QString(" 4,5 "));
        QCOMPARE(keypad.stored(), (DbRows{{"0", "----", "4.5"}}));
        QCOMPARE(keypad.field().text(), QString("4,5"));
    }
};

VENDEL_TEST(TestFormVendelKeypad)
#include "tst_FormVendelKeypad.moc"
