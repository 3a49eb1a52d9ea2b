// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

namespace {
const QString eauOnMenu = "Menu\nClick sur : Eau\nPour l'ajouter au ticket";

/// A till with two articles and a line of its ticket on the screen.
struct TippedTill : OpenTill
{
    explicit TippedTill(const char* sql
        = "insert into Article (article, prix) values ('Thé', 2.5), ('Eau', 1);"
          "insert into Ticket (id, article, prix) values (2, 'Eau', 1)")
        : OpenTill(sql)
    { }

    /// The tip over the name in a row of a list.
    QString tip(const char* list, int row, int column = 2)
    {
        hoverCell(window, list, row, column);
        return tipText();
    }

    QWidget& viewport(const char* name) { return *list(name).viewport(); }
};

/// Whether a tip with \a text is there to stay.
bool stays(const QString& text) { return tipText() == text && !isTipLeaving(); }
} // namespace

/// The tips over the lists of the sales screen.
class TestFormVendelTips : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void nameWhatTheClickIsFor()
    {
        TippedTill till;
        QCOMPARE(till.tip("tableView1", 0), eauOnMenu);
        QCOMPARE(
            till.tip("tableView1", 1), QString("Menu\nClick sur : Thé\nPour l'ajouter au ticket"));
        QCOMPARE(till.tip("tableView2", 0),
            QString("Ticket\nClick sur : Eau\nPour supprimer l'article du ticket"));
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(till.tip("tableView2", 1),
            QString("Ticket\nClick sur : Total ticket\nPour supprimer l'article du ticket"));
    }

    void areTheSameOverEveryColumn()
    {
        TippedTill till;
        for (const int column : {1, 2, 3}) {
            QToolTip::hideText();
            QCOMPARE(till.tip("tableView1", 0, column), eauOnMenu);
        }
    }

    void standRightBelowTheirPoint()
    {
        TippedTill till;
        hoverPoint(till.viewport("tableView1"), QPointF(100.6, 5.4));
        // Qt puts a tip below a pointer of 16 pixels, 2 pixels to the right.
        QCOMPARE(visibleTip()->pos(), QPoint(101 + 150 + 2, 5 + 130 + 16));
    }

    void areHiddenOverAnEmptyArea()
    {
        TippedTill till;
        for (const auto* list : {"tableView1", "tableView2"}) {
            QVERIFY(!till.tip(list, 0).isEmpty());
            QVERIFY(!isTipLeaving());
            hoverPoint(till.viewport(list), QPointF(200, 500));
            QVERIFY(isTipLeaving());
            QTRY_VERIFY(!QToolTip::isVisible());
        }
    }

    void areMissingWhereThereIsNoName()
    {
        TippedTill till("insert into Article (article, prix) values ('', 1), ('Thé', 1)");
        hoverPoint(till.viewport("tableView2"), QPointF(20, 10));
        QVERIFY(!QToolTip::isVisible());
        QVERIFY(!till.tip("tableView1", 1).isEmpty());
        hoverCell(till.window, "tableView1", 0, 2);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void areSwitchedOffAndOnByTheCheckBox()
    {
        TippedTill till;
        QVERIFY(!till.tip("tableView1", 0).isEmpty());
        click(till.window, "chkbx_ToolTip");
        QVERIFY(!child<QCheckBox>(till.window, "chkbx_ToolTip").isChecked());
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(till.tip("tableView1", 0), QString());
        QCOMPARE(till.tip("tableView2", 0), QString());
        click(till.window, "chkbx_ToolTip");
        QCOMPARE(till.tip("tableView1", 0), eauOnMenu);
    }

    void areTakenAwayByTheCheckBoxsKey()
    {
        TippedTill till;
        auto& box = child<QCheckBox>(till.window, "chkbx_ToolTip");
        box.setFocus();
        QVERIFY(!till.tip("tableView1", 0).isEmpty());
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isChecked());
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void areTouchedByNoOtherEvent()
    {
        TippedTill till;
        QCOMPARE(till.tip("tableView1", 0), eauOnMenu);
        QObject& filter = till.window;
        for (const auto type : {QEvent::Enter, QEvent::HoverLeave, QEvent::StatusTip,
                 QEvent::UpdateRequest, QEvent::LayoutRequest, QEvent::PaletteChange}) {
            QEvent event(type);
            QVERIFY(!filter.eventFilter(&till.viewport("tableView1"), &event));
            QVERIFY(!filter.eventFilter(&till.viewport("tableView2"), &event));
            QVERIFY2(stays(eauOnMenu), qPrintable(QString::number(type)));
        }
    }

    void leaveTheListsTheirEvents()
    {
        TippedTill till;
        QObject& filter = till.window;
        for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress,
                 QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
            QMouseEvent event(type, QPointF(50, 5), QPointF(50, 5), Qt::LeftButton, Qt::LeftButton,
                Qt::NoModifier);
            QVERIFY(!filter.eventFilter(&till.viewport("tableView1"), &event));
            QVERIFY(!filter.eventFilter(&till.viewport("tableView2"), &event));
            QVERIFY(!filter.eventFilter(&till.window, &event));
        }
    }

    void outliveQtsOwnRequestAndEveryTick()
    {
        TippedTill till;
        QCOMPARE(till.tip("tableView1", 0), eauOnMenu);
        QWidget& viewport = till.viewport("tableView1");
        QHelpEvent request(QEvent::ToolTip, QPoint(50, 5), viewport.mapToGlobal(QPoint(50, 5)));
        QApplication::sendEvent(&viewport, &request);
        QVERIFY(stays(eauOnMenu));
        auto& splash = child<FormVendelStart>(till.window, "FormVendelStart");
        for (int tick = 1; tick <= 6; ++tick) {
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
            QVERIFY(QMetaObject::invokeMethod(&till.window, "on_timeout"));
            QCoreApplication::processEvents();
            QVERIFY(stays(eauOnMenu));
        }
    }

    void showANameLikeATagAsPlainText()
    {
        TippedTill till("insert into Article (article, prix) values ('<b>x</b>', 1);"
                        "insert into Ticket (id, article, prix) values (1, '&lt;', 1)");
        QCOMPARE(till.tip("tableView1", 0),
            QString("Menu\nClick sur : <b>x</b>\nPour l'ajouter au ticket"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
        QCOMPARE(till.tip("tableView2", 0),
            QString("Ticket\nClick sur : &lt;\nPour supprimer l'article du ticket"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
    }

    void areTranslated()
    {
        Translation translation;
        translation.add("FormVendelMessages", "Menu\nClick sur : ", "Menu\nClick: ");
        translation.add("FormVendelMessages", "\nPour l'ajouter au ticket", "\nto add it");
        translation.add("FormVendelMessages", "Ticket\nClick sur : ", "Ticket\nClick: ");
        translation.add(
            "FormVendelMessages", "\nPour supprimer l'article du ticket", "\nto take it off");
        TippedTill till;
        QCOMPARE(till.tip("tableView1", 0), QString("Menu\nClick: Eau\nto add it"));
        QCOMPARE(till.tip("tableView2", 0), QString("Ticket\nClick: Eau\nto take it off"));
        // Without a line break as well, a tip is plain text.
        translation.add("FormVendelMessages", "Menu\nClick sur : ", "Click: ");
        till.run("insert into Article (article, prix) values ('<b>x</b>', 1)");
        click(till.window, "btn_Afficher");
        QCOMPARE(till.tip("tableView1", 0),
            QString("<p>Click: &lt;b&gt;x&lt;/b&gt;<br>\nto add it</p>"));
    }

    void cutANameOfTenThousandCharacters()
    {
        TippedTill till("insert into Article (article, prix) values "
                        "(replace(hex(zeroblob(5000)), '0', 'é'), 1)");
        QCOMPARE(till.tip("tableView1", 0),
            "Menu\nClick sur : " + QString(200, QChar(0xE9)) + QChar(0x2026)
                + "\nPour l'ajouter au ticket");
    }
};

VENDEL_TEST(TestFormVendelTips)
#include "tst_FormVendel_tips.moc"
