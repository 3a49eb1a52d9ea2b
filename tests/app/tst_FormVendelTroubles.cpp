// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QAction>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

namespace {
/// A till whose amount field fails at each change to \a text.
struct TroubledField : Till
{
    explicit TroubledField(const QString& text)
    {
        QObject::connect(
            &field(), &QLineEdit::textChanged, &window, [text](const QString& changed) {
                if (changed == text) {
                    throw std::runtime_error("trouble");
                }
            });
    }

    QLineEdit& field()
    {
        return child<QLineEdit>(window, "txt_montant");
    }
};

/// Fails at the first line of the log and passes the others on.
class FailingLog
{
public:
    FailingLog()
    {
        isOver() = false;
        next() = qInstallMessageHandler(fail);
    }
    ~FailingLog()
    {
        qInstallMessageHandler(next());
    }
    FailingLog(const FailingLog&) = delete;
    FailingLog& operator=(const FailingLog&) = delete;
    FailingLog(FailingLog&&) = delete;
    FailingLog& operator=(FailingLog&&) = delete;

private:
    static bool& isOver()
    {
        static bool over = false;
        return over;
    }
    static QtMessageHandler& next()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void fail(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type == QtCriticalMsg && !isOver()) {
            isOver() = true;
            throw std::runtime_error("no log");
        }
        next()(type, context, message);
    }
};

QStringList line(const char* text)
{
    return QStringList(QString::fromUtf8(text));
}
} // namespace

/// What the log says of a slot that fails; the window goes on.
class TestFormVendelTroubles : public QObject
{
    Q_OBJECT

private slots:
    void aKeyIsLoggedUnderItsNumber_data()
    {
        QTest::addColumn<QString>("digit");
        QTest::addColumn<QStringList>("criticals");
        const auto row = [](const char* key, const char* digit, const char* critical) {
            QTest::newRow(key) << QString::fromLatin1(digit) << line(critical);
        };
        row("btn_1", "1", "Errors on_btn_1_clicked : trouble");
        row("btn_2", "2", "Errors on_btn_2_clicked : trouble");
        row("btn_3", "3", "Errors on_btn_3_clicked : trouble");
        row("btn_4", "4", "Errors on_btn_4_clicked : trouble");
        row("btn_5", "5", "Errors on_btn_5_clicked : trouble");
        row("btn_6", "6", "Errors on_btn_6_clicked : trouble");
        row("btn_7", "7", "Errors on_btn_7_clicked : trouble");
        row("btn_8", "8", "Errors on_btn_8_clicked : trouble");
        row("btn_9", "9", "Errors on_btn_9_clicked : trouble");
        row("btn_10", "0", "Errors on_btn_10_clicked : trouble");
    }

    void aKeyIsLoggedUnderItsNumber()
    {
        const LeakCheckPause pause;
        QFETCH(QString, digit);
        TroubledField till(digit);
        const CapturedLog log;
        click(till.window, QTest::currentDataTag());
        QTEST(log.criticals(), "criticals");
        click(till.window, "btn_5");
        QCOMPARE(till.field().text(), digit + '5');
    }

    void theSeparatorIsLoggedUnderItsNumber()
    {
        Till till;
        const FailingText failing(",");
        const CapturedLog log;
        click(till.window, "btn_11");
        QCOMPARE(log.criticals(), line("Errors on_btn_11_clicked : no text"));
    }

    void plusIsLoggedUnderItsNumber()
    {
        const LeakCheckPause pause;
        TroubledField till(QString("7"));
        till.field().setText(QString(" 7"));
        const CapturedLog log;
        const FailingLog failing;
        click(till.window, "btn_12");
        QCOMPARE(log.criticals(), line("Errors on_btn_12_clicked : no log"));
    }

