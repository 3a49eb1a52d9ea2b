// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>

namespace {
constexpr auto menu = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2)";
constexpr auto menuAndTicket
    = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2);"
      "insert into Ticket (id, article, prix) values (1, 'Un', 1), (1, 'Deux', 2), (1, 'Trois', 3)";

/// A till whose lists are clicked.
struct Counter : OpenTill
{
    using OpenTill::OpenTill;

    void sell(int row, int column = 2)
    {
        clickCell(window, "tableView1", row, column);
    }

    void remove(int row, int column = 2)
    {
        clickCell(window, "tableView2", row, column);
    }

    /// The names on the ticket, parted by "|", or what is wrong when the database has others.
    QString ticketNames()
    {
        const QString stored = shop.cell("select group_concat(article, '|') from Ticket");
        const QString shown = names("tableView2");
        return stored == shown ? shown : "shown " + shown + ", stored " + stored;
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

/// Clicks on the menu sell, clicks on the ticket take off.
class TestFormVendelClicks : public QObject
{
    Q_OBJECT

private slots:
    void aClickPutsTheArticleOnTheTicket()
    {
        Counter till(menu);
        till.sell(1);
        QCOMPARE(till.rows("tableView2"), QStringList("1;2;Café;1.20$"));
        till.sell(0);
        QCOMPARE(till.rows("tableView2"), QStringList({"1;2;Café;1.20$", "2;1;Bière;4.50$"}));
        QCOMPARE(till.shop.sql("select * from Ticket"),
            (DbRows{{"1", "2", "Café", "1.2"}, {"2", "1", "Bière", "4.5"}}));
    }

    void everyColumnOfTheMenuIsClicked()
    {
        Counter till(menu);
        for (const int column : {1, 2, 3}) {
            till.sell(0, column);
        }
        QCOMPARE(till.ticketNames(), QString("Bière|Bière|Bière"));
    }

    void everyQuickPressIsOneLine()
    {
        Counter till(menu);
        doubleClickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.ticketNames(), QString("Bière|Bière"));
        till.sell(0);
        QCOMPARE(till.ticketNames(), QString("Bière|Bière|Bière"));
        doubleClickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.ticketNames(), QString("Bière|Bière|Bière|Bière|Bière"));
    }

    void quickPressesOnTwoArticlesAreOneLineEach()
    {
        Counter till(menu);
        press(till.list("tableView1"), 0, QEvent::MouseButtonPress, Qt::LeftButton);
        press(till.list("tableView1"), 1, QEvent::MouseButtonDblClick, Qt::LeftButton);
        QCOMPARE(till.ticketNames(), QString("Bière|Café"));
    }

    void theRightButtonSellsNothing()
    {
        Counter till(menuAndTicket);
        for (const auto* name : {"tableView1", "tableView2"}) {
            press(till.list(name), 0, QEvent::MouseButtonPress, Qt::RightButton);
            press(till.list(name), 0, QEvent::MouseButtonDblClick, Qt::RightButton);
        }
        QCOMPARE(till.ticketNames(), QString("Un|Deux|Trois"));
        till.sell(0);
        QCOMPARE(till.ticketNames(), QString("Un|Deux|Trois|Bière"));
    }

