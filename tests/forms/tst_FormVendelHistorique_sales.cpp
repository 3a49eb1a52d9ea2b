// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/forms/TestTable.h"
#include "tests/support/TestProgram.h"

#include <QTableView>

/// The days with sales, and the sales of a period, line by line and grouped.
class TestFormVendelHistoriqueSales : public QObject
{
    Q_OBJECT

private slots:
    void noSaleMeansNoDay()
    {
        OpenHistory history;
        QCOMPARE(history.push("btn_Show_Date"),
            QStringList("Historique: Historique est vide\nAjouter des articles et faite PAYER"));
        QCOMPARE(history.days(), QStringList());
    }

    void daysAreListedMonthFirst()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.000'), ('Thé', 2, '2019-05-01 23:59:59.999'), "
            "('Thé', 2, '2019-12-31 00:00:00.000')");
        for (int time = 1; time <= 2; ++time) {
            history.push("btn_Show_Date");
            QCOMPARE(history.days(), QStringList({"05/01/2019", "12/31/2019"}));
        }
    }

    void malformedDatesAreEmptyDays()
    {
        OpenHistory history("('Thé', 2, ''), ('Thé', 2, '2019-5-1'), ('Thé', 2, '2019-05-01 10')");
        history.push("btn_Show_Date");
        QStringList days = history.days();
        days.sort();
        QCOMPARE(days, QStringList({"", "", "05/01/2019"}));
    }

    void listsWhatWasSoldInThePeriod_data()
    {
        textColumns({"first", "second"});
        QTest::addColumn<QStringList>("sales");
        tableRow("one day, up to the start of the next", "05/01/2019", "05/02/2019",
            QStringList({"Matin|1,234.50$|05/01/2019 00:00:00.000",
                "Soir|12.50$|05/01/2019 23:59:59.999"}));
        tableRow("between two moments", "05/03/2019 10:00:00.001", "05/03/2019 10:00:00.002",
            QStringList({"B|1.00$|05/03/2019 10:00:00.001", "C|1.00$|05/03/2019 10:00:00.002"}));
        tableRow("one moment", "05/03/2019 10:00:00.003", "05/03/2019 10:00:00.003",
            QStringList("D|1.00$|05/03/2019 10:00:00.003"));
        tableRow("from a moment to a day", "02/29/2020 10:00:00.000", "03/01/2020",
            QStringList("F|1.00$|02/29/2020 10:00:00.000"));
        tableRow("from a day to a moment", "02/29/2020", "02/29/2020 09:59:59.999",
            QStringList("E|1.00$|02/29/2020 09:59:59.999"));
        tableRow("the hour that the clock skips", "03/31/2019 02:15:00.000",
            "03/31/2019 02:45:00.000", QStringList("Nuit|1.00$|03/31/2019 02:30:00.000"));
    }

    void listsWhatWasSoldInThePeriod()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        OpenHistory history(
            "('La veille', 1, '2019-04-30 23:59:59.999'), "
            "('Soir', 12.5, '2019-05-01 23:59:59.999'), "
            "('Matin', 1234.5, '2019-05-01 00:00:00.000'), "
            "('Le lendemain', 1, '2019-05-02 00:00:00.000'), ('A', 1, '2019-05-03 10:00:00.000'), "
            "('B', 1, '2019-05-03 10:00:00.001'), ('C', 1, '2019-05-03 10:00:00.002'), "
            "('D', 1, '2019-05-03 10:00:00.003'), ('E', 1, '2020-02-29 09:59:59.999'), "
            "('F', 1, '2020-02-29 10:00:00.000'), ('G', 1, '2020-03-01 00:00:00.000'), "
            "('Nuit', 1, '2019-03-31 02:30:00.000')",
            first, second);
        QCOMPARE(history.push("btn_View_Historical"), QStringList());
        QTEST(history.sales(), "sales");
    }

    void listsNamesAsTheyStand()
    {
        OpenHistory history(
            "('l''eau', 2, '2019-05-01 10:00:00.000'), "
            "('<b>\"Pastis\"</b>', 'gratuit', '2019-05-01 10:00:01.000'), "
            "('33', -0.5, '2019-05-01 10:00:02.000'), ('----', 0, '2019-05-01 10:00:03.000')");
        history.push("btn_View_Historical");
        QCOMPARE(history.sales(),
            QStringList({"l'eau|2.00$|05/01/2019 10:00:00.000",
                "<b>\"Pastis\"</b>|gratuit|05/01/2019 10:00:01.000",
                "33.00$|-0.50$|05/01/2019 10:00:02.000", "----|0.00$|05/01/2019 10:00:03.000"}));
    }

    void listsMalformedDatesEmpty()
    {
        OpenHistory history(
            "('Sans date', 1, ''), ('Jour seul', 1, '2019-05-01'), "
            "('Heure seule', 1, '2019-05-01 10'), ('Autre signe', 1, '2019-05-01T10:20:30.123')");
        history.push("btn_View_Historical");
        QCOMPARE(history.sales(),
            QStringList({"Jour seul|1.00$|05/01/2019", "Heure seule|1.00$|",
                "Autre signe|1.00$|05/01/2019 10:20:30.123"}));
    }

    void groupsByArticleAndPrice()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.000'), ('thé', 2, '2019-05-01 11:00:00.000'), "
            "('Thé', 2, '2019-05-01 12:00:00.000'), ('Café', 1.5, '2019-05-01 13:00:00.000'), "
            "('Café', 1.5, '2019-05-02 00:00:00.000')");
        history.push("btn_View_Historical");
        QCOMPARE(history.groups(), QStringList({"1|Café|1.50$|1.50$", "3|Thé|2.00$|6.00$"}));
    }

    void twoPricesWithEqualCountsAreTwoLines()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01'), ('Thé', 2.5, '2019-05-01'), ('Thé', 2, '2019-05-01'), "
            "('Thé', 2.5, '2019-05-01')");
        history.push("btn_View_Historical");
        QCOMPARE(history.groups(), QStringList({"2|Thé|2.00$|4.00$", "2|Thé|2.50$|5.00$"}));
    }

    void aSecondListReplacesTheFirst()
    {
        ListedHistory history;
        history.type("05/09/2019", "05/10/2019");
        history.push("btn_View_Historical");
        QCOMPARE(history.sales(), QStringList("Vin|3.00$|05/09/2019 10:00:00.000"));
        QCOMPARE(history.groups(), QStringList("1|Vin|3.00$|3.00$"));
        QCOMPARE(child<QTableView>(history.window, "tableView1").columnWidth(0), 210);
    }
};

VENDEL_TEST(TestFormVendelHistoriqueSales)
#include "tst_FormVendelHistorique_sales.moc"