    void minusIsLoggedUnderItsNumber()
    {
        const LeakCheckPause pause;
        // The field goes from "13 " over "-13" to "13".
        TroubledField till(QString("13"));
        till.field().setText(QString("13 "));
        const CapturedLog log;
        click(till.window, "btn_13");
        QCOMPARE(log.criticals(), line("Errors on_btn_13_clicked : trouble"));
        QCOMPARE(till.shop.cell("select prix from Ticket"), QString("-13"));
    }

    void clearingTheFieldIsLogged()
    {
        TroubledField till{QString()};
        till.field().setText(QString("7"));
        const CapturedLog log;
        click(till.window, "btn_Effacer_Saisie");
        QCOMPARE(log.criticals(), line("Errors on_btn_Effacer_Saisie_clicked : trouble"));
    }

    void theClockIsLogged()
    {
        Till till;
        till.window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly)->stop();
        const FailingText failing("dd/MM/yyyy");
        const CapturedLog log;
        QVERIFY(QMetaObject::invokeMethod(&till.window, "on_timeout"));
        QCOMPARE(log.criticals(), line("Errors FormVendel on_timeout : no text"));
    }

    void clearingTheTicketIsLogged()
    {
        Till till;
        const FailingText failing("Le ticket est vide");
        const CapturedLog log;
        const AnswerBox box;
        click(till.window, "btn_Effacer_Ticket");
        QCOMPARE(
            log.criticals(), line("Errors FormVendel on_btn_Effacer_Ticket_clicked : no text"));
        QVERIFY(!box.wasShown());
    }

    void openingAWindowIsLogged_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("criticals");
        const auto row = [](const char* window, const char* action, const char* critical) {
            QTest::newRow(window) << QString::fromLatin1(action) << line(critical);
        };
        row("FormVendelConfig", "actionConfig",
            "Errors FormVendel on_actionConfig_triggered : trouble");
        row("FormVendelSaisieArticle", "actionSaisie_Article",
            "Errors FormVendel on_actionSaisie_Article_triggereds : trouble");
        row("FormVendelHistorique", "actionHistorique",
            "Errors FormVendel on_actionHistorique_triggered : trouble");
        row("FormVendelAbout", "actionA_propos_de",
            "Errors FormVendel on_actionA_propos_de_triggered : trouble");
    }

    void openingAWindowIsLogged()
    {
        QFETCH(QString, action);
        Till till;
        const FailingEvent trouble(QEvent::Show, QTest::currentDataTag());
        const CapturedLog log;
        till.window.findChild<QAction*>(action)->trigger();
        QTEST(log.criticals(), "criticals");
        QVERIFY(till.window.isVisible());
    }

    void aTipIsLogged()
    {
        Till till("insert into Article (article, prix) values ('Thé', 1)");
        click(till.window, "btn_Afficher");
        const FailingText failing("Menu\nClick sur : ");
        const CapturedLog log;
        hoverCell(till.window, "tableView1", 0, 2);
        QCOMPARE(log.criticals(), line("Errors FormVendel eventFilter : no text"));
        clickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.names("tableView2"), QString("Thé"));
    }

    void theSplashIsLogged()
    {
        const LeakCheckPause pause;
        QWidget opener;
        FormVendelStart splash(&opener);
        splash.show();
        const FailingEvent trouble(QEvent::Close, "FormVendelStart");
        const CapturedLog log;
        for (int tick = 1; tick <= 5; ++tick) {
            QCOMPARE(log.criticals(), QStringList());
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
        }
        QCOMPARE(log.criticals(), line("Errors FormVendelStart on_timeout : trouble"));
    }

    void aWindowThatCannotBeMadeIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        {
            const FailingText failing("Effacer Ticket");
            const FormVendel window;
        }
        {
            const FailingText failing("Système Vendel");
            QWidget opener;
            const FormVendelStart splash(&opener);
        }
        QCOMPARE(log.criticals(),
            (QStringList{QString("Errors FormVendel Constructor : no text"),
                QString("Errors FormVendelStart Constructor : no text")}));
    }
};

VENDEL_TEST(TestFormVendelTroubles)
#include "tst_FormVendelTroubles.moc"
