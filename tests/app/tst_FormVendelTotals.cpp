// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QTableView>

namespace {
constexpr auto tenLessTwoAndAHalf
    = "insert into Ticket (id, article, prix) values (1, 'Menu', 10), (0, '----', -2.5);"
      "update Config set valeur = 20 where param = 'TVA'";

/// The sales screen after a press on "Total Ticket".
struct TotalledCounter : Till
{
    explicit TotalledCounter(const char* sql)
        : Till(sql)
    {
        click(window, "btn_Total_Ticket");
    }

    QStringList rows()
    {
        QStringList texts;
        for (int row = 0; row < rowCount(window, "tableView2"); ++row) {
            texts << rowTexts(window, "tableView2", row).join(';');
        }
        return texts;
    }
};
} // namespace

class TestFormVendelTotals : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyTicketIsSaid()
    {
        Till counter;
        AnswerBox box;
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(box.title(), QString("Total"));
        QCOMPARE(box.text(), QString("Le ticket est vide"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &counter.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
    }

    void standBelowTheLines()
    {
        TotalledCounter counter(tenLessTwoAndAHalf);
        QCOMPARE(counter.rows(),
            (QStringList{QString("1;1;Menu;10.00$"), QString("2;0;----;-2.50$"),
                QString("0;->;Total ticket;7.50$"), QString("0;->;TVA 20.00%;1.50$"),
                QString("0;->;TOTAL ;$9.01")}));
    }

    void haveTheHalfCentAtNoTax()
    {
        TotalledCounter counter("insert into Ticket (id, article, prix) values (1, 'Menu', 7.5)");
        QCOMPARE(counter.rows().mid(1),
            (QStringList{QString("0;->;Total ticket;7.50$"), QString("0;->;TVA 0.00%;0.00$"),
                QString("0;->;TOTAL ;$7.51")}));
    }

    void countAThousandAsNothing()
    {
        TotalledCounter counter(
            "insert into Ticket (id, article, prix) values (1, 'Fût', 999.5), (1, 'Vin', 235);"
            "update Config set valeur = 20 where param = 'TVA'");
        QCOMPARE(counter.rows().mid(2),
            (QStringList{QString("0;->;Total ticket;1,234.50$"), QString("0;->;TVA 20.00%;0.00$"),
                QString("0;->;TOTAL ;$0.00")}));
    }

    void withoutARateThereIsNoTaxRow()
    {
        TotalledCounter counter("insert into Ticket (id, article, prix) values (1, 'Menu', 7.5);"
                                "delete from Config where param = 'TVA'");
        QCOMPARE(counter.rows().mid(1),
            (QStringList{QString("0;->;Total ticket;7.50$"), QString("0;->;TOTAL ;$7.50")}));
    }

    void everyRateHasItsRow()
    {
        TotalledCounter counter("insert into Ticket (id, article, prix) values (1, 'Menu', 10);"
                                "update Config set valeur = 20 where param = 'TVA';"
                                "insert into Config (param, valeur) values ('TVA', 5.5)");
        QCOMPARE(counter.rows().mid(1),
            (QStringList{QString("0;->;Total ticket;10.00$"), QString("0;->;TVA 20.00%;2.01$"),
                QString("0;->;TVA 5.50%;0.56$"), QString("0;->;TOTAL ;$10.56")}));
    }

    void aRateThatIsNoNumberIsZero()
    {
        TotalledCounter counter("insert into Ticket (id, article, prix) values (1, 'Menu', 7.5);"
                                "update Config set valeur = 'vingt' where param = 'TVA'");
        QCOMPARE(counter.rows().mid(2),
            (QStringList{QString("0;->;TVA 0.00%;0.00$"), QString("0;->;TOTAL ;$7.51")}));
    }

    void theRatesNameIsComparedWithoutCase()
    {
        TotalledCounter counter("insert into Ticket (id, article, prix) values (1, 'Menu', 10);"
                                "update Config set valeur = 20, param = 'tva' where param = 'TVA'");
        QCOMPARE(counter.rows().at(2), QString("0;->;TVA 20.00%;2.01$"));
    }

    void standOnYellow()
    {
        TotalledCounter counter(tenLessTwoAndAHalf);
        const auto* model = child<QTableView>(counter.window, "tableView2").model();
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 4; ++column) {
                const auto ground
                    = model->index(row, column).data(Qt::BackgroundRole).value<QBrush>();
                QCOMPARE(ground, row < 2 ? QBrush() : QBrush(Qt::yellow));
            }
        }
    }

    void disappearWhenTheTicketIsShownAgain()
    {
        TotalledCounter counter(tenLessTwoAndAHalf);
        click(counter.window, "btn_Ticket");
        QCOMPARE(counter.names("tableView2"), QString("Menu|----"));
    }

    void areShownOnceHoweverOftenAsked()
    {
        TotalledCounter counter(tenLessTwoAndAHalf);
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(counter.names("tableView2"), QString("Menu|----|Total ticket|TVA 20.00%|TOTAL "));
    }

    void areStoredNowhere()
    {
        const TotalledCounter counter(tenLessTwoAndAHalf);
        QCOMPARE(counter.shop.cell("select count(*) from Ticket"), QString("2"));
        QVERIFY(counter.shop.sql("select * from Historique").empty());
    }

    void areInView()
    {
        TotalledCounter counter(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
            "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, 1 from n");
        const auto& view = child<QTableView>(counter.window, "tableView2");
        for (const int row : {60, 61, 62}) {
            QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(row, 3))));
        }
    }

    void areTranslated()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        translation.add(context, QString("Total ticket"), QString("Ticket total"));
        translation.add(context, QString("TVA "), QString("VAT "));
        translation.add(context, QString("TOTAL "), QString("GRAND TOTAL "));
        TotalledCounter counter(tenLessTwoAndAHalf);
        QCOMPARE(counter.rows().mid(2),
            (QStringList{QString("0;->;Ticket total;7.50$"), QString("0;->;VAT 20.00%;1.50$"),
                QString("0;->;GRAND TOTAL ;$9.01")}));
    }
};

VENDEL_TEST(TestFormVendelTotals)
#include "tst_FormVendelTotals.moc"
