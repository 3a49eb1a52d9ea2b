// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/TestProgram.h"

#include <utility>

namespace {
const QString afterTheDate = "\nPour sélectionner la date dans première date ou seconde date\n"
                             "Click Options Pre date ou Sec date";
} // namespace

/// The tips of the days and of the sales.
class TestFormVendelHistoriqueTips : public QObject
{
    Q_OBJECT

private slots:
    void aSaleHasItsTipAndTheTotalNone()
    {
        OpenHistory history("('Thé', 2, '2019-05-01 10:00:00.250')");
        history.push("btn_Total");
        for (int column = 0; column < 3; ++column) {
            hoverCell(history.window, "tableView1", 0, column);
            QCOMPARE(tipText(), "Date Heure\nClick sur : 05/01/2019 10:00:00.250" + afterTheDate);
            QVERIFY(tipStandsAt(history.centreOf("tableView1", 0, column) + QPoint(0, 80)));
        }
        for (int column = 0; column < 3; ++column) {
            hoverCell(history.window, "tableView1", 1, column);
            QVERIFY(!tipText().contains("<-"));
        }
        QTRY_VERIFY(tipText().isEmpty());
    }

    void aDayHasItsTip()
    {
        OpenHistory history("('Thé', 2, '2019-05-01 10:00:00.250')");
        history.push("btn_Show_Date");
        hoverCell(history.window, "tableView2", 0, 0);
        QCOMPARE(tipText(), "Date\nClick sur : 05/01/2019" + afterTheDate);
        QVERIFY(tipStandsAt(history.centreOf("tableView2", 0, 0) + QPoint(650, 80)));
    }

    void emptyPlacesHaveNoTip()
    {
        OpenHistory history("('Thé', 2, '2019-05-01 10'), ('Café', 2, '2019-05-01 10:00:00.000')");
        history.push("btn_View_Historical");
        history.push("btn_Show_Date");
        const QPoint malformedDate = history.centreOf("tableView1", 0, 0);
        for (const auto& [list, empty] :
            {std::pair("tableView1", malformedDate), std::pair("tableView1", QPoint(20, 400)),
                std::pair("tableView2", QPoint(0, 0)), std::pair("tableView2", QPoint(20, 300))}) {
            hoverCell(history.window, "tableView1", 1, 0);
            QTRY_VERIFY(!tipText().isEmpty());
            history.moveOver(list, empty);
            QTRY_VERIFY(tipText().isEmpty());
        }
        history.moveOver("tableView2", QPoint(0, 1));
        QTRY_VERIFY(!tipText().isEmpty());
    }
};

VENDEL_TEST(TestFormVendelHistoriqueTips)
#include "tst_FormVendelHistorique_tips.moc"
