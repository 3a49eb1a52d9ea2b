// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>

namespace {
constexpr auto menu = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2)";
constexpr auto menuAndTicket
    = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2);"
      "insert into Ticket (id, article, prix) values (1, 'Un', 1), (1, 'Deux', 2), (1, 'Trois', 3)";

/// The sales screen with its menu shown, and its ticket where there is one.
struct OpenCounter : Till
{
    explicit OpenCounter(const char* sql)
        : Till(sql)
    {
        click(window, "btn_Afficher");
        if (!shop.sql("select 1 from Ticket").empty()) {
            click(window, "btn_Ticket");
        }
    }

    QString ticket()
    {
        return names("tableView2");
    }

    QString stored() const
    {
        return shop.cell("select group_concat(article, '|') from Ticket");
    }
};

void press(QTableView& view, int row, QEvent::Type type, Qt::MouseButton button)
{
    const QPoint point = view.visualRect(view.model()->index(row, 2)).center();
    QMouseEvent down(type, point, point, button, button, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &down);
    QMouseEvent up(QEvent::MouseButtonRelease, point, point, button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &up);
}
} // namespace

class TestFormVendelClicks : public QObject
{
    Q_OBJECT

private slots:
    void aClickPutsTheArticleOnTheTicket()
    {
        OpenCounter counter(menu);
        clickCell(counter.window, "tableView1", 1, 2);
        QCOMPARE(rowCount(counter.window, "tableView2"), 1);
        QCOMPARE(rowTexts(counter.window, "tableView2", 0).join('|'), QString("1|2|Café|1.20$"));
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(rowTexts(counter.window, "tableView2", 1).join('|'), QString("2|1|Bière|4.50$"));
        QCOMPARE(counter.shop.sql("select * from Ticket"),
            (DbRows{{"1", "2", "Café", "1.2"}, {"2", "1", "Bière", "4.5"}}));
    }

    void everyColumnOfTheMenuIsClicked()
    {
        OpenCounter counter(menu);
        for (const int column : {1, 2, 3}) {
            clickCell(counter.window, "tableView1", 0, column);
        }
        QCOMPARE(counter.ticket(), QString("Bière|Bière|Bière"));
    }

