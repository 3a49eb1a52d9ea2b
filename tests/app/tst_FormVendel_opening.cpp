// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QShowEvent>
#include <QTimer>
#include <QtTest/qtestspontaneevent.h>

/// What the till does when it starts, what its menus open, and how it ends.
class TestFormVendelOpening : public QObject
{
    Q_OBJECT

private slots:
    void aMissingDatabaseIsMadeBeforeTheFirstShow()
    {
        const Shop shop(Shop::Database::None);
        CapturedOutput output;
        const FormVendel window;
        QCOMPARE(shop.cell("select count(*) from sqlite_master where type = 'table' and name in "
                           "('Article', 'ArticleStock', 'Historique', 'DoseStock', 'Config', "
                           "'Ticket')"),
            QString("6"));
        QCOMPARE(shop.cell("select name from sqlite_master where type = 'index'"),
            QString("date_heure_index"));
        QCOMPARE(shop.sql("select param, valeur from Config"),
            (DbRows{{"TVA", "0"}, {"Epson TM-T20II", "0"}}));
        QCOMPARE(output.text(), QByteArray());
    }

    void anExistingDatabaseStaysAsItIs()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 20 where param = 'TVA'");
        const QByteArray before = shop.read("Vendel.db");
        {
            FormVendel window;
            window.show();
            QTRY_VERIFY(child<QLabel>(window, "lbl_DateTime").text() != "DateTime");
        }
        QCOMPARE(shop.read("Vendel.db"), before);
        QCOMPARE(QDir().entryList(QDir::Files), QStringList("Vendel.db"));
        // A file of any kind is left alone too.
        shop.write("Vendel.db", QByteArray());
        const FormVendel window;
        QCOMPARE(shop.read("Vendel.db"), QByteArray());
    }

    void onlyTheFirstShowOpensTheSplash()
    {
        const Shop shop;
        FormVendel window;
        window.move(100, 50);
        window.show();
        QCOMPARE(window.findChildren<FormVendelStart*>().size(), 1);
        const auto& splash = child<FormVendelStart>(window, "FormVendelStart");
        QVERIFY(splash.isVisible());
        QCOMPARE(splash.windowModality(), Qt::WindowModal);
        QCOMPARE(splash.parentWidget(), &window);
        // (1050 - 1) / 2 - (445 - 1) / 2 and (626 - 1) / 2 - (186 - 1) / 2 on the screen.
        QCOMPARE(splash.pos(), QPoint(302, 220));
        // A show from the desktop, out of the task bar say, opens no other.
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(&window, &restored);
        QCOMPARE(window.findChildren<FormVendelStart*>().size(), 1);
    }

    void thePrinterSwitchIsLogged_data()
    {
        QTest::addColumn<QByteArray>("sql");
        QTest::addColumn<QStringList>("debugs");
        QTest::addColumn<QStringList>("criticals");
        const QString on = "Warning Epson to 1 (ON)";
        const auto row = [](const char* name, QByteArray value, const QStringList& debugs,
                             const QStringList& criticals = {}) {
            QTest::newRow(name) << "update Config set valeur = " + value
                    + " where param = 'Epson TM-T20II'"
                                << debugs << criticals;
        };
        row("on", "1", {on});
        row("off", "0", {});
        row("another number", "2", {});
        row("begins with 1", "1.5", {on});
        row("ten", "10", {});
        row("no number", "'on'", {}, {"Errors FormVendel showEvent : stoi"});
        QTest::newRow("two switches") << QByteArray(
            "update Config set valeur = 1, param = 'epson tm-t20ii' where param like 'Epson%';"
            "insert into Config (param, valeur) values ('EPSON TM-T20II', 1)")
                                      << QStringList({on, on}) << QStringList();
        QTest::newRow("none") << QByteArray("delete from Config") << QStringList() << QStringList();
    }

    void thePrinterSwitchIsLogged()
    {
        QFETCH(QByteArray, sql);
        const Shop shop;
        shop.fill(sql.constData());
        const CapturedLog log;
        FormVendel window;
        QCOMPARE(log.debugs(), QStringList());
        window.show();
        QTEST(log.debugs(), "debugs");
        QTEST(log.criticals(), "criticals");
        QVERIFY(window.isVisible());
    }

    void closingTheWindowEndsTheProgram()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        QTimer::singleShot(0, &window, &QWidget::close);
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!window.isVisible());
    }

    void menuActionsOpenTheirWindows_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("FormVendelConfig") << "actionConfig";
        QTest::newRow("FormVendelSaisieArticle") << "actionSaisie_Article";
        QTest::newRow("FormVendelHistorique") << "actionHistorique";
        QTest::newRow("FormVendelAbout") << "actionA_propos_de";
    }

    void menuActionsOpenTheirWindows()
    {
        QFETCH(QString, action);
        Till till("insert into Article (article, prix) values ('Thé', 1)");
        till.window.findChild<QAction*>(action)->trigger();
        const QPointer<QWidget> window = &child<QWidget>(till.window, QTest::currentDataTag());
        QVERIFY(window->isVisible());
        QCOMPARE(window->windowModality(), Qt::WindowModal);
        QCOMPARE(window->parentWidget(), &till.window);
        QVERIFY(window->isWindow());
        QCOMPARE(rowCount(till.window, "tableView1"), 0);
        window->close();
        QTRY_VERIFY(window.isNull());
        QCOMPARE(rowCount(till.window, "tableView1"), 0);
    }
};

VENDEL_TEST(TestFormVendelOpening)
#include "tst_FormVendel_opening.moc"
