// SPDX-License-Identifier: MIT
#include "tests/forms/OpenHistory.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QTableView>

namespace {
/// A history that shows two sales with their total, two groups and two days.
struct ShownHistory : OpenHistory
{
    ShownHistory()
    {
        sell("Thé", "2", "2019-05-01 10:00:00.000");
        sell("Café", "1.5", "2019-05-01 11:00:00.000");
        sell("Vin", "3", "2019-05-02 10:00:00.000");
        type("05/01/2019", "05/02/2019");
        click(window, "btn_Show_Date");
        click(window, "btn_Total");
    }

    QStringList rows(const char* list)
    {
        QStringList texts;
        for (int row = 0; row < rowCount(window, list); ++row) {
            texts << rowTexts(window, list, row).join(';');
        }
        return texts;
    }

    /// Whether the three lists are as they were filled.
    bool isAsBefore()
    {
        return rows("tableView1")
            == texts({"Thé;2.00$;05/01/2019 10:00:00.000", "Café;1.50$;05/01/2019 11:00:00.000",
                "Total historique;3.50$;<-"})
            && rows("tableView2") == texts({"05/01/2019", "05/02/2019"})
            && rows("tableView3") == texts({"1;Café;1.50$;1.50$", "1;Thé;2.00$;2.00$"});
    }
};
} // namespace

/// What is shown stays shown when the history refuses what is asked of it.
class TestHistoryRefusals : public QObject
{
    Q_OBJECT

private slots:
    void aRefusedPeriodKeepsWhatIsShown_data()
    {
        struct Case
        {
            const char* name;
            const char* first;
            const char* second;
        };
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        for (const char* trigger :
            {"btn_View_Historical", "btn_Total", "btn_Clear", "actionCalcul_Stock"}) {
            for (const Case& one :
                {Case{"no dates", "", ""}, Case{"no second date", "05/01/2019", ""},
                    Case{"a date too short", "5/1/2019", "05/02/2019"},
                    Case{"no day of the calendar", "02/31/2019", "05/02/2019"},
                    Case{"backwards", "05/02/2019", "05/01/2019"},
                    Case{"backwards in time", "05/01/2019 10:00:00.001", "05/01/2019 10:00:00.000"},
                    Case{"the same day", "05/01/2019", "05/01/2019"},
                    Case{"no sale", "06/01/2019", "06/02/2019"}}) {
                QTest::addRow("%s: %s", trigger, one.name)
                    << QString::fromLatin1(trigger) << QString::fromLatin1(one.first)
                    << QString::fromLatin1(one.second);
            }
        }
    }

    void aRefusedPeriodKeepsWhatIsShown()
    {
        QFETCH(const QString, trigger);
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        ShownHistory history;
        QVERIFY(history.isAsBefore());
        history.type(qPrintable(first), qPrintable(second));
        const AnswerBox box(QMessageBox::Ok);
        if (auto* action = history.window.findChild<QAction*>(trigger)) {
            action->trigger();
        } else {
            click(history.window, qPrintable(trigger));
        }
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.strays(), 0);
        QVERIFY(history.isAsBefore());
        QCOMPARE(history.sold(), QString("3"));
        QCOMPARE(history.first(), first);
        QCOMPARE(history.second(), second);
    }

    void aRefusedPurgeKeepsWhatIsShown()
    {
        ShownHistory history;
        const AnswerBox box(QMessageBox::No);
        click(history.window, "btn_Clear");
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.strays(), 0);
        QVERIFY(history.isAsBefore());
        QCOMPARE(history.sold(), QString("3"));
    }
};

VENDEL_TEST(TestHistoryRefusals)
#include "tst_HistoryRefusals.moc"
