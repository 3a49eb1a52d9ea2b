// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>
#include <QShowEvent>
#include <QTimer>
#include <QtTest/qtestspontaneevent.h>

class TestFormVendelShell : public QObject
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
        const QByteArray before = shop.read(QString("Vendel.db"));
        {
            FormVendel window;
            window.show();
            QTRY_VERIFY(child<QLabel>(window, "lbl_DateTime").text() != QLatin1String("DateTime"));
        }
        QCOMPARE(shop.read(QString("Vendel.db")), before);
        QCOMPARE(QDir().entryList(QDir::Files), QStringList(QString("Vendel.db")));
    }

    void anExistingFileOfAnyKindStaysAsItIs()
    {
        const Shop shop(Shop::Database::None);
        shop.write(QString("Vendel.db"), QByteArray());
        const FormVendel window;
        QCOMPARE(shop.read(QString("Vendel.db")), QByteArray());
    }

    void theClockTicksTenTimesASecond()
    {
        const Shop shop;
        FormVendel window;
        const auto* clock = window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(clock != nullptr);
        QVERIFY(clock->isActive());
        QCOMPARE(clock->interval(), 100);
        QVERIFY(!clock->isSingleShot());
    }

    void theClockShowsDateAndTime()
    {
        const Shop shop;
        FormVendel window;
        const auto& label = child<QLabel>(window, "lbl_DateTime");
        QCOMPARE(label.text(), QString("DateTime"));
        const QRegularExpression odd(QString("^\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d:\\d[13579]$"));
        const QRegularExpression even(QString("^\\d\\d/\\d\\d/\\d{4} \\d\\d \\d\\d \\d[02468]$"));
        QTRY_VERIFY2(odd.match(label.text()).hasMatch(), qPrintable(label.text()));
        QTRY_VERIFY2(even.match(label.text()).hasMatch(), qPrintable(label.text()));
    }

    void theClockFollowsTheTranslatedPattern()
    {
        Translation translation;
        translation.add(
            QString("FormVendelMessages"), QString("dd/MM/yyyy"), QString("yyyy-MM-dd"));
        const Shop shop;
        FormVendel window;
        QVERIFY(QMetaObject::invokeMethod(&window, "on_timeout"));
        const QString text = child<QLabel>(window, "lbl_DateTime").text();
        QVERIFY2(QRegularExpression(QString("^\\d{4}-\\d\\d-\\d\\d ")).match(text).hasMatch(),
            qPrintable(text));
    }

    void theFirstShowOpensTheSplash()
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
    }

    void theSplashTicksEverySecond()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        const auto* timer = child<FormVendelStart>(window, "FormVendelStart").findChild<QTimer*>();
        QVERIFY(timer != nullptr);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
    }

    void theSplashIsClosedAndNotDeleted()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        const QPointer<FormVendelStart> splash = window.findChild<FormVendelStart*>();
        for (int tick = 1; tick <= 5; ++tick) {
            QVERIFY(splash->isVisible());
            QVERIFY(QMetaObject::invokeMethod(splash, "on_timeout"));
        }
        QVERIFY(!splash->isVisible());
        QVERIFY(!splash->findChild<QTimer*>()->isActive());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!splash.isNull());
        QVERIFY(window.isVisible());
    }

    void aSplashSentAwayEarlyStaysAway()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        auto& splash = child<FormVendelStart>(window, "FormVendelStart");
        QTest::keyClick(&splash, Qt::Key_Escape);
        QVERIFY(!splash.isVisible());
        for (int tick = 1; tick <= 6; ++tick) {
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
            QVERIFY(!splash.isVisible());
        }
        QVERIFY(!splash.findChild<QTimer*>()->isActive());
    }

    void aShowFromTheDesktopOpensNoSplash()
    {
        const Shop shop;
        FormVendel window;
        window.show();
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(&window, &restored);
        QCOMPARE(window.findChildren<FormVendelStart*>().size(), 1);
    }

    void thePrinterSwitchIsLogged_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("isLogged");
        QTest::newRow("on") << QByteArray("1") << true;
        QTest::newRow("off") << QByteArray("0") << false;
        QTest::newRow("another number") << QByteArray("2") << false;
        QTest::newRow("begins with 1") << QByteArray("1.5") << true;
        QTest::newRow("ten") << QByteArray("10") << false;
    }

    void thePrinterSwitchIsLogged()
    {
        QFETCH(QByteArray, value);
        QFETCH(bool, isLogged);
        const Shop shop;
        shop.sql(("update Config set valeur = " + value + " where param = 'Epson TM-T20II'")
                     .constData());
        const CapturedLog log;
        FormVendel window;
        QCOMPARE(log.debugs(), QStringList());
        window.show();
        QCOMPARE(log.debugs(),
            isLogged ? QStringList(QString("Warning Epson to 1 (ON)")) : QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void aPrinterSwitchThatIsNoNumberIsLogged()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 'on' where param = 'Epson TM-T20II'");
        const CapturedLog log;
        FormVendel window;
        window.show();
        QCOMPARE(log.criticals(), QStringList(QString("Errors FormVendel showEvent : stoi")));
        QCOMPARE(log.debugs(), QStringList());
        QVERIFY(window.isVisible());
    }

    void everyPrinterSwitchIsRead()
    {
        const Shop shop;
        shop.fill(
            "update Config set valeur = 1, param = 'epson tm-t20ii' where param like 'Epson%';"
            "insert into Config (param, valeur) values ('EPSON TM-T20II', 1)");
        const CapturedLog log;
        FormVendel window;
        window.show();
        QCOMPARE(log.debugs().count(QString("Warning Epson to 1 (ON)")), 2);

        shop.fill("delete from Config");
        FormVendel other;
        other.show();
        QCOMPARE(log.debugs().size(), 2);
        QCOMPARE(log.criticals(), QStringList());
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
        const auto row = [](const char* window, const char* action) {
            QTest::newRow(window) << QString::fromLatin1(action);
        };
        row("FormVendelConfig", "actionConfig");
        row("FormVendelSaisieArticle", "actionSaisie_Article");
        row("FormVendelHistorique", "actionHistorique");
        row("FormVendelAbout", "actionA_propos_de");
    }

    void menuActionsOpenTheirWindows()
    {
        QFETCH(QString, action);
        Till counter("insert into Article (article, prix) values ('Thé', 1)");
        counter.window.findChild<QAction*>(action)->trigger();
        const QPointer<QWidget> window = &child<QWidget>(counter.window, QTest::currentDataTag());
        QVERIFY(window->isVisible());
        QCOMPARE(window->windowModality(), Qt::WindowModal);
        QCOMPARE(window->parentWidget(), &counter.window);
        QVERIFY(window->isWindow());
        QCOMPARE(rowCount(counter.window, "tableView1"), 0);
        window->close();
        QTRY_VERIFY(window.isNull());
        QCOMPARE(rowCount(counter.window, "tableView1"), 0);
    }
};

VENDEL_TEST(TestFormVendelShell)
#include "tst_FormVendelShell.moc"
