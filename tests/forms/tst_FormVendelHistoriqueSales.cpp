// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QTableView>

#include <vector>

class TestFormVendelHistoriqueSales : public QObject
{
    Q_OBJECT

private slots:
    void noSaleMeansNoDay()
    {
        OpenHistory history;
        const AnswerBox box;
        click(history.window, "btn_Show_Date");
        QCOMPARE(box.title(), QString("Historique"));
        QCOMPARE(box.text(), QString("Historique est vide\nAjouter des articles et faite PAYER"));
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.parent(), &history.window);
        QCOMPARE(box.strays(), 0);
    }

    void daysAreListedMonthFirst()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("Thé", "2", "2019-05-01 23:59:59.999");
        history.sell("Thé", "2", "2019-12-31 00:00:00.000");
        click(history.window, "btn_Show_Date");
        QCOMPARE(rowCount(history.window, "tableView2"), 2);
        QCOMPARE(rowTexts(history.window, "tableView2", 0), texts({"05/01/2019"}));
        QCOMPARE(rowTexts(history.window, "tableView2", 1), texts({"12/31/2019"}));
        click(history.window, "btn_Show_Date");
        QCOMPARE(rowCount(history.window, "tableView2"), 2);
    }

    void malformedDatesAreEmptyDays()
    {
        OpenHistory history;
        history.sell("Thé", "2", "");
        history.sell("Thé", "2", "2019-5-1");
        history.sell("Thé", "2", "2019-05-01 10");
        click(history.window, "btn_Show_Date");
        QCOMPARE(rowCount(history.window, "tableView2"), 3);
        QStringList days;
        for (int row = 0; row < 3; ++row) {
            days += rowTexts(history.window, "tableView2", row);
        }
        const auto emptyRow = static_cast<int>(days.indexOf(QString()));
        days.sort();
        QCOMPARE(days, texts({"", "", "05/01/2019"}));
        history.type("05/01/2019", "05/02/2019");
        clickCell(history.window, "tableView2", emptyRow, 0);
        QCOMPARE(history.first(), QString());
    }

    void refusals_data()
    {
        const auto noTexts = QString(
            "Saisir une date valide dans première date et seconde date\nClick sur Afficher Date");
        const auto noDate = QString("Saisir une date valide");
        const auto backwards = QString("Première date doit-être < seconde date");
        const auto backwardsInTime = QString("Première date doit-être <= seconde date");
        const auto sameDay
            = QString("Première date doit-être < seconde date\nAjouter 1 jour à la seconde date");
        const auto valid = QString("Valide date");
        struct Case
        {
            const char* first;
            const char* second;
            QString title;
            QString text;
        };
        const std::vector<Case> cases{
            {"", "", valid, noTexts},
            {"5/01/2019", "05/02/2019", valid, noTexts},
            {"05/01/2019", "05/02/20190", valid, noTexts},
            {"31/02/2019", "05/02/2019", valid, noDate},
            {"02/31/2019", "05/02/2019", valid, noDate},
            {"05/02/2019", "05/01/2019", valid, backwards},
            {"05/02/2019", "05/01/2019 10:00:00.000", valid, backwards},
            {"05/01/2019 10:00:00.001", "05/01/2019 10:00:00.000", valid, backwardsInTime},
            {"05/01/2019", "05/01/2019", valid, sameDay},
            {"05/02/2019", "05/03/2019", QString("Historique"),
                QString("Historique est vide pour la pèriode du 05/02/2019 au 05/03/2019")},
            {" 05-02-2019", "05/02/2019 23:59:59.999", QString("Historique"),
                QString("Historique est vide pour la pèriode du 05-02-2019 au 05/02/2019 "
                        "23:59:59.999")},
        };
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        for (const char* trigger :
            {"btn_View_Historical", "btn_Total", "btn_Clear", "actionCalcul_Stock"}) {
            for (const Case& one : cases) {
                QTest::addRow("%s %s %s", trigger, one.first, one.second)
                    << QString::fromLatin1(trigger) << QString::fromUtf8(one.first)
                    << QString::fromUtf8(one.second) << one.title << one.text;
            }
        }
    }

    void refusals()
    {
        QFETCH(QString, trigger);
        QFETCH(QString, first);
        QFETCH(QString, second);
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.type(qPrintable(first), qPrintable(second));
        const AnswerBox box;
        if (auto* action = history.window.findChild<QAction*>(trigger)) {
            action->trigger();
        } else {
            click(history.window, qPrintable(trigger));
        }
        QTEST(box.title(), "title");
        QTEST(box.text(), "text");
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.parent(), &history.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowCount(history.window, "tableView1"), 0);
        QCOMPARE(rowCount(history.window, "tableView3"), 0);
        QCOMPARE(history.sold(), QString("1"));
        QCOMPARE(history.window.findChildren<QDialog*>().size(), 0);
    }

    void trimsTheFields()
    {
        OpenHistory history;
        history.type("  05/01/2019 ", " 05/02/2019  ");
        QVERIFY(history.window.ValidDate());
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString("05/02/2019"));
        history.type(" 05/01/2019", "05/01/2019 ");
        QVERIFY(history.window.ValidDate());
        const AnswerBox box;
        history.type(" 5/1/2019 ", "");
        QVERIFY(!history.window.ValidDate());
        QCOMPARE(history.first(), QString("5/1/2019"));
    }

    void listsOneDayUpToTheStartOfTheNext()
    {
        OpenHistory history;
        history.sell("La veille", "1", "2019-04-30 23:59:59.999");
        history.sell("Soir", "12.5", "2019-05-01 23:59:59.999");
        history.sell("Matin", "1234.5", "2019-05-01 00:00:00.000");
        history.sell("Le lendemain", "1", "2019-05-02 00:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        const AnswerBox box;
        click(history.window, "btn_View_Historical");
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(history.window, "tableView1"), 2);
        QCOMPARE(rowTexts(history.window, "tableView1", 0),
            texts({"Matin", "1,234.50$", "05/01/2019 00:00:00.000"}));
        QCOMPARE(rowTexts(history.window, "tableView1", 1),
            texts({"Soir", "12.50$", "05/01/2019 23:59:59.999"}));
    }

    void listsBetweenTwoMoments()
    {
        OpenHistory history;
        history.sell("A", "1", "2019-05-01 10:00:00.000");
        history.sell("B", "1", "2019-05-01 10:00:00.001");
        history.sell("C", "1", "2019-05-01 10:00:00.002");
        history.sell("D", "1", "2019-05-01 10:00:00.003");
        history.type("05/01/2019 10:00:00.001", "05/01/2019 10:00:00.002");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 2);
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(0), QString("B"));
        QCOMPARE(rowTexts(history.window, "tableView1", 1).at(0), QString("C"));
        history.type("05/01/2019 10:00:00.003", "05/01/2019 10:00:00.003");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(0), QString("D"));
    }

    void listsFromAMomentToADay()
    {
        OpenHistory history;
        history.sell("A", "1", "2020-02-29 09:59:59.999");
        history.sell("B", "1", "2020-02-29 10:00:00.000");
        history.sell("C", "1", "2020-03-01 00:00:00.000");
        history.type("02/29/2020 10:00:00.000", "03/01/2020");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowTexts(history.window, "tableView1", 0),
            texts({"B", "1.00$", "02/29/2020 10:00:00.000"}));
        history.type("02/29/2020", "02/29/2020 09:59:59.999");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(0), QString("A"));
    }

    void listsTheHourThatTheClockSkips()
    {
        OpenHistory history;
        history.sell("Nuit", "1", "2019-03-31 02:30:00.000");
        history.type("03/31/2019 02:15:00.000", "03/31/2019 02:45:00.000");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
    }

    void listsNamesAsTheyStand()
    {
        OpenHistory history;
        history.sell("l'eau", "2", "2019-05-01 10:00:00.000");
        history.sell("<b>\"Pastis\"</b>", "'gratuit'", "2019-05-01 10:00:01.000");
        history.sell("33", "-0.5", "2019-05-01 10:00:02.000");
        history.sell("----", "0", "2019-05-01 10:00:03.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(0), QString("l'eau"));
        QCOMPARE(rowTexts(history.window, "tableView1", 1),
            texts({"<b>\"Pastis\"</b>", "gratuit", "05/01/2019 10:00:01.000"}));
        QCOMPARE(rowTexts(history.window, "tableView1", 2),
            texts({"33.00$", "-0.50$", "05/01/2019 10:00:02.000"}));
        QCOMPARE(rowTexts(history.window, "tableView1", 3).at(1), QString("0.00$"));
    }

    void listsMalformedDatesEmpty()
    {
        OpenHistory history;
        history.sell("Sans date", "1", "");
        history.sell("Jour seul", "1", "2019-05-01");
        history.sell("Heure seule", "1", "2019-05-01 10");
        history.sell("Autre signe", "1", "2019-05-01T10:20:30.123");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 3);
        QCOMPARE(
            rowTexts(history.window, "tableView1", 0), texts({"Jour seul", "1.00$", "05/01/2019"}));
        QCOMPARE(rowTexts(history.window, "tableView1", 1), texts({"Heure seule", "1.00$", ""}));
        QCOMPARE(rowTexts(history.window, "tableView1", 2),
            texts({"Autre signe", "1.00$", "05/01/2019 10:20:30.123"}));
    }

    void groupsByArticleAndPrice()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("thé", "2", "2019-05-01 11:00:00.000");
        history.sell("Thé", "2", "2019-05-01 12:00:00.000");
        history.sell("Café", "1.5", "2019-05-01 13:00:00.000");
        history.sell("Café", "1.5", "2019-05-02 00:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView3"), 2);
        QCOMPARE(rowTexts(history.window, "tableView3", 0), texts({"1", "Café", "1.50$", "1.50$"}));
        QCOMPARE(rowTexts(history.window, "tableView3", 1), texts({"3", "Thé", "2.00$", "6.00$"}));
    }

    void twoPricesWithEqualCountsAreTwoLines()
    {
        OpenHistory history;
        for (const char* price : {"2", "2.5", "2", "2.5"}) {
            history.sell("Thé", price, "2019-05-01 10:00:00.000");
        }
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView3"), 2);
        QCOMPARE(rowTexts(history.window, "tableView3", 0), texts({"2", "Thé", "2.00$", "4.00$"}));
        QCOMPARE(rowTexts(history.window, "tableView3", 1), texts({"2", "Thé", "2.50$", "5.00$"}));
    }

    void aSecondListReplacesTheFirst()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("Café", "1.5", "2019-05-02 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_Total");
        history.type("05/02/2019", "05/03/2019");
        click(history.window, "btn_View_Historical");
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowTexts(history.window, "tableView1", 0).at(0), QString("Café"));
        QCOMPARE(rowCount(history.window, "tableView3"), 1);
        QCOMPARE(child<QTableView>(history.window, "tableView1").columnWidth(0), 210);
    }

    void anEmptyPeriodKeepsTheLists()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        history.type("05/02/2019", "05/03/2019");
        const AnswerBox box;
        click(history.window, "btn_View_Historical");
        QVERIFY(box.wasShown());
        QCOMPARE(rowCount(history.window, "tableView1"), 1);
        QCOMPARE(rowCount(history.window, "tableView3"), 1);
    }

    void anUnreadableSaleIsLogged()
    {
        OpenHistory history;
        history.shop.sql("drop table Historique");
        history.shop.sql("create table Historique (article text, date_heure text)");
        history.shop.sql("insert into Historique values ('Thé', '2019-05-01 10:00:00.000')");
        history.type("05/01/2019", "05/02/2019");
        CapturedOutput output;
        CapturedLog log;
        click(history.window, "btn_View_Historical");
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().at(0).startsWith(
            QString("Errors FormVendelHistorique Display_History : ")));
        QVERIFY(child<QTableView>(history.window, "tableView1").updatesEnabled());
    }
};

VENDEL_TEST(TestFormVendelHistoriqueSales)
#include "tst_FormVendelHistoriqueSales.moc"
