// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QScrollBar>
#include <QTableView>

namespace {
constexpr auto mark = 1;

void compareNotice(const AnswerBox& box, const Till& counter, const char* title, const char* text)
{
    QVERIFY(box.wasShown());
    QCOMPARE(box.title(), QString::fromUtf8(title));
    QCOMPARE(box.text(), QString::fromUtf8(text));
    QCOMPARE(box.icon(), QMessageBox::Information);
    QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent(), &counter.window);
    QCOMPARE(box.strays(), 0);
}

QString marks(Till& counter)
{
    QStringList texts;
    for (int row = 0; row < rowCount(counter.window, "tableView1"); ++row) {
        texts << rowTexts(counter.window, "tableView1", row).at(mark);
    }
    return texts.join('|');
}
} // namespace

class TestFormVendelLists : public QObject
{
    Q_OBJECT

private slots:
    void theMenuIsShownByName()
    {
        Till counter("insert into Article (article, prix) values ('thé', 2.5), ('Bière', 1234.5),"
                     "('Eau', 0), ('bavette', -1)");
        click(counter.window, "btn_Afficher");
        QStringList rows;
        for (int row = 0; row < rowCount(counter.window, "tableView1"); ++row) {
            rows << rowTexts(counter.window, "tableView1", row).join(';');
        }
        QCOMPARE(rows,
            (QStringList{QString("4;;bavette;-1.00$"), QString("2;;Bière;1,234.50$"),
                QString("3;;Eau;0.00$"), QString("1;;thé;2.50$")}));
    }

    void anEmptyMenuIsSaid()
    {
        Till counter;
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        compareNotice(box, counter, "Afficher",
            "Le menu est vide\nAjouter des articles\nAllez dans le menu Vendel Saisie Article");
        QCOMPARE(rowCount(counter.window, "tableView1"), 0);
    }

    void theMenuIsEmptiedBeforeItIsFilled()
    {
        Till counter("insert into Article (article, prix) values ('Thé', 1), ('Eau', 1)");
        click(counter.window, "btn_Afficher");
        click(counter.window, "btn_Afficher");
        QCOMPARE(counter.names("tableView1"), QString("Eau|Thé"));
        counter.shop.sql("delete from Article");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        QVERIFY(box.wasShown());
        QCOMPARE(rowCount(counter.window, "tableView1"), 0);
    }

    void anArticleNamedByANumberIsShownAsMoney()
    {
        Till counter("insert into Article (article, prix) values ('33', 2)");
        click(counter.window, "btn_Afficher");
        QCOMPARE(rowTexts(counter.window, "tableView1", 0).join(';'), QString("1;;33.00$;2.00$"));
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(rowTexts(counter.window, "tableView2", 0).join(';'), QString("1;1;33.00$;2.00$"));
        QCOMPARE(counter.shop.cell("select article from Ticket"), QString("33"));
    }

    void anArticleWithoutDoublesIsShownSilently()
    {
        Till counter("insert into Article (article, prix) values ('Thé', 1), ('Eau', 1)");
        AnswerBox box;
        CapturedOutput output;
        click(counter.window, "btn_Afficher");
        QTest::qWait(50);
        QVERIFY(!box.wasShown());
        QCOMPARE(marks(counter), QString("|"));
        QCOMPARE(output.text(), QByteArray());
    }

    void aDoubledNameIsSaidAndMarked()
    {
        Till counter("insert into Article (article, prix) values ('Cafe', 1), ('Eau', 1),"
                     "('cafe', 2)");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        compareNotice(box, counter, "Doublon",
            "Supprimer le(s) 1 doublon(s) note(s) X...\nAllez dans le menu Vendel Saisie Article");
        QCOMPARE(rowCount(counter.window, "tableView1"), 3);
        for (int row = 0; row < 3; ++row) {
            const QStringList texts = rowTexts(counter.window, "tableView1", row);
            QCOMPARE(texts.at(mark), texts.at(0) == QLatin1String("1") ? QString("X") : QString());
        }
    }

