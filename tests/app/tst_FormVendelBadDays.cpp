// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QDir>
#include <QLineEdit>
#include <QTableView>

#include <sys/stat.h>

namespace {
constexpr auto oneLine = "insert into Article (article, prix) values ('Thé', 2);"
                         "insert into Ticket (id, article, prix) values (1, 'Thé', 2)";

/// Presses every button of the sales screen but "Payer", sends their boxes away and returns the
/// titles of the boxes.
QStringList pressEverything(QWidget& window)
{
    QStringList titles;
    for (const auto* button : {"btn_Afficher", "btn_Ticket", "btn_Total_Ticket", "btn_1", "btn_12",
             "btn_13", "btn_Effacer_Saisie", "btn_Effacer_Ticket"}) {
        AnswerBox box;
        click(window, button);
        if (box.wasShown()) {
            titles << box.title();
        }
    }
    return titles;
}

const QStringList titlesOfAnEmptyShop{
    QString("Afficher"), QString("Ticket"), QString("Total"), QString("Effacer ticket")};
} // namespace

class TestFormVendelBadDays : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsADirectoryLeavesTheWindowUsable()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        const CapturedLog log;
        CapturedOutput output;
        FormVendel window;
        window.show();
        QCOMPARE(pressEverything(window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(window.isVisible());
        const QByteArray lines = output.text();
        QVERIFY(
            lines.startsWith("Not open database successfully\n"
                             "Errors Db::DbLoad sqlite3_errmsg : select valeur from Config where "
                             "param like 'Epson TM-T20II' unable to open database file\n"));
        QCOMPARE(lines.count("Not open database successfully\n"),
            lines.count(" unable to open database file\n"));
    }

    void aFileThatIsNoDatabaseLeavesTheWindowUsable()
    {
        const Shop shop(Shop::Database::None);
        const QByteArray letter = QByteArray("Chère cliente,\n").repeated(100);
        shop.write(QString("Vendel.db"), letter);
        const CapturedLog log;
        CapturedOutput output;
        FormVendel window;
        window.show();
        QCOMPARE(pressEverything(window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(output.text().contains("Errors Db::DbLoad sqlite3_errmsg : select * from Ticket "
                                       "file is not a database\n"));
        QCOMPARE(shop.read(QString("Vendel.db")), letter);
    }

    void aMissingTableIsAnEmptyOne()
    {
        Till counter("drop table Ticket; drop table Article");
        const CapturedLog log;
        CapturedOutput output;
        QCOMPARE(pressEverything(counter.window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(output.text().contains("Errors Db::DbLoad sqlite3_errmsg : select * from Article "
                                       "order by Article asc no such table: Article\n"));
        QVERIFY(
            output.text().contains("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket(id, "
                                   "article, prix) values (0, '----', 1) no such table: Ticket\n"));
    }

    void aReadOnlyDatabaseKeepsItsTicket()
    {
        Till counter(oneLine);
        click(counter.window, "btn_Afficher");
        QVERIFY(chmod("Vendel.db", 0444) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        const CapturedLog log;
        CapturedOutput output;
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket (id, article, prix) "
                       "values (1, 'Thé', 2) attempt to write a readonly database\n"));
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
        clickCell(counter.window, "tableView2", 0, 2);
        QVERIFY(
            output.text().endsWith("Errors Db::DbLoad sqlite3_errmsg : delete from Ticket where "
                                   "idlig = 1 attempt to write a readonly database\n"));
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
        click(counter.window, "btn_Effacer_Ticket");
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
        click(counter.window, "btn_Ticket");
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aFullFileSystemKeepsTheTicket()
    {
        Till counter(oneLine);
        counter.shop.fill("insert into Article (article, prix) values (hex(zeroblob(50000)), 1)");
        click(counter.window, "btn_Afficher");
        const CapturedLog log;
        CapturedOutput output;
        {
            const FileSizeLimit limit(static_cast<rlim_t>(QFile(QString("Vendel.db")).size()));
            clickCell(counter.window, "tableView1", 0, 2);
            QCOMPARE(counter.names("tableView2"), QString("Thé"));
        }
        QCOMPARE(counter.shop.cell("select count(*) from Ticket"), QString("1"));
        clickCell(counter.window, "tableView1", 1, 2);
        QCOMPARE(counter.names("tableView2"), QString("Thé|Thé"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aLockedDatabaseKeepsTheTicket()
    {
        Till counter(oneLine);
        child<QLineEdit>(counter.window, "txt_montant").setText(QString("5"));
        CapturedOutput output;
        {
            // A reader of long patience: reading goes on, writing waits in vain.
            const OtherProcess backup("begin; select * from Config", 60'000'000);
            click(counter.window, "btn_12");
        }
        QCOMPARE(output.text(),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : insert into Ticket(id, article, prix) "
                       "values (0, '----', 5) database is locked\n"));
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
        click(counter.window, "btn_12");
        QCOMPARE(counter.names("tableView2"), QString("Thé|----"));
    }

    void exceptionsAreLoggedUnderTheirNames_data()
    {
        QTest::addColumn<QStringList>("criticals");
        const auto row = [](const char* button, const char* line) {
            QTest::newRow(button) << QStringList(QString::fromLatin1(line));
        };
        row("btn_Afficher",
            "Errors FormVendel on_btn_Afficher_clicked : vector::_M_range_check: __n (which is 2) "
            ">= "
            "this->size() (which is 2)");
        row("btn_Ticket",
            "Errors FormVendel on_btn_Ticket_clicked : vector::_M_range_check: __n (which is 3) >= "
            "this->size() (which is 3)");
        row("btn_Total_Ticket",
            "Errors on_btn_Total_Ticket_clicked : vector::_M_range_check: __n (which is 3) >= "
            "this->size() (which is 3)");
        row("btn_12",
            "Errors operator_more_or_less : vector::_M_range_check: __n (which is 3) >= "
            "this->size() "
            "(which is 3)");
        row("btn_13",
            "Errors operator_more_or_less : vector::_M_range_check: __n (which is 3) >= "
            "this->size() "
            "(which is 3)");
    }

    void exceptionsAreLoggedUnderTheirNames()
    {
        // Tables of another program that lack a column.
        Till counter("drop table Ticket; create table Ticket (idlig, id, article);"
                     "insert into Ticket values (1, 1, 'Thé');"
                     "drop table Article; create table Article (id, article);"
                     "insert into Article values (1, 'Thé')");
        child<QLineEdit>(counter.window, "txt_montant").setText(QString("5"));
        const CapturedLog log;
        CapturedOutput output;
        click(counter.window, QTest::currentDataTag());
        QTEST(log.criticals(), "criticals");
        QVERIFY(counter.window.isVisible());
        QVERIFY(child<QTableView>(counter.window, "tableView1").updatesEnabled());
        QVERIFY(child<QTableView>(counter.window, "tableView2").updatesEnabled());
        QCOMPARE(child<QLineEdit>(counter.window, "txt_montant").text(), QString("5"));
    }

    void anExceptionBehindAClickIsLogged()
    {
        Till counter(oneLine);
        click(counter.window, "btn_Afficher");
        click(counter.window, "btn_Ticket");
        counter.shop.fill("alter table Ticket drop column prix;"
                          "insert into Ticket (id, article) values (1, 'Eau')");
        const QString missing = QString("vector::_M_range_check: __n (which is 3) >= "
                                        "this->size() (which is 3)");
        CapturedOutput output;
        {
            const CapturedLog log;
            clickCell(counter.window, "tableView2", 0, 2);
            QCOMPARE(log.criticals(),
                QStringList(QLatin1String("Errors FormVendel on_tableView2_clicked : ") + missing));
        }
        const CapturedLog log;
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(log.criticals(),
            QStringList(QLatin1String("Errors FormVendel on_tableView1_clicked : ") + missing));
    }

    void anExceptionInTheTotalsIsLogged()
    {
        Till counter("drop table Ticket; create table Ticket (idlig, id, article, preis);"
                     "insert into Ticket values (1, 1, 'Thé', 2)");
        const CapturedLog log;
        CapturedOutput output;
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors on_btn_Total_Ticket_clicked : vector::_M_range_check: "
                                "__n (which is 0) >= this->size() (which is 0)")));
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
    }

    void aPriceThatIsNoNumberCannotBeSold()
    {
        Till counter("insert into Article (article, prix) values ('Thé', 'cher'), ('Vin', '2,5'),"
                     "('Eau', '')");
        click(counter.window, "btn_Afficher");
        QCOMPARE(rowTexts(counter.window, "tableView1", 0).at(3), QString());
        QCOMPARE(rowTexts(counter.window, "tableView1", 1).at(3), QString("cher"));
        QCOMPARE(rowTexts(counter.window, "tableView1", 2).at(3), QString("2,5"));
        const CapturedLog log;
        CapturedOutput output;
        for (const int row : {0, 1, 2}) {
            clickCell(counter.window, "tableView1", row, 2);
        }
        const QByteArray insert
            = "Errors Db::DbLoad sqlite3_errmsg : insert into Ticket (id, article, "
              "prix) values (";
        QCOMPARE(output.text(),
            insert + "3, 'Eau', ) near \")\": syntax error\n" + insert
                + "1, 'Thé', cher) no such column: cher\n" + insert
                + "2, 'Vin', 2,5) 4 values for 3 columns\n");
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
        QCOMPARE(log.criticals(), QStringList());
    }

    void aPriceThatIsNoNumberCountsAsNothing()
    {
        Till counter("insert into Ticket (id, article, prix) values (1, 'Thé', 'cher'),"
                     "(1, 'Eau', 2)");
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(rowTexts(counter.window, "tableView2", 0).at(3), QString("cher"));
        QCOMPARE(rowTexts(counter.window, "tableView2", 2).at(3), QString("2.00$"));
    }

    void namesOfAnyKindAreSold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("10,000 characters") << QString(10000, QChar(0xE9));
        QTest::newRow("single quotes") << "l'eau d'Évian '' '";
        QTest::newRow("double quotes") << "\"Sex on the Beach\"";
        QTest::newRow("SQL") << "'); delete from Ticket; --";
        QTest::newRow("semicolons") << "Vin; rouge;";
        QTest::newRow("control characters") << QString("a\tb\nc\rd\u0001e\u001Bf\u007Fg");
        QTest::newRow("emoji") << QString("🍺👩‍👩‍👧‍👦🇫🇷");
        QTest::newRow("right to left") << QString("שלום \u202Eabc بيرة");
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
        Till counter;
        QString quoted = name;
        quoted.replace('\'', QLatin1String("''"));
        counter.shop.sql((QLatin1String("insert into Article (article, prix) values ('") + quoted
            + QLatin1String("', 2)"))
                             .toUtf8()
                             .constData());
        const CapturedLog log;
        CapturedOutput output;
        click(counter.window, "btn_Afficher");
        QCOMPARE(rowTexts(counter.window, "tableView1", 0).at(2), name);
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(rowTexts(counter.window, "tableView2", 0).at(2), name);
        QCOMPARE(counter.shop.cell("select article from Ticket"), name);
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(rowCount(counter.window, "tableView2"), 4);
        clickCell(counter.window, "tableView2", 0, 2);
        QVERIFY(counter.shop.sql("select * from Ticket").empty());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(output.text(), QByteArray());
    }

    void anArticleNamedInfinityIsMoney()
    {
        Till counter("insert into Article (article, prix) values ('inf', 1), ('nan', 1)");
        click(counter.window, "btn_Afficher");
        QCOMPARE(counter.names("tableView1"), QString("inf$|nan$"));
    }
};

VENDEL_TEST(TestFormVendelBadDays)
#include "tst_FormVendelBadDays.moc"
