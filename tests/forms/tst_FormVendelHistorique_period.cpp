// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QDialog>

/// The two dates: how they get into their fields, and which of them make a period.
class TestFormVendelHistoriquePeriod : public QObject
{
    Q_OBJECT

private slots:
    void aRefusedPeriodKeepsWhatIsShown_data()
    {
        textColumns({"trigger", "first", "second", "box"});
        const char* noDates = "Valide date: Saisir une date valide dans première date et seconde "
                              "date\nClick sur Afficher Date";
        const char* noDay = "Valide date: Saisir une date valide";
        const char* backwards = "Valide date: Première date doit-être < seconde date";
        for (const char* trigger :
            {"btn_View_Historical", "btn_Total", "btn_Clear", "actionCalcul_Stock"}) {
            const auto row = [&](const char* first, const char* second, const char* box) {
                QTest::addRow("%s '%s' '%s'", trigger, first, second)
                    << trigger << first << second << box;
            };
            row("", "", noDates);
            row("05/01/2019", "", noDates);
            row("5/1/2019", "05/02/2019", noDates);
            row("5/01/2019", "05/02/2019", noDates);
            row("05/01/2019", "05/02/20190", noDates);
            row("31/02/2019", "05/02/2019", noDay);
            row("02/31/2019", "05/02/2019", noDay);
            row("05/02/2019", "05/01/2019", backwards);
            row("05/02/2019", "05/01/2019 10:00:00.000", backwards);
            row("05/01/2019 10:00:00.001", "05/01/2019 10:00:00.000",
                "Valide date: Première date doit-être <= seconde date");
            row("05/01/2019", "05/01/2019",
                "Valide date: Première date doit-être < seconde date\nAjouter 1 jour à la seconde "
                "date");
            row("05/02/2019", "05/03/2019",
                "Historique: Historique est vide pour la pèriode du 05/02/2019 au 05/03/2019");
            row(" 05-02-2019", "05/02/2019 23:59:59.999",
                "Historique: Historique est vide pour la pèriode du 05-02-2019 au 05/02/2019 "
                "23:59:59.999");
        }
    }

    void aRefusedPeriodKeepsWhatIsShown()
    {
        QFETCH(QString, trigger);
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, box);
        ListedHistory history;
        QCOMPARE(history.now(), history.atFirst);
        history.type(first, second);
        QCOMPARE(history.push(trigger.toUtf8().constData()), QStringList(box));
        QCOMPARE(history.now(), history.atFirst);
        QCOMPARE(history.first(), first.trimmed());
        QCOMPARE(history.second(), second);
        QCOMPARE(history.window.findChildren<QDialog*>().size(), 0);
    }

    void trimsTheFields()
    {
        OpenHistory history("", "  05/01/2019 ", " 05/02/2019  ");
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

    void aDayGoesIntoTheChosenField()
    {
        OpenHistory history("('Thé', 2, '2019-05-01'), ('Thé', 2, '2019-05-02')", "", "");
        history.push("btn_Show_Date");
        clickCell(history.window, "tableView2", 0, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString());
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView2", 1, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString("05/02/2019"));
    }

    void aMalformedDayEmptiesTheChosenField()
    {
        OpenHistory history("('Thé', 2, '')");
        history.push("btn_Show_Date");
        clickCell(history.window, "tableView2", 0, 0);
        QCOMPARE(history.first(), QString());
    }

    void aSaleGoesIntoTheChosenField()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.250'), ('Thé', 2, '2019-05-01 11:00:00.500')",
            "05/01/2019", "05/02/2019");
        history.push("btn_View_Historical");
        clickCell(history.window, "tableView1", 0, 0);
        QCOMPARE(history.first(), QString("05/01/2019 10:00:00.250"));
        QCOMPARE(history.second(), QString("05/02/2019"));
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView1", 1, 2);
        QCOMPARE(history.second(), QString("05/01/2019 11:00:00.500"));
    }

    void theTotalsRowIsNoDate()
    {
        ListedHistory history;
        clickCell(history.window, "tableView1", 2, 2);
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView1", 2, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString("05/02/2019"));
    }

    void aClickOnNoRowLeavesTheFields()
    {
        OpenHistory history;
        for (const char* slot : {"on_tableView1_clicked", "on_tableView2_clicked"}) {
            QVERIFY(QMetaObject::invokeMethod(
                &history.window, slot, Qt::DirectConnection, Q_ARG(QModelIndex, QModelIndex())));
            QCOMPARE(history.first(), QString("05/01/2019"));
            QCOMPARE(history.second(), QString("05/02/2019"));
        }
    }

    void effacerSaisieEmptiesBothFields()
    {
        OpenHistory history("", "05/01/2019", "05/02/2019 10:00:00.000");
        history.push("btn_Del_Seizure");
        QCOMPARE(history.first(), QString());
        QCOMPARE(history.second(), QString());
    }
};

VENDEL_TEST(TestFormVendelHistoriquePeriod)
#include "tst_FormVendelHistorique_period.moc"