    void aDoubleClickPutsTwoOnTheTicket()
    {
        OpenCounter counter(menu);
        doubleClickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("Bière|Bière"));
    }

    void threeQuickPressesAreThreeLines()
    {
        OpenCounter counter(menu);
        doubleClickCell(counter.window, "tableView1", 0, 2);
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("Bière|Bière|Bière"));
    }

    void fiveQuickPressesAreFiveLines()
    {
        OpenCounter counter(menu);
        doubleClickCell(counter.window, "tableView1", 0, 2);
        QTest::qWait(100);
        doubleClickCell(counter.window, "tableView1", 0, 2);
        QTest::qWait(100);
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("Bière|Bière|Bière|Bière|Bière"));
        QCOMPARE(counter.stored(), QString("Bière|Bière|Bière|Bière|Bière"));
    }

    void quickPressesOnTwoArticlesAreOneLineEach()
    {
        OpenCounter counter(menu);
        auto& view = child<QTableView>(counter.window, "tableView1");
        press(view, 0, QEvent::MouseButtonPress, Qt::LeftButton);
        press(view, 1, QEvent::MouseButtonDblClick, Qt::LeftButton);
        QCOMPARE(counter.ticket(), QString("Bière|Café"));
    }

    void theRightButtonSellsNothing()
    {
        OpenCounter counter(menuAndTicket);
        for (const auto* name : {"tableView1", "tableView2"}) {
            auto& view = child<QTableView>(counter.window, name);
            press(view, 0, QEvent::MouseButtonPress, Qt::RightButton);
            press(view, 0, QEvent::MouseButtonDblClick, Qt::RightButton);
        }
        QCOMPARE(counter.stored(), QString("Un|Deux|Trois"));
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.stored(), QString("Un|Deux|Trois|Bière"));
    }

    void aClickBesideTheRowsDoesNothing()
    {
        OpenCounter counter(menuAndTicket);
        for (const auto* name : {"tableView1", "tableView2"}) {
            QTest::mouseClick(child<QTableView>(counter.window, name).viewport(), Qt::LeftButton,
                Qt::NoModifier, QPoint(200, 450));
        }
        QCOMPARE(counter.stored(), QString("Un|Deux|Trois"));
    }

    void aClickOnAHeaderDoesNothing()
    {
        OpenCounter counter(menuAndTicket);
        for (const auto* name : {"tableView1", "tableView2"}) {
            auto& view = child<QTableView>(counter.window, name);
            QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                QPoint(60, 10));
            QTest::mouseClick(
                view.verticalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 10));
        }
        QCOMPARE(counter.stored(), QString("Un|Deux|Trois"));
    }

    void whatIsStoredIsSold()
    {
        OpenCounter counter(menu);
        counter.shop.fill("update Article set article = 'Bière d''abbaye', prix = 5 where id = 1");
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.shop.sql("select id, article, prix from Ticket"),
            (DbRows{{"1", "Bière d'abbaye", "5"}}));
    }

    void anArticleThatIsGoneIsNotSold()
    {
        OpenCounter counter(menuAndTicket);
        counter.shop.fill("delete from Article where id = 1; delete from Ticket where idlig = 1");
        CapturedOutput output;
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("Deux|Trois"));
        QCOMPARE(output.text(), QByteArray());
    }

    void aQuoteInANameStandsOnTheTicket()
    {
        OpenCounter counter("insert into Article (article, prix) values ('l''eau', 1)");
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("l'eau"));
        QCOMPARE(counter.stored(), QString("l'eau"));
    }

    void aClickOnALineRemovesIt()
    {
        OpenCounter counter(menuAndTicket);
        clickCell(counter.window, "tableView2", 1, 2);
        QCOMPARE(counter.ticket(), QString("Un|Trois"));
        QCOMPARE(counter.stored(), QString("Un|Trois"));
    }

    void aDoubleClickRemovesOneLine()
    {
        OpenCounter counter(menuAndTicket);
        doubleClickCell(counter.window, "tableView2", 0, 2);
        QCOMPARE(counter.ticket(), QString("Deux|Trois"));
        doubleClickCell(counter.window, "tableView2", 1, 3);
        QCOMPARE(counter.stored(), QString("Deux"));
    }

    void threeQuickPressesRemoveTwoLines()
    {
        OpenCounter counter(menuAndTicket);
        doubleClickCell(counter.window, "tableView2", 0, 2);
        clickCell(counter.window, "tableView2", 0, 2);
        QCOMPARE(counter.stored(), QString("Trois"));
    }

    void twoSlowClicksRemoveTwoLines()
    {
        OpenCounter counter(menuAndTicket);
        clickCell(counter.window, "tableView2", 0, 2);
        clickCell(counter.window, "tableView2", 0, 3);
        QCOMPARE(counter.stored(), QString("Trois"));
    }

    void theLastLineGoesWithoutAMessage()
    {
        OpenCounter counter(menu);
        clickCell(counter.window, "tableView1", 0, 2);
        AnswerBox box;
        clickCell(counter.window, "tableView2", 0, 2);
        QTest::qWait(50);
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(counter.window, "tableView2"), 0);
        QCOMPARE(counter.stored(), QString());
    }

    void onlyTheClickedLineGoes()
    {
        OpenCounter counter(menu);
        clickCell(counter.window, "tableView1", 0, 2);
        clickCell(counter.window, "tableView1", 0, 2);
        clickCell(counter.window, "tableView2", 0, 2);
        QCOMPARE(counter.shop.sql("select idlig, article from Ticket"), (DbRows{{"2", "Bière"}}));
    }

    void theNewestLineIsInView()
    {
        OpenCounter counter(menu);
        auto& view = child<QTableView>(counter.window, "tableView2");
        for (int line = 1; line <= 30; ++line) {
            clickCell(counter.window, "tableView1", line % 2, 2);
            const QRect newest = view.visualRect(view.model()->index(line - 1, 2));
            QVERIFY2(view.viewport()->rect().contains(newest), qPrintable(QString::number(line)));
        }
        QVERIFY(view.verticalScrollBar()->maximum() > 0);
    }

    void aRemovalDoesNotScrollTheTicket()
    {
        OpenCounter counter("insert into Article (article, prix) values ('Thé', 1);"
                            "with recursive n(i) as (select 1 union all select i + 1 from n "
                            "where i < 60) insert into Ticket (id, article, prix) "
                            "select 1, 'Thé ' || i, 1 from n");
        auto& view = child<QTableView>(counter.window, "tableView2");
        const auto removeAt = [&](QPoint point) {
            QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, point);
            return view.indexAt(QPoint(5, 5)).data().toString();
        };
        view.scrollToBottom();
        view.scrollTo(view.model()->index(20, 2), QAbstractItemView::PositionAtTop);
        QCOMPARE(removeAt(QPoint(50, 100)), QString("Thé 21"));
        QCOMPARE(removeAt(QPoint(50, 5)), QString("Thé 22"));
        view.scrollToBottom();
        QCOMPARE(rowCount(counter.window, "tableView2"), 58);
        clickCell(counter.window, "tableView2", 57, 2);
        QVERIFY(view.viewport()->rect().contains(view.visualRect(view.model()->index(56, 2))));
    }

    void anAddedLineTakesTheTotalsAway()
    {
        OpenCounter counter(menuAndTicket);
        click(counter.window, "btn_Total_Ticket");
        QCOMPARE(rowCount(counter.window, "tableView2"), 6);
        clickCell(counter.window, "tableView1", 0, 2);
        QCOMPARE(counter.ticket(), QString("Un|Deux|Trois|Bière"));
    }

    void aClickOnATotalRemovesNothing()
    {
        for (const int total : {3, 4, 5}) {
            OpenCounter counter(menuAndTicket);
            click(counter.window, "btn_Total_Ticket");
            clickCell(counter.window, "tableView2", total, 2);
            QCOMPARE(counter.ticket(), QString("Un|Deux|Trois"));
            QCOMPARE(counter.stored(), QString("Un|Deux|Trois"));
        }
    }

    void theTicketOutlivesTheWindow()
    {
        OpenCounter counter(menu);
        clickCell(counter.window, "tableView1", 0, 2);
        FormVendel other;
        click(other, "btn_Ticket");
        QCOMPARE(rowTexts(other, "tableView2", 0).at(2), QString("Bière"));
    }
};

VENDEL_TEST(TestFormVendelClicks)
#include "tst_FormVendelClicks.moc"
