// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

/// Articles whose names and prices no one expects on a menu.
class TestFormVendelOddArticles : public QObject
{
    Q_OBJECT

private slots:
    void namesOfAnyKindAreSold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("10,000 characters") << QString(10000, QChar(0xE9));
        QTest::newRow("single quotes") << "l'eau d'Évian '' '";
        QTest::newRow("double quotes") << "\"Sex on the Beach\"";
        QTest::newRow("SQL") << "'); delete from Ticket; --";
        QTest::newRow("semicolons") << "Vin; rouge;";
        QTest::newRow("control characters") << "a\tb\nc\rd\u0001e\u001Bf\u007Fg";
        QTest::newRow("emoji") << "🍺👩‍👩‍👧‍👦🇫🇷";
        QTest::newRow("right to left") << "שלום \u202Eabc بيرة";
        QTest::newRow("a tag") << "<b>x</b>&amp;";
        QTest::newRow("percents") << "100 %n %1 %s";
        QTest::newRow("a backslash") << "a\\b\\";
        QTest::newRow("blanks") << "  x  ";
        QTest::newRow("one blank") << " ";
        QTest::newRow("empty") << "";
    }

    void namesOfAnyKindAreSold()
    {
        QFETCH(QString, name);
        Till till;
        till.run("insert into Article (article, prix) values ('"
            + QString(name).replace("'", "''").toUtf8() + "', 2)");
        const CapturedLog log;
        CapturedOutput output;
        click(till.window, "btn_Afficher");
        QCOMPARE(till.names("tableView1"), name);
        clickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.names("tableView2"), name);
        QCOMPARE(till.shop.cell("select article from Ticket"), name);
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.shownLines(), 4);
        clickCell(till.window, "tableView2", 0, 2);
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(output.text(), QByteArray());
    }

    void namesThatAreNumbersAreShownAsMoney()
    {
        OpenTill till("insert into Article (article, prix) values ('33', 2), ('inf', 1), "
                      "('nan', 1)");
        QCOMPARE(till.rows("tableView1"),
            QStringList({"1;;33.00$;2.00$", "2;;inf$;1.00$", "3;;nan$;1.00$"}));
        clickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.rows("tableView2"), QStringList("1;1;33.00$;2.00$"));
        QCOMPARE(till.shop.cell("select article from Ticket"), QString("33"));
    }

    void aPriceThatIsNoNumberCannotBeSold()
    {
        OpenTill till("insert into Article (article, prix) values ('Thé', 'cher'), ('Vin', '2,5'),"
                      "('Eau', '')");
        QCOMPARE(till.rows("tableView1"), QStringList({"3;;Eau;", "1;;Thé;cher", "2;;Vin;2,5"}));
        const CapturedLog log;
        CapturedOutput output;
        for (const int row : {0, 1, 2}) {
            clickCell(till.window, "tableView1", row, 2);
        }
        const QByteArray insert = "insert into Ticket (id, article, prix) values (";
        QCOMPARE(output.text(),
            databaseReport(insert + "3, 'Eau', )", "near \")\": syntax error")
                + databaseReport(insert + "1, 'Thé', cher)", "no such column: cher")
                + databaseReport(insert + "2, 'Vin', 2,5)", "4 values for 3 columns"));
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(log.criticals(), QStringList());
    }

    void aPriceThatIsNoNumberCountsAsNothing()
    {
        Till till("insert into Ticket (id, article, prix) values (1, 'Thé', 'cher'),"
                  "(1, 'Eau', 2)");
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.rows("tableView2").at(0), QString("1;1;Thé;cher"));
        QCOMPARE(till.rows("tableView2").at(2), QString("0;->;Total ticket;2.00$"));
    }
};

VENDEL_TEST(TestFormVendelOddArticles)
#include "tst_FormVendel_oddArticles.moc"
