// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QTableView>

namespace {
constexpr auto tenLessTwoAndAHalf
    = "insert into Ticket (id, article, prix) values (1, 'Menu', 10), (0, '----', -2.5);"
      "update Config set valeur = 20 where param = 'TVA'";

/// A till after a press on "Total Ticket".
struct TotalledTill : Till
{
    explicit TotalledTill(const char* sql)
        : Till(sql)
    {
        click(window, "btn_Total_Ticket");
    }

    /// The rows below the ticket's lines.
    QStringList totals() { return rows("tableView2").mid(int(ticket().size())); }
};
} // namespace

class TestFormVendelTotals : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyTicketIsSaid()
    {
        Till till;
        QCOMPARE(till.noticeOf("btn_Total_Ticket"), QString("Total: Le ticket est vide"));
        QCOMPARE(till.shownLines(), 0);
    }

    void anEmptyTicketLeavesTheList()
    {
        OpenTill till("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        till.run("delete from Ticket");
        QCOMPARE(till.noticeOf("btn_Total_Ticket"), QString("Total: Le ticket est vide"));
        QCOMPARE(till.names("tableView2"), QString("Thé"));
    }

    void standBelowTheLines()
    {
        TotalledTill till(tenLessTwoAndAHalf);
        QCOMPARE(till.rows("tableView2"),
            QStringList({"1;1;Menu;10.00$", "2;0;----;-2.50$", "0;->;Total ticket;7.50$",
                "0;->;TVA 20.00%;1.50$", "0;->;TOTAL ;$9.01"}));
    }

    void haveARowForEachRate()
    {
        TotalledTill till(tenLessTwoAndAHalf);
        till.run("insert into Config (param, valeur) values ('tva', 5.5)");
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.totals(),
            QStringList({"0;->;Total ticket;7.50$", "0;->;TVA 20.00%;1.50$", "0;->;TVA 5.50%;0.42$",
                "0;->;TOTAL ;$7.92"}));
        till.run("delete from Config");
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.totals(), QStringList({"0;->;Total ticket;7.50$", "0;->;TOTAL ;$7.50"}));
    }

    void standOnYellow()
    {
        TotalledTill till(tenLessTwoAndAHalf);
        const auto* model = till.list("tableView2").model();
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 4; ++column) {
                const auto ground = model->index(row, column).data(Qt::BackgroundRole);
                QCOMPARE(ground.value<QBrush>(), row < 2 ? QBrush() : QBrush(Qt::yellow));
            }
        }
    }

    void disappearWhenTheTicketIsShownAgain()
    {
        TotalledTill till(tenLessTwoAndAHalf);
        click(till.window, "btn_Ticket");
        QCOMPARE(till.names("tableView2"), QString("Menu|----"));
    }

    void areShownOnceHoweverOftenAsked()
    {
        TotalledTill till(tenLessTwoAndAHalf);
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.names("tableView2"), QString("Menu|----|Total ticket|TVA 20.00%|TOTAL "));
    }

    void areStoredNowhere()
    {
        const TotalledTill till(tenLessTwoAndAHalf);
        QCOMPARE(till.ticket(), QStringList({"Menu 10", "---- -2.5"}));
        QCOMPARE(till.history(), QStringList());
    }

    void areInView()
    {
        TotalledTill till(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
            "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, 1 from n");
        for (const int row : {60, 61, 62}) {
            QVERIFY(till.isInView("tableView2", row));
        }
    }

    void areTranslated()
    {
        Translation translation;
        translation.add("FormVendelMessages", "Total ticket", "Ticket total");
        translation.add("FormVendelMessages", "TVA ", "VAT ");
        translation.add("FormVendelMessages", "TOTAL ", "GRAND TOTAL ");
        TotalledTill till(tenLessTwoAndAHalf);
        QCOMPARE(till.totals(),
            QStringList(
                {"0;->;Ticket total;7.50$", "0;->;VAT 20.00%;1.50$", "0;->;GRAND TOTAL ;$9.01"}));
    }
};

VENDEL_TEST(TestFormVendelTotals)
#include "tst_FormVendel_totals.moc"
