// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QByteArray>
#include <QLineEdit>

namespace {
constexpr auto oneTea = "insert into Ticket (id, article, prix) values (1, 'Thé', 1)";

struct Keypad : Till
{
    using Till::Till;

    void press(std::initializer_list<const char*> keys)
    {
        for (const char* key : keys) {
            click(window, key);
        }
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

    DbRows stored() const { return shop.sql("select id, article, prix from Ticket"); }
};
} // namespace

class TestFormVendelKeypad : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyAppendsItsDigit()
    {
        Keypad till;
        QString expected;
        for (const auto& [key, text] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"btn_1", "1"}, {"btn_2", "2"}, {"btn_3", "3"}, {"btn_4", "4"}, {"btn_5", "5"},
                 {"btn_6", "6"}, {"btn_7", "7"}, {"btn_8", "8"}, {"btn_9", "9"}, {"btn_10", "0"},
                 {"btn_11", ","}, {"btn_1", "1"}}) {
            till.press({key});
            expected += text;
            QCOMPARE(till.field().text(), expected);
        }
    }

    void keysAppendAtTheEndWhereverTheCursorStands()
    {
        Keypad till;
        till.field().setText("12");
        till.field().setCursorPosition(0);
        till.press({"btn_3"});
        QCOMPARE(till.field().text(), QString("123"));
        till.field().selectAll();
        till.press({"btn_11"});
        QCOMPARE(till.field().text(), QString("123,"));
        // They check nothing.
        till.field().clear();
        till.press({"btn_11", "btn_11", "btn_10", "btn_10"});
        QCOMPARE(till.field().text(), QString(",,00"));
    }

    void theSeparatorFollowsTheTranslation()
    {
        Translation translation;
        translation.add("FormVendelMessages", ",", ".");
        Keypad till;
        till.press({"btn_1", "btn_11", "btn_5"});
        QCOMPARE(till.field().text(), QString("1.5"));
        till.press({"btn_12"});
        QCOMPARE(till.stored(), (DbRows{{"0", "----", "1.5"}}));
    }

    void theFieldIsCleared()
    {
        Keypad till;
        till.field().setText("12,5");
        for (int press = 1; press <= 2; ++press) {
            till.press({"btn_Effacer_Saisie"});
            QCOMPARE(till.field().text(), QString());
        }
    }

    void plusAndMinusAddAnAmountAndKeepIt()
    {
        Keypad till(oneTea);
        const AnswerBox box;
        till.field().setText("12,5");
        for (const char* key : {"btn_12", "btn_13", "btn_12"}) {
            till.press({key});
            QCOMPARE(till.field().text(), QString("12,5"));
        }
        QCOMPARE(till.stored(),
            (DbRows{{"1", "Thé", "1"}, {"0", "----", "12.5"}, {"0", "----", "-12.5"},
                {"0", "----", "12.5"}}));
        QCOMPARE(till.rows("tableView2"),
            QStringList(
                {"1;1;Thé;1.00$", "2;0;----;12.50$", "3;0;----;-12.50$", "4;0;----;12.50$"}));
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
    }

    void blanksAroundAnAmountAreRemoved()
    {
        Keypad till;
        till.plus("  12,5\t ");
        QCOMPARE(till.field().text(), QString("12,5"));
        till.minus("3 ");
        QCOMPARE(till.field().text(), QString("3"));
        QCOMPARE(till.stored(), (DbRows{{"0", "----", "12.5"}, {"0", "----", "-3"}}));
    }

    void amountsAreChecked_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("isNegative");
        QTest::addColumn<QString>("fieldAfter");
        QTest::addColumn<QString>("notice");
        const QString missing = "+/-: Saisir un montant";
        QTest::newRow("empty") << "" << false << "" << missing;
        QTest::newRow("blanks") << " \t " << false << "" << missing;
        const auto row = [](const char* name, const char* amount, bool isNegative = false) {
            QTest::newRow(name) << QString(amount) << isNegative << QString(amount).trimmed()
                                << QString("+/-: Saisir un montant valide");
        };
        row("- with an empty field", "", true);
        row("- with blanks", "  ", true);
        row("a minus alone", "-");
        row("a minus of a minus", "-", true);
        row("1,2,3", "1,2,3");
        row("1.2.3", "1.2.3");
        row("--1", "--1");
        row("- of -1", "-1", true);
        row("- of +1", "+1", true);
        row("0x10", "0x10");
        row("a thousands separator", "1,234.50");
        row("a currency sign", "5$");
        row("a blank inside", "1 000");
        row("a name", "Thé");
        row("a separator alone", ",");
        row("SQL", "1); delete from Ticket; --");
        row("a quote", "1'");
        row("out of range", "1e999");
        QTest::newRow("- of a blank and a number") << " 5" << true << " 5"
                                                   << "+/-: Saisir un montant valide";
    }

    void amountsAreChecked()
    {
        QFETCH(QString, amount);
        QFETCH(bool, isNegative);
        Keypad till(oneTea);
        const CapturedLog log;
        CapturedOutput output;
        till.field().setText(amount);
        QTEST(till.noticeOf(isNegative ? "btn_13" : "btn_12"), "notice");
        QTEST(till.field().text(), "fieldAfter");
        QCOMPARE(till.stored(), (DbRows{{"1", "Thé", "1"}}));
        QCOMPARE(output.text(), QByteArray());
        QCOMPARE(log.criticals(), QStringList());
    }

    void amountsAreSplicedAsTyped_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("shown");
        const auto row
            = [](const char* name, const char* amount, QByteArray stored, const char* shown) {
                  QTest::newRow(name) << QString(amount) << stored << QString(shown);
              };
        row("an exponent", "1e5", "100000.0", "100,000.00$");
        row("a plus", "+2,5", "2.5", "2.50$");
        row("a typed minus", "-2", "-2", "-2.00$");
        row("no digit before the separator", ",5", "0.5", "0.50$");
        row("no digit behind the separator", "5,", "5", "5.00$");
        row("zero", "0", "0", "0.00$");
        row("more decimals than shown", "1,2345", "1.2345", "1.23$");
        row("thousands", "1234,5", "1234.5", "1,234.50$");
    }

    void amountsAreSplicedAsTyped()
    {
        QFETCH(QString, amount);
        QFETCH(QByteArray, stored);
        Keypad till;
        till.plus(amount);
        QCOMPARE(till.shop.cell(("select count(*) from Ticket where prix = " + stored).constData()),
            QString("1"));
        QTEST(rowTexts(till.window, "tableView2", 0).at(3), "shown");
        QCOMPARE(till.field().text(), amount);
    }

    void amountsThatSqlDoesNotKnowAreReported()
    {
        for (const char* amount : {"inf", "nan"}) {
            Keypad till(oneTea);
            CapturedOutput output;
            const AnswerBox box;
            till.plus(amount);
            QCoreApplication::processEvents();
            QVERIFY(!box.wasShown());
            QCOMPARE(output.text(),
                databaseReport(
                    QByteArray("insert into Ticket(id, article, prix) values (0, '----', ") + amount
                        + ")",
                    QByteArray("no such column: ") + amount));
            QCOMPARE(till.names("tableView2"), QString("Thé"));
            till.plus("2");
            QCOMPARE(till.names("tableView2"), QString("Thé|----"));
        }
    }

    void theFieldShowsTheSignDuringTheRefusal()
    {
        Keypad till;
        QString shown;
        AnswerBox box(QMessageBox::Ok, [&](QMessageBox&) { shown = till.field().text(); });
        till.minus("");
        QCOMPARE(shown, QString("-"));
        QCOMPARE(till.field().text(), QString());
    }

    void refusalsAreTranslated()
    {
        Translation translation;
        translation.add("FormVendelMessages", "Saisir un montant", "Amount, please");
        translation.add("FormVendelMessages", "Saisir un montant valide", "A number, please");
        translation.add("FormVendelMessages", "+/-", "Plus");
        Keypad till;
        QCOMPARE(till.noticeOf("btn_12"), QString("Plus: Amount, please"));
        till.field().setText("x");
        QCOMPARE(till.noticeOf("btn_12"), QString("Plus: A number, please"));
    }

    void onlyAnAcceptedAmountTakesTheTotalsAway()
    {
        Keypad till(oneTea);
        click(till.window, "btn_Total_Ticket");
        const AnswerBox box;
        till.plus("x");
        QCOMPARE(till.shownLines(), 4);
        till.plus("2");
        QCOMPARE(till.names("tableView2"), QString("Thé|----"));
    }

    void theNewestAmountIsInView()
    {
        Keypad till("with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
                    "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, 1 from n");
        till.plus("2");
        QVERIFY(till.isInView("tableView2", 60));
    }

    void theFieldMayBeTypedIntoAndTheTillAsked()
    {
        Keypad till;
        QTest::keyClicks(&till.field(), "12,5");
        till.press({"btn_12"});
        QCOMPARE(till.stored(), (DbRows{{"0", "----", "12.5"}}));
        till.window.operator_more_or_less(" 4,5 ");
        QCOMPARE(till.stored(), (DbRows{{"0", "----", "12.5"}, {"0", "----", "4.5"}}));
        QCOMPARE(till.field().text(), QString("4,5"));
    }
};

VENDEL_TEST(TestFormVendelKeypad)
#include "tst_FormVendel_keypad.moc"
