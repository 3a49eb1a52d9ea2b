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
#include <QVector>

namespace {
constexpr auto menu = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2)";
constexpr auto menuAndTicket
    = "insert into Article (article, prix) values ('Bière', 4.5), ('Café', 1.2);"
      "insert into Ticket (id, article, prix) values (1, 'Un', 1), (1, 'Deux', 2), (1, 'Trois', 3)";

/// A click or a double click on a cell of a list, or else on "Total Ticket".
struct Gesture
{
    const char* list = nullptr;
    int row = 0;
    int column = 2;
    bool isDouble = false;
};
using Gestures = QVector<Gesture>;

/// A till whose lists are clicked.
struct Counter : OpenTill
{
    using OpenTill::OpenTill;

    void act(const Gesture& gesture)
    {
        if (gesture.list == nullptr) {
            click(window, "btn_Total_Ticket");
        } else if (gesture.isDouble) {
            doubleClickCell(window, gesture.list, gesture.row, gesture.column);
        } else {
            clickCell(window, gesture.list, gesture.row, gesture.column);
        }
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
Q_DECLARE_METATYPE(Gestures)

/// Clicks on the menu sell, clicks on the ticket take off.
class TestFormVendelClicks : public QObject
{
    Q_OBJECT

private slots:
    void aClickPutsTheArticleOnTheTicket()
    {
        Counter till(menu);
        till.act({"tableView1", 1});
        QCOMPARE(till.rows("tableView2"), QStringList("1;2;Café;1.20$"));
        till.act({"tableView1", 0});
        QCOMPARE(till.rows("tableView2"), QStringList({"1;2;Café;1.20$", "2;1;Bière;4.50$"}));
        QCOMPARE(till.shop.sql("select * from Ticket"),
            (DbRows{{"1", "2", "Café", "1.2"}, {"2", "1", "Bière", "4.5"}}));
    }

    void clicksAreCounted_data()
    {
        QTest::addColumn<Gestures>("gestures");
        QTest::addColumn<QString>("ticket");
        const auto row = [](const char* name, const Gestures& gestures, const char* ticket) {
            QTest::newRow(name) << gestures << QString(ticket);
        };
        const Gesture totals;
        row("every column sells",
            {{"tableView1", 0, 1}, {"tableView1", 0, 2}, {"tableView1", 0, 3}},
            "Un|Deux|Trois|Bière|Bière|Bière");
        row("a double click sells two", {{"tableView1", 0, 2, true}}, "Un|Deux|Trois|Bière|Bière");
        row("three presses sell three", {{"tableView1", 0, 2, true}, {"tableView1", 0}},
            "Un|Deux|Trois|Bière|Bière|Bière");
        row("five presses sell five",
            {{"tableView1", 0, 2, true}, {"tableView1", 0, 2, true}, {"tableView1", 0}},
            "Un|Deux|Trois|Bière|Bière|Bière|Bière|Bière");
        row("a click removes a line", {{"tableView2", 1}}, "Un|Trois");
        row("two clicks remove two", {{"tableView2", 0}, {"tableView2", 0, 3}}, "Trois");
        row("a double click removes one", {{"tableView2", 0, 2, true}}, "Deux|Trois");
        row("two double clicks remove two",
            {{"tableView2", 0, 2, true}, {"tableView2", 1, 3, true}}, "Deux");
        row("three presses remove two", {{"tableView2", 0, 2, true}, {"tableView2", 0}}, "Trois");
        row("the first total stays", {totals, {"tableView2", 3}}, "Un|Deux|Trois");
        row("the tax stays", {totals, {"tableView2", 4}}, "Un|Deux|Trois");
        row("the last total stays", {totals, {"tableView2", 5}}, "Un|Deux|Trois");
        row("a sale takes totals away", {totals, {"tableView1", 0}}, "Un|Deux|Trois|Bière");
    }

    void clicksAreCounted()
    {
        QFETCH(Gestures, gestures);
        Counter till(menuAndTicket);
        for (const Gesture& gesture : qAsConst(gestures)) {
            till.act(gesture);
        }
        QTEST(till.ticketNames(), "ticket");
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
        till.act({"tableView1", 0});
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
        till.act({"tableView1", 0});
        QCOMPARE(till.shop.sql("select id, article, prix from Ticket"),
            (DbRows{{"1", "Bière d'abbaye", "5"}}));
    }

    void anArticleThatIsGoneIsNotSold()
    {
        Counter till(menuAndTicket);
        till.shop.fill("delete from Article where id = 1; delete from Ticket where idlig = 1");
        CapturedOutput output;
        till.act({"tableView1", 0});
        QCOMPARE(till.ticketNames(), QString("Deux|Trois"));
        QCOMPARE(output.text(), QByteArray());
    }

    void theLastLineGoesWithoutAMessage()
    {
        Counter till(menu);
        till.act({"tableView1", 0});
        const AnswerBox box;
        till.act({"tableView2", 0});
        QCoreApplication::processEvents();
        QVERIFY(!box.wasShown());
        QCOMPARE(till.ticketNames(), QString());
        QCOMPARE(till.shownLines(), 0);
    }

    void onlyTheClickedLineGoes()
    {
        Counter till(menu);
        till.act({"tableView1", 0});
        till.act({"tableView1", 0});
        till.act({"tableView2", 0});
        QCOMPARE(till.shop.sql("select idlig, article from Ticket"), (DbRows{{"2", "Bière"}}));
    }

    void theNewestLineIsInView()
    {
        Counter till(menu);
        for (int line = 1; line <= 30; ++line) {
            till.act({"tableView1", line % 2});
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
        till.act({"tableView2", 57});
        QVERIFY(till.isInView("tableView2", 56));
    }

    void theTicketOutlivesTheWindow()
    {
        Counter till(menu);
        till.act({"tableView1", 0});
        FormVendel other;
        click(other, "btn_Ticket");
        QCOMPARE(rowTexts(other, "tableView2", 0).at(2), QString("Bière"));
    }
};

VENDEL_TEST(TestFormVendelClicks)
#include "tst_FormVendel_clicks.moc"
