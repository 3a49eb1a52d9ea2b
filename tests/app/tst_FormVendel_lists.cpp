// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QScrollBar>
#include <QTableView>

namespace {
constexpr auto teaOnMenu = "insert into Article (article, prix) values ('Thé', 1)";
constexpr auto teaOnTicket = "insert into Ticket (id, article, prix) values (1, 'Thé', 1)";
} // namespace

/// What "Afficher", "Ticket" and "Effacer Ticket" put into the lists.
class TestFormVendelLists : public QObject
{
    Q_OBJECT

private slots:
    void theMenuIsShownByName()
    {
        OpenTill till("insert into Article (article, prix) values ('thé', 2.5), ('Bière', 1234.5),"
                      "('Eau', 0), ('bavette', -1)");
        QCOMPARE(till.rows("tableView1"),
            QStringList(
                {"4;;bavette;-1.00$", "2;;Bière;1,234.50$", "3;;Eau;0.00$", "1;;thé;2.50$"}));
        click(till.window, "btn_Afficher");
        QCOMPARE(till.names("tableView1"), QString("bavette|Bière|Eau|thé"));
    }

    void whatIsEmptyIsSaid()
    {
        Till till;
        QCOMPARE(till.noticeOf("btn_Afficher"),
            QString("Afficher: Le menu est vide\nAjouter des articles\n"
                    "Allez dans le menu Vendel Saisie Article"));
        QCOMPARE(till.noticeOf("btn_Ticket"), QString("Ticket: Le ticket est vide"));
        QCOMPARE(
            till.noticeOf("btn_Effacer_Ticket"), QString("Effacer ticket: Le ticket est vide"));
        QCOMPARE(rowCount(till.window, "tableView1"), 0);
    }

    void listsAreEmptiedBeforeTheNotice()
    {
        Till till;
        for (const auto& [button, list] :
            {std::pair("btn_Afficher", "tableView1"), std::pair("btn_Ticket", "tableView2"),
                std::pair("btn_Effacer_Ticket", "tableView2")}) {
            till.run(teaOnMenu);
            till.run(teaOnTicket);
            click(till.window, "btn_Afficher");
            click(till.window, "btn_Ticket");
            QCOMPARE(rowCount(till.window, list), 1);
            till.shop.fill("delete from Article; delete from Ticket");
            int rows = -1;
            const AnswerBox box(QMessageBox::Ok,
                [&, shown = list](QMessageBox&) { rows = rowCount(till.window, shown); });
            click(till.window, button);
            QCOMPARE(rows, 0);
            QCOMPARE(rowCount(till.window, list), 0);
        }
    }

    void namesWithoutDoublesAreShownSilently()
    {
        Till till("insert into Article (article, prix) values ('Été', 1), ('été', 1), ('Eau', 1)");
        const AnswerBox box;
        CapturedOutput output;
        click(till.window, "btn_Afficher");
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
        QCOMPARE(till.marks(), QString("||"));
        QCOMPARE(output.text(), QByteArray());
    }

    void doubledNamesAreSaidAndMarked_data()
    {
        QTest::addColumn<QByteArray>("articles");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QStringList>("marked");
        QTest::newRow("one") << QByteArray("('Cafe', 1), ('Eau', 1), ('cafe', 2)") << "1"
                             << QStringList("1;X;Cafe;1.00$");
        QTest::newRow("two") << QByteArray(
            "('Vin', 1), ('Eau', 1), ('Thé', 1), ('EAU', 1), ('VIN', 1)")
                             << "2" << QStringList({"1;X;Vin;1.00$", "2;X;Eau;1.00$"});
    }

    void doubledNamesAreSaidAndMarked()
    {
        QFETCH(QByteArray, articles);
        QFETCH(QString, number);
        Till till;
        till.run("insert into Article (article, prix) values " + articles);
        QCOMPARE(till.noticeOf("btn_Afficher"),
            "Doublon: Supprimer le(s) " + number
                + " doublon(s) note(s) X...\nAllez dans le menu Vendel Saisie Article");
        QCOMPARE(rowCount(till.window, "tableView1"), articles.count('('));
        QStringList marked = till.rows("tableView1").filter(";X;");
        marked.sort();
        QTEST(marked, "marked");
        QCOMPARE(till.marks().count('X'), marked.size());
    }