    void marksComeAfterTheNotice()
    {
        Till counter("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
        QString marksDuringTheNotice = QString("?");
        AnswerBox box(
            QMessageBox::Ok, [&](QMessageBox&) { marksDuringTheNotice = marks(counter); });
        click(counter.window, "btn_Afficher");
        QCOMPARE(marksDuringTheNotice, QString("|"));
        QVERIFY(marks(counter).contains('X'));
    }

    void twoDoubledNamesAreTwoMarks()
    {
        Till counter("insert into Article (article, prix) values ('Vin', 1), ('Eau', 1),"
                     "('Thé', 1), ('EAU', 1), ('VIN', 1)");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        QCOMPARE(box.text(),
            QString("Supprimer le(s) 2 doublon(s) note(s) X...\n"
                    "Allez dans le menu Vendel Saisie Article"));
        QStringList marked;
        for (int row = 0; row < 5; ++row) {
            const QStringList texts = rowTexts(counter.window, "tableView1", row);
            if (texts.at(mark) == QLatin1String("X")) {
                marked << texts.at(2);
            }
        }
        marked.sort();
        QCOMPARE(marked, (QStringList{QString("Eau"), QString("Vin")}));
    }

    void accentedLettersAreNotFolded()
    {
        Till counter("insert into Article (article, prix) values ('Été', 1), ('été', 1)");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        QTest::qWait(50);
        QVERIFY(!box.wasShown());
    }

    void theNoticeOfDoublesIsTranslatedWithItsNumber()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        const QString source = QString("Supprimer le(s) %n doublon(s) note(s) X...\n"
                                       "Allez dans le menu Vendel Saisie Article");
        translation.add(context, source, QString("Delete %n double"));
        translation.addPlural(context, source, QString("Delete %n doubles"));
        translation.add(context, QString("Doublon"), QString("Doubles"));
        Till counter("insert into Article (article, prix) values ('Eau', 1), ('Eau', 2)");
        {
            AnswerBox box;
            click(counter.window, "btn_Afficher");
            compareNotice(box, counter, "Doubles", "Delete 1 double");
        }
        counter.shop.sql("insert into Article (article, prix) values ('Eau', 3)");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        compareNotice(box, counter, "Doubles", "Delete 2 doubles");
    }

