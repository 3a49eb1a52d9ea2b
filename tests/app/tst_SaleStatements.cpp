// SPDX-License-Identifier: MIT
#include "store/Settings.h"
#include "store/Ticket.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <functional>

namespace {
struct Case
{
    std::function<void()> run;
};
} // namespace
Q_DECLARE_METATYPE(Case)

/// The statements of a sale, as a database without their tables reports them.
class TestSaleStatements : public QObject
{
    Q_OBJECT

private slots:
    void standWordForWord_data()
    {
        QTest::addColumn<Case>("statement");
        QTest::addColumn<QByteArray>("reported");
        const auto row = [](const char* name, std::function<void()> run, const char* sql,
                             const char* table = "Ticket") {
            QTest::newRow(name) << Case{std::move(run)}
                                << databaseReport(sql, QByteArray("no such table: ") + table);
        };
        row(
            "lines", [] { Ticket::lines(); }, "select * from Ticket");
        row(
            "groups", [] { Ticket::groups(); },
            "select cpte, article, prix, cpte*prix as calcul from (select count(article) as cpte, "
            "article, prix from Ticket group by article, prix) as t");
        row(
            "an article", [] { Ticket::addArticle(QString("12")); },
            "select * from Article where id = 12 order by Article asc", "Article");
        row(
            "an amount", [] { Ticket::addAmount(QString("-2.5")); },
            "insert into Ticket(id, article, prix) values (0, '----', -2.5)");
        row(
            "removal", [] { Ticket::remove(QString("7")); }, "delete from Ticket where idlig = 7");
        row(
            "clearing", [] { Ticket::clear(); }, "delete from Ticket");
        row(
            "rate", [] { Settings::taxRates(); },
            "select valeur from Config where param like 'TVA'", "Config");
        row(
            "switch", [] { Settings::printerSwitches(); },
            "select valeur from Config where param like 'Epson TM-T20II'", "Config");
    }

    void standWordForWord()
    {
        QFETCH(const Case, statement);
        QFETCH(const QByteArray, reported);
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        statement.run();
        QCOMPARE(output.text(), reported);
    }

    void thatOfTheMenusDoublesStandsWordForWord()
    {
        // A menu of another program: its names are read, its keys have another name.
        Till counter("drop table Article; create table Article (ident, article, prix);"
                     "insert into Article values (1, 'Thé', 2)");
        const CapturedLog log;
        CapturedOutput output;
        const AnswerBox box;
        click(counter.window, "btn_Afficher");
        QCOMPARE(output.text(),
            databaseReport(
                "select sum(z.art) as som from (select count(d.article) as art, d.article from "
                "(select b.article,b.id from (select article,max(id) from Article group by article "
                "having count(article) > 1) as t, Article as b where t.article = b.article) as d "
                "where d.id not in (select max(id) as id from Article group by article having "
                "count(article) > 1) group by article) as z",
                "no such column: id"));
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith(
            QLatin1String("Errors FormVendel on_btn_Afficher_clicked : ")));
        QCOMPARE(counter.names("tableView1"), QString("Thé"));
        QVERIFY(!box.wasShown());
    }
};

VENDEL_TEST(TestSaleStatements)
#include "tst_SaleStatements.moc"
