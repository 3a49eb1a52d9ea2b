// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QPushButton>
#include <QTableView>

namespace {
/// A diary that also notes how many rows the sales, the days and the grouped list have.
struct HistoryDiary
{
    explicit HistoryDiary(FormVendelHistorique& window)
        : diary(AnswerBox::agreeing([this, &window](QMessageBox&) {
            listed << QString("%1 %2 %3")
                          .arg(rowCount(window, "tableView1"))
                          .arg(rowCount(window, "tableView2"))
                          .arg(rowCount(window, "tableView3"));
        }))
    { }

    QStringList listed;
    AnswerBox diary;
};
} // namespace

class TestFormVendelHistoriqueTotal : public QObject
{
    Q_OBJECT

private slots:
    void totalAddsAYellowRow()
    {
        OpenHistory history;
        for (int sale = 0; sale < 60; ++sale) {
            history.sell("Thé", "20.5", "2019-05-01 10:00:00.000");
        }
        history.type("05/01/2019", "05/02/2019");
        const AnswerBox box;
        click(history.window, "btn_Total");
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(history.window, "tableView1"), 61);
        QCOMPARE(rowTexts(history.window, "tableView1", 60),
            texts({"Total historique", "1,230.00$", "<-"}));
        auto& view = child<QTableView>(history.window, "tableView1");
        for (int column = 0; column < 3; ++column) {
            QCOMPARE(view.model()->index(60, column).data(Qt::BackgroundRole).value<QBrush>(),
                QBrush(Qt::yellow));
            QVERIFY(!view.model()->index(59, column).data(Qt::BackgroundRole).isValid());
        }
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(60, 0))));
        QCOMPARE(rowCount(history.window, "tableView3"), 1);
        QCOMPARE(
            rowTexts(history.window, "tableView3", 0), texts({"60", "Thé", "20.50$", "1,230.00$"}));
        click(history.window, "btn_Total");
        QCOMPARE(rowCount(history.window, "tableView1"), 61);
    }

    void totalOfAYearKeepsItsCents()
    {
        OpenHistory history;
        history.sell("Mariage", "1234567.89", "2019-05-01 10:00:00.000");
        history.sell("Bonbon", "0.02", "2019-06-01 10:00:00.000");
        history.type("01/01/2019", "01/01/2020");
        click(history.window, "btn_Total");
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(1), QString("1,234,567.89$"));
        QCOMPARE(rowTexts(history.window, "tableView1", 2).at(1), QString("1,234,567.91$"));
        QCOMPARE(rowTexts(history.window, "tableView3", 1),
            texts({"1", "Mariage", "1,234,567.89$", "1,234,567.89$"}));
    }

    void aTotalBeyondAllNumbersIsInfinite()
    {
        OpenHistory history;
        history.sell("Thé", "1e308", "2019-05-01 10:00:00.000");
        history.sell("Thé", "1e308", "2019-05-01 11:00:00.000");
        history.sell("Eau", "2", "2019-05-02 10:00:00.000");
        history.type("05/01/2019", "05/03/2019");
        click(history.window, "btn_Total");
        QCOMPARE(
            rowTexts(history.window, "tableView1", 3), texts({"Total historique", "inf$", "<-"}));
        // The day's purge makes the total a number again.
        history.type("05/01/2019", "05/02/2019");
        const AnswerBox box(QMessageBox::Yes);
        click(history.window, "btn_Clear");
        history.type("05/01/2019", "05/03/2019");
        click(history.window, "btn_Total");
        QCOMPARE(
            rowTexts(history.window, "tableView1", 1), texts({"Total historique", "2.00$", "<-"}));
    }

    void theTotalsRowIsNoDate()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_Total");
        clickCell(history.window, "tableView1", 1, 2);
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView1", 1, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString("05/02/2019"));
    }

    void anUnreadableSumIsLogged()
    {
        OpenHistory history;
        history.sell("Thé", "9223372036854775807", "2019-05-01 10:00:00.000");
        history.sell("Thé", "9223372036854775807", "2019-05-01 11:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        CapturedOutput output;
        CapturedLog log;
        const AnswerBox box;
        click(history.window, "btn_Total");
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith(
            QString("Errors FormVendelHistorique on_btn_Total_clicked : ")));
        QVERIFY(output.text().startsWith(
            "Errors Db::DbLoad sqlite3_errmsg : select sum(prix) from Historique where date_heure "
            "between '2019-05-01' and '2019-05-02' "));
        QVERIFY(!box.wasShown());
        QVERIFY(history.window.isEnabled());
    }

    void salesWithoutAnyPriceHaveNoTotal()
    {
        OpenHistory history;
        history.shop.sql("drop table Historique");
        history.shop.sql(
            "create table Historique (id integer, article text, prix numeric, date_heure text)");
        history.sell("Thé", "null", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        CapturedLog log;
        const AnswerBox box;
        click(history.window, "btn_Total");
        QVERIFY(!box.wasShown());
        QVERIFY(log.criticals().isEmpty());
        QCOMPARE(rowCount(history.window, "tableView1"), 0);
        QCOMPARE(rowCount(history.window, "tableView3"), 0);
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowTexts(history.window, "tableView1", 0),
            texts({"Thé", "", "05/01/2019 10:00:00.000"}));
        QCOMPARE(rowTexts(history.window, "tableView3", 0), texts({"1", "Thé", "", ""}));
    }

    void statementsStandWordForWord()
    {
        OpenHistory history;
        history.shop.sql("alter table Historique rename column prix to tarif");
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/01/2019 10:00:00.250");
        CapturedOutput output;
        const AnswerBox box;
        click(history.window, "btn_View_Historical");
        QCOMPARE(output.text(),
            databaseReport(
                "select distinct compte, article, prix, compte * prix as calcul from (select "
                "distinct count(article) as compte, article, prix from Historique where "
                "date_heure between '2019-05-01' and '2019-05-01 10:00:00.250' group by article, "
                "prix)",
                "no such column: prix"));
        history.shop.sql("drop table Historique");
        CapturedOutput without;
        click(history.window, "btn_View_Historical");
        click(history.window, "btn_Show_Date");
        QCOMPARE(without.text(),
            databaseReport(
                "select * from Historique where date_heure between '2019-05-01' and '2019-05-01 "
                "10:00:00.250' order by date_heure asc",
                "no such table: Historique")
                + databaseReport("select distinct substr(date_heure,1,10) as date from Historique",
                    "no such table: Historique"));
    }

    void purgeAsksAndNoKeepsTheSales()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_Total");
        const AnswerBox box(QMessageBox::No);
        click(history.window, "btn_Clear");
        QCOMPARE(box.title(), QString("Purger"));
        QCOMPARE(box.text(), QString("Voulez-vous purger de 05/01/2019 au 05/02/2019"));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(history.sold(), QString("1"));
        QCOMPARE(rowCount(history.window, "tableView1"), 2);
        QCOMPARE(rowCount(history.window, "tableView3"), 1);
    }

    void purgeEmptiesTheListsBeforeItReports()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("Café", "2", "2019-05-01 10:00:00.001");
        history.sell("Bière", "2", "2019-05-01 10:00:00.002");
        history.type("05/01/2019 10:00:00.000", "05/01/2019 10:00:00.001");
        click(history.window, "btn_Total");
        const HistoryDiary boxes(history.window);
        click(history.window, "btn_Clear");
        QCOMPARE(boxes.diary.said(),
            texts(
                {"Purger: Voulez-vous purger de 05/01/2019 10:00:00.000 au 05/01/2019 10:00:00.001",
                    "Historique: Historique est vide pour la pèriode du 05/01/2019 10:00:00.000 au "
                    "05/01/2019 10:00:00.001"}));
        QCOMPARE(boxes.listed, texts({"3 0 2", "0 0 0"}));
        QCOMPARE(history.shop.cell("select article from Historique"), QString("Bière"));
        QCOMPARE(history.sold(), QString("1"));
        QCOMPARE(rowCount(history.window, "tableView2"), 1);
        QCOMPARE(rowTexts(history.window, "tableView2", 0), texts({"05/01/2019"}));
    }

    void purgeOfEverythingLeavesNoDay()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("Café", "2", "2020-02-29 10:00:00.000");
        click(history.window, "btn_Show_Date");
        QCOMPARE(rowCount(history.window, "tableView2"), 2);
        history.type("01/01/0001", "12/31/9999");
        const HistoryDiary boxes(history.window);
        click(history.window, "btn_Clear");
        QCOMPARE(boxes.diary.said(),
            texts({"Purger: Voulez-vous purger de 01/01/0001 au 12/31/9999",
                "Historique: Historique est vide pour la pèriode du 01/01/0001 au 12/31/9999",
                "Historique: Historique est vide\nAjouter des articles et faite PAYER"}));
        QCOMPARE(boxes.listed, texts({"0 2 0", "0 2 0", "0 0 0"}));
        QCOMPARE(history.sold(), QString("0"));
    }

    void aPurgeThatFailsListsTheSalesAgain()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.shop.sql("create trigger keep before delete on Historique begin select "
                         "raise(abort, 'gardé'); end");
        history.type("05/01/2019", "05/02/2019");
        CapturedOutput output;
        const HistoryDiary boxes(history.window);
        click(history.window, "btn_Clear");
        QCOMPARE(boxes.diary.said().size(), 1);
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowCount(history.window, "tableView2"), 1);
        QVERIFY(output.text().contains(
            "Errors Db::DbLoad sqlite3_errmsg : delete from Historique where date_heure between "
            "'2019-05-01' and '2019-05-02' gardé\n"));
    }
};

VENDEL_TEST(TestFormVendelHistoriqueTotal)
#include "tst_FormVendelHistoriqueTotal.moc"