    void thousandsOfArticlesAreShown()
    {
        Till counter(
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 3000)"
            "insert into Article (article, prix) select 'Article ' || (i % 2990), i from n");
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        QVERIFY(box.text().contains(QLatin1String(" 10 doublon(s) ")));
        QCOMPARE(rowCount(counter.window, "tableView1"), 3000);
        QCOMPARE(marks(counter).count('X'), 10);
    }

    void theTicketIsShownAsItIsStored()
    {
        Till counter("insert into Ticket (idlig, id, article, prix) values (7, 3, 'Thé', 2.5),"
                     "(9, 0, '----', -1234.5), (8, 2, 'Eau', 1)");
        AnswerBox box;
        click(counter.window, "btn_Ticket");
        QStringList rows;
        for (int row = 0; row < rowCount(counter.window, "tableView2"); ++row) {
            rows << rowTexts(counter.window, "tableView2", row).join(';');
        }
        QCOMPARE(rows,
            (QStringList{QString("7;3;Thé;2.50$"), QString("8;2;Eau;1.00$"),
                QString("9;0;----;-1,234.50$")}));
        QTest::qWait(20);
        QVERIFY(!box.wasShown());
    }

    void anEmptyTicketIsSaid()
    {
        Till counter;
        AnswerBox box;
        click(counter.window, "btn_Ticket");
        compareNotice(box, counter, "Ticket", "Le ticket est vide");
    }

    void showingAnEmptyTicketClearsTheList()
    {
        Till counter("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(counter.window, "btn_Ticket");
        counter.shop.sql("delete from Ticket");
        AnswerBox box;
        click(counter.window, "btn_Ticket");
        QVERIFY(box.wasShown());
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
    }

    void theTicketIsEmptied()
    {
        Till counter("insert into Ticket (id, article, prix) values (1, 'Thé', 1), (1, 'Thé', 1)");
        click(counter.window, "btn_Ticket");
        AnswerBox box;
        click(counter.window, "btn_Effacer_Ticket");
        QTest::qWait(50);
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
        QVERIFY(counter.shop.sql("select * from Ticket").empty());
        QVERIFY(counter.shop.sql("select * from Historique").empty());
    }

    void emptyingAnEmptyTicketIsSaid()
    {
        Till counter;
        AnswerBox box;
        click(counter.window, "btn_Effacer_Ticket");
        compareNotice(box, counter, "Effacer ticket", "Le ticket est vide");
    }

    void emptyingClearsTotalsToo()
    {
        Till counter("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(rowCount(counter.window, "tableView2"), 4);
        click(counter.window, "btn_Effacer_Ticket");
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
    }

    void listsAreEmptiedBeforeTheNotice()
    {
        Till counter("insert into Article (article, prix) values ('Thé', 1);"
                     "insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        const auto rowsDuringTheNotice = [&](const char* button, const char* list) {
            int rows = -1;
            AnswerBox box(
                QMessageBox::Ok, [&](QMessageBox&) { rows = rowCount(counter.window, list); });
            click(counter.window, button);
            return rows;
        };
        click(counter.window, "btn_Afficher");
        click(counter.window, "btn_Ticket");
        counter.shop.fill("delete from Article; delete from Ticket");
        QCOMPARE(rowsDuringTheNotice("btn_Afficher", "tableView1"), 0);
        QCOMPARE(rowsDuringTheNotice("btn_Ticket", "tableView2"), 0);
        counter.shop.sql("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(counter.window, "btn_Ticket");
        counter.shop.sql("delete from Ticket");
        QCOMPARE(rowsDuringTheNotice("btn_Effacer_Ticket", "tableView2"), 0);
    }

    void theTotalOfAnEmptyTicketLeavesTheList()
    {
        Till counter("insert into Ticket (id, article, prix) values (1, 'Thé', 1)");
        click(counter.window, "btn_Ticket");
        counter.shop.sql("delete from Ticket");
        const AnswerBox box;
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(box.title(), QString("Total"));
        QCOMPARE(counter.names("tableView2"), QString("Thé"));
    }

    void messagesAreTranslated()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        translation.add(context, QString("Le ticket est vide"), QString("Nothing sold"));
        translation.add(context, QString("Effacer ticket"), QString("Clear"));
        translation.add(context, QString("Total"), QString("Sum"));
        Till counter;
        {
            AnswerBox box;
            click(counter.window, "btn_Effacer_Ticket");
            compareNotice(box, counter, "Clear", "Nothing sold");
        }
        AnswerBox box;
        click(counter.window, "btn_Total_Ticket");
        compareNotice(box, counter, "Sum", "Nothing sold");
    }

    void noticesOfEmptyListsAreTranslated()
    {
        Till counter;
        const MarkedContext marked("FormVendelMessages");
        {
            AnswerBox box;
            click(counter.window, "btn_Ticket");
            compareNotice(
                box, counter, "FormVendelMessages:Ticket", "FormVendelMessages:Le ticket est vide");
        }
        AnswerBox box;
        click(counter.window, "btn_Afficher");
        compareNotice(box, counter, "FormVendelMessages:Afficher",
            "FormVendelMessages:Le menu est vide\nAjouter des articles\nAllez dans le menu Vendel "
            "Saisie Article");
    }

    void rowsFitTheirFont()
    {
        Till counter("insert into Article (article, prix) values ('Àgj', 1);"
                     "insert into Ticket (id, article, prix) values (1, 'Àgj', 1)");
        click(counter.window, "btn_Afficher");
        click(counter.window, "btn_Total_Ticket");
        for (const auto* name : {"tableView1", "tableView2"}) {
            const auto& view = child<QTableView>(counter.window, name);
            for (int row = 0; row < view.model()->rowCount(); ++row) {
                QVERIFY(view.rowHeight(row) > QFontMetrics(view.font()).height());
            }
        }
    }

    void aRefilledTicketShowsItsFirstLine()
    {
        Till counter("with recursive n(i) as (select 1 union all select i + 1 from n where i < 60)"
                     "insert into Ticket (id, article, prix) select 1, 'Thé ' || i, i from n");
        click(counter.window, "btn_Ticket");
        const auto& view = child<QTableView>(counter.window, "tableView2");
        QCOMPARE(view.verticalScrollBar()->value(), 0);
        QCOMPARE(view.indexAt(QPoint(5, 5)).row(), 0);
    }
};

VENDEL_TEST(TestFormVendelLists)
#include "tst_FormVendelLists.moc"
