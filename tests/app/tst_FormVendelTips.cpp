// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

namespace {
constexpr auto oneOnTheTicket
    = "insert into Article (article, prix) values ('Thé', 2.5), ('Eau', 1);"
      "insert into Ticket (id, article, prix) values (2, 'Eau', 1)";

/// The sales screen with its menu and ticket shown.
struct OpenCounter : Till
{
    explicit OpenCounter(const char* sql = oneOnTheTicket)
        : Till(sql)
    {
        click(window, "btn_Afficher");
        if (!shop.sql("select 1 from Ticket").empty()) {
            click(window, "btn_Ticket");
        }
    }

    void hover(const char* list, int row, int column)
    {
        hoverCell(window, list, row, column);
    }

    QWidget& viewport(const char* list)
    {
        return *child<QTableView>(window, list).viewport();
    }
};

const QString eauOnMenu = QString("Menu\nClick sur : Eau\nPour l'ajouter au ticket");

QPoint tipPosition()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget->pos();
        }
    }
    return {-1, -1};
}
} // namespace

class TestFormVendelTips : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void theMenusTipNamesTheArticle()
    {
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), eauOnMenu);
        counter.hover("tableView1", 1, 2);
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : Thé\nPour l'ajouter au ticket"));
    }

    void theTicketsTipNamesTheLine()
    {
        OpenCounter counter;
        counter.hover("tableView2", 0, 2);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(),
            QString("Ticket\nClick sur : Eau\nPour supprimer l'article du ticket"));
    }

    void everyColumnTellsTheName()
    {
        OpenCounter counter;
        for (const int column : {1, 2, 3}) {
            QToolTip::hideText();
            counter.hover("tableView1", 0, column);
            QCOMPARE(QToolTip::text(), eauOnMenu);
        }
    }

    void theTipStandsRightBelowItsPoint()
    {
        OpenCounter counter;
        QMouseEvent move(QEvent::MouseMove, QPointF(100.6, 5.4), QPointF(100.6, 5.4), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&counter.viewport("tableView1"), &move);
        // Qt puts a tip below a pointer of 16 pixels, 2 pixels to the right.
        QCOMPARE(tipPosition(), QPoint(101 + 150 + 2, 5 + 130 + 16));
    }

    void aTotalHasATipToo()
    {
        OpenCounter counter;
        click(counter.window, "btn_Total_Ticket");
        counter.hover("tableView2", 1, 2);
        QCOMPARE(QToolTip::text(),
            QString("Ticket\nClick sur : Total ticket\nPour supprimer l'article du ticket"));
    }

    void anEmptyAreaHidesTheTip()
    {
        OpenCounter counter;
        for (const auto* list : {"tableView1", "tableView2"}) {
            counter.hover(list, 0, 2);
            QVERIFY(QToolTip::isVisible());
            QMouseEvent move(QEvent::MouseMove, QPointF(200, 500), QPointF(200, 500), Qt::NoButton,
                Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&counter.viewport(list), &move);
            QTRY_VERIFY(!QToolTip::isVisible());
        }
    }

    void anEmptyListHasNoTip()
    {
        OpenCounter counter("insert into Article (article, prix) values ('Thé', 1)");
        QMouseEvent move(QEvent::MouseMove, QPointF(20, 10), QPointF(20, 10), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&counter.viewport("tableView2"), &move);
        QVERIFY(!QToolTip::isVisible());
    }

    void aNamelessArticleHasNoTip()
    {
        OpenCounter counter("insert into Article (article, prix) values ('', 1), ('Thé', 1)");
        counter.hover("tableView1", 1, 2);
        QVERIFY(QToolTip::isVisible());
        counter.hover("tableView1", 0, 2);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void theCheckBoxSwitchesTipsOff()
    {
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QVERIFY(QToolTip::isVisible());
        click(counter.window, "chkbx_ToolTip");
        QVERIFY(!child<QCheckBox>(counter.window, "chkbx_ToolTip").isChecked());
        QTRY_VERIFY(!QToolTip::isVisible());
        counter.hover("tableView1", 0, 2);
        counter.hover("tableView2", 0, 2);
        QVERIFY(!QToolTip::isVisible());
    }

    void theCheckBoxTakesAStandingTipAway()
    {
        OpenCounter counter;
        auto& box = child<QCheckBox>(counter.window, "chkbx_ToolTip");
        box.setFocus();
        counter.hover("tableView1", 0, 2);
        QVERIFY(QToolTip::isVisible());
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isChecked());
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void theCheckBoxSwitchesTipsOnAgain()
    {
        OpenCounter counter;
        click(counter.window, "chkbx_ToolTip");
        click(counter.window, "chkbx_ToolTip");
        counter.hover("tableView1", 0, 2);
        QCOMPARE(QToolTip::text(), eauOnMenu);
    }

    void otherEventsTouchNoTip_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("enter") << static_cast<int>(QEvent::Enter);
        QTest::newRow("hover") << static_cast<int>(QEvent::HoverLeave);
        QTest::newRow("status tip") << static_cast<int>(QEvent::StatusTip);
        QTest::newRow("update request") << static_cast<int>(QEvent::UpdateRequest);
        QTest::newRow("layout request") << static_cast<int>(QEvent::LayoutRequest);
        QTest::newRow("palette") << static_cast<int>(QEvent::PaletteChange);
    }

    void otherEventsTouchNoTip()
    {
        QFETCH(int, type);
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QEvent event(static_cast<QEvent::Type>(type));
        QObject& filter = counter.window;
        for (const auto* list : {"tableView1", "tableView2"}) {
            QVERIFY(!filter.eventFilter(&counter.viewport(list), &event));
        }
        QTest::qWait(400);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), eauOnMenu);
    }

    void theListsProcessTheirEventsAsUsual()
    {
        OpenCounter counter;
        QObject& filter = counter.window;
        for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress,
                 QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
            QMouseEvent event(type, QPointF(50, 5), QPointF(50, 5), Qt::LeftButton, Qt::LeftButton,
                Qt::NoModifier);
            QVERIFY(!filter.eventFilter(&counter.viewport("tableView1"), &event));
            QVERIFY(!filter.eventFilter(&counter.viewport("tableView2"), &event));
            QVERIFY(!filter.eventFilter(&counter.window, &event));
        }
    }

    void qtsOwnTipRequestKeepsTheTip()
    {
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QWidget& viewport = counter.viewport("tableView1");
        QHelpEvent request(QEvent::ToolTip, QPoint(50, 5), viewport.mapToGlobal(QPoint(50, 5)));
        QApplication::sendEvent(&viewport, &request);
        QTest::qWait(400);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), eauOnMenu);
    }

    void theSplashsTimerTakesNoTipAway()
    {
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        auto& splash = child<FormVendelStart>(counter.window, "FormVendelStart");
        for (int tick = 1; tick <= 6; ++tick) {
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
        }
        QTest::qWait(400);
        QVERIFY(QToolTip::isVisible());
    }

    void theClockTakesNoTipAway()
    {
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QTest::qWait(1200);
        QVERIFY(QToolTip::isVisible());
    }

    void aNameLikeATagIsPlainText()
    {
        OpenCounter counter("insert into Article (article, prix) values ('<b>x</b>', 1);"
                            "insert into Ticket (id, article, prix) values (1, '&lt;', 1)");
        counter.hover("tableView1", 0, 2);
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : <b>x</b>\nPour l'ajouter au ticket"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
        counter.hover("tableView2", 0, 2);
        QCOMPARE(QToolTip::text(),
            QString("Ticket\nClick sur : &lt;\nPour supprimer l'article du ticket"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
    }

    void aTranslationWithoutALineBreakIsPlainTextToo()
    {
        Translation translation;
        translation.add(
            QString("FormVendelMessages"), QString("Menu\nClick sur : "), QString("Click: "));
        OpenCounter counter("insert into Article (article, prix) values ('<b>x</b>', 1)");
        counter.hover("tableView1", 0, 2);
        QCOMPARE(QToolTip::text(),
            QString("<p>Click: &lt;b&gt;x&lt;/b&gt;<br>\nPour l'ajouter au ticket</p>"));
    }

    void tipsAreTranslated()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        translation.add(context, QString("Menu\nClick sur : "), QString("Menu\nClick: "));
        translation.add(context, QString("\nPour l'ajouter au ticket"), QString("\nto add it"));
        translation.add(context, QString("Ticket\nClick sur : "), QString("Ticket\nClick: "));
        translation.add(
            context, QString("\nPour supprimer l'article du ticket"), QString("\nto take it off"));
        OpenCounter counter;
        counter.hover("tableView1", 0, 2);
        QCOMPARE(QToolTip::text(), QString("Menu\nClick: Eau\nto add it"));
        counter.hover("tableView2", 0, 2);
        QCOMPARE(QToolTip::text(), QString("Ticket\nClick: Eau\nto take it off"));
    }

    void aNameOfTenThousandCharactersIsCut()
    {
        OpenCounter counter("insert into Article (article, prix) values "
                            "(replace(hex(zeroblob(5000)), '0', 'é'), 1)");
        counter.hover("tableView1", 0, 2);
        QCOMPARE(QToolTip::text(),
            QLatin1String("Menu\nClick sur : ") + QString(200, QChar(0xE9)) + QChar(0x2026)
                + QLatin1String("\nPour l'ajouter au ticket"));
    }
};

VENDEL_TEST(TestFormVendelTips)
#include "tst_FormVendelTips.moc"
