// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QBrush>
#include <QTableView>

class TestFormVendelHistoriqueTotal : public QObject
{
    Q_OBJECT

private slots:
    void totalAddsAYellowRow()
    {
        OpenHistory history;
        history.shop.fill(
            "insert into Historique with recursive n(i) as (select 1 union all select i + 1 from n "
            "where i < 60) select 1, 'Thé', 20.5, '2019-05-01 10:00:00.000' from n");
        QCOMPARE(history.push("btn_Total"), QStringList());
        QCOMPARE(history.sales().size(), 61);
        QCOMPARE(history.sales().at(60), QString("Total historique|1,230.00$|<-"));
        const auto& view = child<QTableView>(history.window, "tableView1");
        for (int column = 0; column < 3; ++column) {
            QCOMPARE(view.model()->index(60, column).data(Qt::BackgroundRole).value<QBrush>(),
                QBrush(Qt::yellow));
            QVERIFY(!view.model()->index(59, column).data(Qt::BackgroundRole).isValid());
        }
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(60, 0))));
        QCOMPARE(history.groups(), QStringList("60|Thé|20.50$|1,230.00$"));
        history.push("btn_Total");
        QCOMPARE(history.sales().size(), 61);
    }

    void totalOfAYearKeepsItsCents()
    {
        OpenHistory history("('Mariage', 1234567.89, '2019-05-01 10:00:00.000'), "
                            "('Bonbon', 0.02, '2019-06-01 10:00:00.000')",
            "01/01/2019", "01/01/2020");
        history.push("btn_Total");
        QCOMPARE(history.sales(),
            QStringList({"Mariage|1,234,567.89$|05/01/2019 10:00:00.000",
                "Bonbon|0.02$|06/01/2019 10:00:00.000", "Total historique|1,234,567.91$|<-"}));
        QCOMPARE(history.groups(),
            QStringList({"1|Bonbon|0.02$|0.02$", "1|Mariage|1,234,567.89$|1,234,567.89$"}));
    }

    void aTotalBeyondAllNumbersIsInfinite()
    {
        OpenHistory history(
            "('Thé', 1e308, '2019-05-01 10:00:00.000'), ('Thé', 1e308, '2019-05-01 11:00:00.000'), "
            "('Eau', 2, '2019-05-02 10:00:00.000')",
            "05/01/2019", "05/03/2019");
        history.push("btn_Total");
        QCOMPARE(history.sales().at(3), QString("Total historique|inf$|<-"));
        // The day's purge makes the total a number again.
        history.type("05/01/2019", "05/02/2019");
        history.push("btn_Clear");
        history.type("05/01/2019", "05/03/2019");
        history.push("btn_Total");
        QCOMPARE(history.sales().at(1), QString("Total historique|2.00$|<-"));
    }

    void salesWithoutAnyPriceHaveNoTotal()
    {
        OpenHistory history;
        history.shop.fill(
            "drop table Historique;"
            "create table Historique (id integer, article text, prix numeric, date_heure text);"
            "insert into Historique values (1, 'Thé', null, '2019-05-01 10:00:00.000')");
        const CapturedLog log;
        QCOMPARE(history.push("btn_Total"), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(history.sales(), QStringList());
        QCOMPARE(history.groups(), QStringList());
        history.push("btn_View_Historical");
        QCOMPARE(history.sales(), QStringList("Thé||05/01/2019 10:00:00.000"));
        QCOMPARE(history.groups(), QStringList("1|Thé||"));
    }
};

VENDEL_TEST(TestFormVendelHistoriqueTotal)
#include "tst_FormVendelHistorique_total.moc"