    void marksComeAfterTheNotice()
    {
        Till till("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
        QString marksDuringTheNotice = "?";
        const AnswerBox box(
            QMessageBox::Ok, [&](QMessageBox&) { marksDuringTheNotice = till.marks(); });
        click(till.window, "btn_Afficher");
        QCOMPARE(marksDuringTheNotice, QString("|"));
        QVERIFY(till.marks().contains('X'));
    }

    void theNoticeOfDoublesIsTranslatedWithItsNumber()
    {
        Translation translation;
        const QString source = "Supprimer le(s) %n doublon(s) note(s) X...\n"
                               "Allez dans le menu Vendel Saisie Article";
        translation.add("FormVendelMessages", source, "Delete %n double");
        translation.addPlural("FormVendelMessages", source, "Delete %n doubles");
        translation.add("FormVendelMessages", "Doublon", "Doubles");
        Till till("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
        QCOMPARE(till.noticeOf("btn_Afficher"), QString("Doubles: Delete 1 double"));
        till.run("insert into Article (article, prix) values ('Eau', 3)");
        QCOMPARE(till.noticeOf("btn_Afficher"), QString("Doubles: Delete 2 doubles"));
    }

    void thousandsOfArticlesAreShown()
    {
        Till till("with recursive n(i) as (select 1 union all select i + 1 from n where i < 3000)"
                  "insert into Article (article, prix) select 'Article ' || (i % 2990), i from n");
        QVERIFY(till.noticeOf("btn_Afficher").contains(" 10 doublon(s) "));
        QCOMPARE(rowCount(till.window, "tableView1"), 3000);
        QCOMPARE(till.marks().count('X'), 10);
    }

    void theTicketIsShownAsItIsStored()
    {
        Till till("insert into Ticket (idlig, id, article, prix) values (7, 3, 'Thé', 2.5),"
                  "(9, 0, '----', -1234.5), (8, 2, 'Eau', 1)");
        const AnswerBox box;
        click(till.window, "btn_Ticket");
        QCOMPARE(till.rows("tableView2"),
            QStringList({"7;3;Thé;2.50$", "8;2;Eau;1.00$", "9;0;----;-1,234.50$"}));
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
    }

    void theTicketIsEmptied()
    {
        OpenTill till("insert into Ticket (id, article, prix) values (1, 'Thé', 1), (1, 'Thé', 1)");
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.shownLines(), 5);
        const AnswerBox box;
        click(till.window, "btn_Effacer_Ticket");
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
        QCOMPARE(till.shownLines(), 0);
        QCOMPARE(till.ticket(), QStringList());
        QCOMPARE(till.history(), QStringList());
    }

    void noticesOfEmptyListsAreTranslated()
    {
        Till till;
        const MarkedContext marked("FormVendelMessages");
        const QString nothing = ": FormVendelMessages:Le ticket est vide";
        QCOMPARE(
            till.noticeOf("btn_Effacer_Ticket"), "FormVendelMessages:Effacer ticket" + nothing);
        QCOMPARE(till.noticeOf("btn_Total_Ticket"), "FormVendelMessages:Total" + nothing);
        QCOMPARE(till.noticeOf("btn_Ticket"), "FormVendelMessages:Ticket" + nothing);
        QCOMPARE(till.noticeOf("btn_Afficher"),
            QString("FormVendelMessages:Afficher: FormVendelMessages:Le menu est vide\n"
                    "Ajouter des articles\nAllez dans le menu Vendel Saisie Article"));
    }

    void rowsFitTheirFont()
    {
        OpenTill till("insert into Article (article, prix) values ('Àgj', 1);"
                      "insert into Ticket (id, article, prix) values (1, 'Àgj', 1)");
        click(till.window, "btn_Total_Ticket");
        for (const auto* name : {"tableView1", "tableView2"}) {
            const QTableView& view = till.list(name);
            for (int row = 0; row < view.model()->rowCount(); ++row) {
                QVERIFY(view.rowHeight(row) > QFontMetrics(view.font()).height());
            }
        }
    }

    void aRefilledTicketShowsItsFirstLine()
    {
        Till till("with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
                  "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, i from n");
        click(till.window, "btn_Ticket");
        const QTableView& view = till.list("tableView2");
        QCOMPARE(view.verticalScrollBar()->value(), 0);
        QCOMPARE(view.indexAt(QPoint(5, 5)).row(), 0);
    }
};

VENDEL_TEST(TestFormVendelLists)
#include "tst_FormVendel_lists.moc"
