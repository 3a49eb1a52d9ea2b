// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/forms/TestTable.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QTableView>

/// What the history does when a slot fails or the database refuses its statements.
class TestFormVendelHistoriqueFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFailingSlotIsLogged_data()
    {
        textColumns({"text", "slot"});
        const char* noSale = "Historique est vide pour la pèriode du ";
        tableRow("btn_Show_Date", "Historique est vide\nAjouter des articles et faite PAYER",
            "Display_Date");
        tableRow("btn_View_Historical", noSale, "Display_History");
        tableRow("btn_Total", noSale, "on_btn_Total_clicked");
        tableRow("btn_Clear", noSale, "on_btn_Clear_clicked");
        tableRow("actionCalcul_Stock", noSale, "on_actionCalcul_Stock_triggered");
    }

    void aFailingSlotIsLogged()
    {
        QFETCH(QString, text);
        QFETCH(QString, slot);
        OpenHistory history;
        const CapturedLog log;
        const FailingText failure(text.toUtf8().constData());
        QCOMPARE(history.push(QTest::currentDataTag()), QStringList());
        QCOMPARE(
            log.criticals(), QStringList("Errors FormVendelHistorique " + slot + " : no text"));
        QVERIFY(history.window.isVisible());
    }

    void anUnreadableSaleIsLogged()
    {
        OpenHistory history;
        history.shop.fill("drop table Historique;"
                          "create table Historique (article text, date_heure text);"
                          "insert into Historique values ('Thé', '2019-05-01 10:00:00.000')");
        const CapturedOutput output;
        const CapturedLog log;
        history.push("btn_View_Historical");
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith("Errors FormVendelHistorique Display_History : "));
        QVERIFY(child<QTableView>(history.window, "tableView1").updatesEnabled());
    }

    void anUnreadableSumIsLogged()
    {
        OpenHistory history("('Thé', 9223372036854775807, '2019-05-01 10:00:00.000'), "
                            "('Thé', 9223372036854775807, '2019-05-01 11:00:00.000')");
        CapturedOutput output;
        const CapturedLog log;
        QCOMPARE(history.push("btn_Total"), QStringList());
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith(
            "Errors FormVendelHistorique on_btn_Total_clicked : "));
        QVERIFY(output.text().startsWith(
            "Errors Db::DbLoad sqlite3_errmsg : select sum(prix) from Historique where date_heure "
            "between '2019-05-01' and '2019-05-02' "));
        QVERIFY(history.window.isEnabled());
    }

    // What was to be run shows in the database's report.
    void refusedStatementsAreReported()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.000')", "05/01/2019", "05/01/2019 10:00:00.250");
        history.shop.sql("alter table Historique rename column prix to tarif");
        CapturedOutput output;
        history.push("btn_View_Historical");
        QCOMPARE(output.text(),
            databaseReport(
                "select distinct compte, article, prix, compte * prix as calcul from (select "
                "distinct count(article) as compte, article, prix from Historique where "
                "date_heure between '2019-05-01' and '2019-05-01 10:00:00.250' group by article, "
                "prix)",
                "no such column: prix"));
        history.shop.sql("drop table Historique");
        CapturedOutput without;
        history.push("btn_View_Historical");
        history.push("btn_Show_Date");
        QCOMPARE(without.text(),
            databaseReport(
                "select * from Historique where date_heure between '2019-05-01' and '2019-05-01 "
                "10:00:00.250' order by date_heure asc",
                "no such table: Historique")
                + databaseReport("select distinct substr(date_heure,1,10) as date from Historique",
                    "no such table: Historique"));
    }

    void aPurgeThatFailsListsTheSalesAgain()
    {
        OpenHistory history("('Thé', 2, '2019-05-01 10:00:00.000')");
        history.shop.sql("create trigger keep before delete on Historique begin select "
                         "raise(abort, 'gardé'); end");
        CapturedOutput output;
        QCOMPARE(history.push("btn_Clear").size(), 1);
        QCOMPARE(history.sales(), QStringList("Thé|2.00$|05/01/2019 10:00:00.000"));
        QCOMPARE(history.days(), QStringList("05/01/2019"));
        QVERIFY(output.text().contains(databaseReport("delete from Historique where date_heure "
                                                      "between '2019-05-01' and '2019-05-02'",
            "gardé")));
    }
};

VENDEL_TEST(TestFormVendelHistoriqueFailures)
#include "tst_FormVendelHistorique_failures.moc"