    void aClickBesideTheRowsDoesNothing()
    {
        Counter till(menuAndTicket);
        const auto clickAt = [](QWidget* widget, QPoint point) {
            QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, point);
        };
        for (const auto* name : {"tableView1", "tableView2"}) {
            const QTableView& view = till.list(name);
            clickAt(view.viewport(), QPoint(200, 450));
            clickAt(view.horizontalHeader()->viewport(), QPoint(60, 10));
            clickAt(view.verticalHeader()->viewport(), QPoint(5, 10));
            QCOMPARE(till.ticketNames(), QString("Un|Deux|Trois"));
        }
    }

    void whatIsStoredIsSold()
    {
        Counter till(menu);
        till.shop.fill("update Article set article = 'Bière d''abbaye', prix = 5 where id = 1");
        till.sell(0);
        QCOMPARE(till.shop.sql("select id, article, prix from Ticket"),
            (DbRows{{"1", "Bière d'abbaye", "5"}}));
    }

    void anArticleThatIsGoneIsNotSold()
    {
        Counter till(menuAndTicket);
        till.shop.fill("delete from Article where id = 1; delete from Ticket where idlig = 1");
        CapturedOutput output;
        till.sell(0);
        QCOMPARE(till.ticketNames(), QString("Deux|Trois"));
        QCOMPARE(output.text(), QByteArray());
    }

    void everyClickOnTheTicketRemovesOneLine()
    {
        Counter till(menuAndTicket);
        till.remove(1);
        QCOMPARE(till.ticketNames(), QString("Un|Trois"));
        till.remove(0, 3);
        QCOMPARE(till.ticketNames(), QString("Trois"));
    }

    void aDoubleClickRemovesOneLine()
    {
        Counter till(menuAndTicket);
        doubleClickCell(till.window, "tableView2", 0, 2);
        QCOMPARE(till.ticketNames(), QString("Deux|Trois"));
        doubleClickCell(till.window, "tableView2", 1, 3);
        QCOMPARE(till.ticketNames(), QString("Deux"));
    }

    void threeQuickPressesRemoveTwoLines()
    {
        Counter till(menuAndTicket);
        doubleClickCell(till.window, "tableView2", 0, 2);
        till.remove(0);
        QCOMPARE(till.ticketNames(), QString("Trois"));
    }

    void theLastLineGoesWithoutAMessage()
    {
        Counter till(menu);
        till.sell(0);
        const AnswerBox box;
        till.remove(0);
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticketNames(), QString());
        QCOMPARE(till.shownLines(), 0);
    }

    void onlyTheClickedLineGoes()
    {
        Counter till(menu);
        till.sell(0);
        till.sell(0);
        till.remove(0);
        QCOMPARE(till.shop.sql("select idlig, article from Ticket"), (DbRows{{"2", "Bière"}}));
    }

    void theNewestLineIsInView()
    {
        Counter till(menu);
        for (int line = 1; line <= 30; ++line) {
            till.sell(line % 2);
            QVERIFY2(till.isInView("tableView2", line - 1), qPrintable(QString::number(line)));
        }
        QVERIFY(till.list("tableView2").verticalScrollBar()->maximum() > 0);
    }

    void aRemovalDoesNotScrollTheTicket()
    {
        Counter till("insert into Article (article, prix) values ('Thé', 1);"
                     "with recursive n(i) as (select 1 union all select i + 1 from n "
                     "where i < 60) insert into Ticket (id, article, prix) "
                     "select 1, 'Thé ' || i, 1 from n");
        QTableView& view = till.list("tableView2");
        const auto removeAt = [&](QPoint point) {
            QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, point);
            return view.indexAt(QPoint(5, 5)).data().toString();
        };
        view.scrollToBottom();
        view.scrollTo(view.model()->index(20, 2), QAbstractItemView::PositionAtTop);
        QCOMPARE(removeAt(QPoint(50, 100)), QString("Thé 21"));
        QCOMPARE(removeAt(QPoint(50, 5)), QString("Thé 22"));
        view.scrollToBottom();
        QCOMPARE(till.shownLines(), 58);
        till.remove(57);
        QVERIFY(till.isInView("tableView2", 56));
    }

    void anAddedLineTakesTheTotalsAway()
    {
        Counter till(menuAndTicket);
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.shownLines(), 6);
        till.sell(0);
        QCOMPARE(till.ticketNames(), QString("Un|Deux|Trois|Bière"));
    }

    void aClickOnATotalRemovesNothing()
    {
        Counter till(menuAndTicket);
        for (const int total : {3, 4, 5}) {
            click(till.window, "btn_Total_Ticket");
            till.remove(total);
            QCOMPARE(till.ticketNames(), QString("Un|Deux|Trois"));
        }
    }

    void theTicketOutlivesTheWindow()
    {
        Counter till(menu);
        till.sell(0);
        FormVendel other;
        click(other, "btn_Ticket");
        QCOMPARE(rowTexts(other, "tableView2", 0).at(2), QString("Bière"));
    }
};

VENDEL_TEST(TestFormVendelClicks)
#include "tst_FormVendel_clicks.moc"
