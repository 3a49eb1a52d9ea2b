// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/app/Till.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"
#include "tests/support/WindowFailures.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

#include <stdexcept>

#include <sys/stat.h>

namespace {
constexpr auto oneLine = "insert into Article (article, prix) values ('Thé', 2);"
                         "insert into Ticket (id, article, prix) values (1, 'Thé', 2)";

/// Presses every button of the sales screen but "Payer"; the titles of the boxes.
QStringList pressEverything(QWidget& window)
{
    const AnswerBox boxes = AnswerBox::agreeing();
    for (const auto* button : {"btn_Afficher", "btn_Ticket", "btn_Total_Ticket", "btn_1", "btn_12",
             "btn_13", "btn_Effacer_Saisie", "btn_Effacer_Ticket"}) {
        click(window, button);
    }
    return boxes.titles();
}

/// What is logged while \a button is clicked.
QStringList criticalsOf(QWidget& window, const char* button)
{
    const CapturedLog log;
    click(window, button);
    return log.criticals();
}

const QStringList titlesOfAnEmptyShop{"Afficher", "Ticket", "Total", "Effacer ticket"};

/// A till whose amount field fails at each change to \a text.
struct FailingField : Till
{
    explicit FailingField(const QString& text)
    {
        QObject::connect(
            &field(), &QLineEdit::textChanged, &window, [text](const QString& changed) {
                if (changed == text) {
                    throw std::runtime_error("trouble");
                }
            });
    }
};

/// Fails at the first critical line of the log and passes the others on.
class FailingLog
{
public:
    FailingLog()
    {
        isOver_ = false;
        next_ = qInstallMessageHandler(fail);
    }
    ~FailingLog() { qInstallMessageHandler(next_); }
    Q_DISABLE_COPY_MOVE(FailingLog)

private:
    inline static bool isOver_ = false;
    inline static QtMessageHandler next_ = nullptr;

    static void fail(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type == QtCriticalMsg && !isOver_) {
            isOver_ = true;
            throw std::runtime_error("no log");
        }
        next_(type, context, message);
    }
};
} // namespace

/// A database that fails leaves the sales screen usable; what a slot throws is logged under the
/// slot's name, and the window goes on.
class TestFormVendelFailures : public QObject
{
    Q_OBJECT

private slots:
    void aDatabaseThatIsADirectoryLeavesTheWindowUsable()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir("Vendel.db"));
        const CapturedLog log;
        CapturedOutput output;
        FormVendel window;
        window.show();
        QCOMPARE(pressEverything(window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(window.isVisible());
        const QByteArray lines = output.text();
        QVERIFY(lines.startsWith("Not open database successfully\n"
            + databaseReport("select valeur from Config where param like 'Epson TM-T20II'",
                "unable to open database file")));
        QCOMPARE(lines.count("Not open database successfully\n"),
            lines.count(" unable to open database file\n"));
    }

    void aFileThatIsNoDatabaseLeavesTheWindowUsable()
    {
        const Shop shop(Shop::Database::None);
        const QByteArray letter = QByteArray("Chère cliente,\n").repeated(100);
        shop.write("Vendel.db", letter);
        const CapturedLog log;
        CapturedOutput output;
        FormVendel window;
        window.show();
        QCOMPARE(pressEverything(window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(output.text().contains(
            databaseReport("select * from Ticket", "file is not a database")));
        QCOMPARE(shop.read("Vendel.db"), letter);
    }

    void aMissingTableIsAnEmptyOne()
    {
        Till till("drop table Ticket; drop table Article");
        const CapturedLog log;
        CapturedOutput output;
        QCOMPARE(pressEverything(till.window), titlesOfAnEmptyShop);
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(output.text().contains(databaseReport(
            "select * from Article order by Article asc", "no such table: Article")));
        QVERIFY(output.text().contains(
            databaseReport("insert into Ticket(id, article, prix) values (0, '----', 1)",
                "no such table: Ticket")));
    }

    void aReadOnlyDatabaseKeepsItsTicket()
    {
        OpenTill till(oneLine);
        QVERIFY(chmod("Vendel.db", 0444) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        const CapturedLog log;
        CapturedOutput output;
        const QByteArray reason = "attempt to write a readonly database";
        clickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(output.text(),
            databaseReport("insert into Ticket (id, article, prix) values (1, 'Thé', 2)", reason));
        QCOMPARE(till.names("tableView2"), QString("Thé"));
        clickCell(till.window, "tableView2", 0, 2);
        QVERIFY(
            output.text().endsWith(databaseReport("delete from Ticket where idlig = 1", reason)));
        QCOMPARE(till.names("tableView2"), QString("Thé"));
        click(till.window, "btn_Effacer_Ticket");
        QCOMPARE(till.shownLines(), 0);
        click(till.window, "btn_Ticket");
        QCOMPARE(till.names("tableView2"), QString("Thé"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aFullFileSystemKeepsTheTicket()
    {
        Till till(oneLine);
        till.run("insert into Article (article, prix) values (hex(zeroblob(50000)), 1)");
        click(till.window, "btn_Afficher");
        const CapturedLog log;
        CapturedOutput output;
        {
            const FileSizeLimit limit(static_cast<rlim_t>(QFile("Vendel.db").size()));
            clickCell(till.window, "tableView1", 0, 2);
            QCOMPARE(till.names("tableView2"), QString("Thé"));
        }
        QCOMPARE(till.ticket(), QStringList("Thé 2"));
        clickCell(till.window, "tableView1", 1, 2);
        QCOMPARE(till.names("tableView2"), QString("Thé|Thé"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aLockedDatabaseKeepsTheTicket()
    {
        Till till(oneLine);
        till.field().setText("5");
        CapturedOutput output;
        {
            // A reader of long patience: reading goes on, writing waits in vain.
            const OtherProcess backup("begin; select * from Config", 60'000'000);
            click(till.window, "btn_12");
        }
        QCOMPARE(output.text(),
            databaseReport("insert into Ticket(id, article, prix) values (0, '----', 5)",
                "database is locked"));
        QCOMPARE(till.names("tableView2"), QString("Thé"));
        click(till.window, "btn_12");
        QCOMPARE(till.names("tableView2"), QString("Thé|----"));
    }

    void aTableThatLacksAColumnIsLogged_data()
    {
        QTest::addColumn<QString>("critical");
        const auto row = [](const char* button, const char* slot, int missing) {
            QTest::newRow(button) << QString("Errors %1 : vector::_M_range_check: __n (which is "
                                             "%2) >= this->size() (which is %2)")
                                         .arg(slot, QString::number(missing));
        };
        row("btn_Afficher", "FormVendel on_btn_Afficher_clicked", 2);
        row("btn_Ticket", "FormVendel on_btn_Ticket_clicked", 3);
        row("btn_Total_Ticket", "on_btn_Total_Ticket_clicked", 3);
        row("btn_12", "operator_more_or_less", 3);
        row("btn_13", "operator_more_or_less", 3);
    }

    void aTableThatLacksAColumnIsLogged()
    {
        QFETCH(QString, critical);
        // Tables of another program.
        Till till("drop table Ticket; create table Ticket (idlig, id, article);"
                  "insert into Ticket values (1, 1, 'Thé');"
                  "drop table Article; create table Article (id, article);"
                  "insert into Article values (1, 'Thé')");
        till.field().setText("5");
        CapturedOutput output;
        QCOMPARE(criticalsOf(till.window, QTest::currentDataTag()), QStringList(critical));
        QVERIFY(till.window.isVisible());
        QVERIFY(till.list("tableView1").updatesEnabled());
        QVERIFY(till.list("tableView2").updatesEnabled());
        QCOMPARE(till.field().text(), QString("5"));
    }

    void aColumnThatGoesBehindAClickIsLogged()
    {
        OpenTill till(oneLine);
        till.shop.fill("alter table Ticket drop column prix;"
                       "insert into Ticket (id, article) values (1, 'Eau')");
        CapturedOutput output;
        for (const char* list : {"tableView2", "tableView1"}) {
            const CapturedLog log;
            clickCell(till.window, list, 0, 2);
            QCOMPARE(log.criticals(),
                QStringList(QString("Errors FormVendel on_") + list
                    + "_clicked : vector::_M_range_check: __n (which is 3) >= this->size() "
                      "(which is 3)"));
        }
    }

    void aSumWithoutPricesIsLogged()
    {
        Till till("drop table Ticket; create table Ticket (idlig, id, article, preis);"
                  "insert into Ticket values (1, 1, 'Thé', 2)");
        const CapturedLog log;
        CapturedOutput output;
        click(till.window, "btn_Total_Ticket");
        QCOMPARE(log.criticals(),
            QStringList("Errors on_btn_Total_Ticket_clicked : vector::_M_range_check: "
                        "__n (which is 0) >= this->size() (which is 0)"));
        QCOMPARE(till.names("tableView2"), QString("Thé"));
    }

    void aFieldThatFailsIsLogged_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QStringList>("ticket");
        for (int key = 1; key <= 10; ++key) {
            QTest::addRow("btn_%d", key) << "" << QString::number(key % 10) << QStringList();
        }
        // The field goes from "13 " over "-13" to "13".
        QTest::newRow("btn_13") << "13 "
                                << "13" << QStringList("---- -13");
        QTest::newRow("btn_Effacer_Saisie") << "7"
                                            << "" << QStringList();
    }

    void aFieldThatFailsIsLogged()
    {
        const LeakCheckPause pause;
        QFETCH(QString, before);
        QFETCH(QString, failing);
        const QByteArray button = QTest::currentDataTag();
        FailingField till(failing);
        // A copy of its own, which the exception keeps Qt from freeing.
        till.field().setText(QString(before.constData(), before.size()));
        QCOMPARE(criticalsOf(till.window, button),
            QStringList("Errors on_" + button + "_clicked : trouble"));
        QTEST(till.ticket(), "ticket");
        click(till.window, "btn_5");
        QCOMPARE(till.field().text(), failing + '5');
    }

    void plusIsLoggedUnderItsNumber()
    {
        const LeakCheckPause pause;
        FailingField till("7");
        till.field().setText(" 7");
        const CapturedLog log;
        const FailingLog failing;
        click(till.window, "btn_12");
        QCOMPARE(log.criticals(), QStringList("Errors on_btn_12_clicked : no log"));
    }

    void aTextThatFailsIsLogged_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("critical");
        QTest::newRow("btn_11") << QByteArray(",") << "Errors on_btn_11_clicked : no text";
        QTest::newRow("btn_Effacer_Ticket") << QByteArray(
            "Le ticket est vide") << "Errors FormVendel on_btn_Effacer_Ticket_clicked : no text";
    }

    void aTextThatFailsIsLogged()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, critical);
        Till till;
        const FailingText failing(text.constData());
        const AnswerBox box;
        QCOMPARE(criticalsOf(till.window, QTest::currentDataTag()), QStringList(critical));
        QVERIFY(!box.wasShown());
    }

    void theClockIsLogged()
    {
        Till till;
        till.window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly)->stop();
        const FailingText failing("dd/MM/yyyy");
        const CapturedLog log;
        QVERIFY(QMetaObject::invokeMethod(&till.window, "on_timeout"));
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel on_timeout : no text"));
    }

    void aTipIsLogged()
    {
        OpenTill till("insert into Article (article, prix) values ('Thé', 1)");
        const FailingText failing("Menu\nClick sur : ");
        const CapturedLog log;
        hoverCell(till.window, "tableView1", 0, 2);
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel eventFilter : no text"));
        clickCell(till.window, "tableView1", 0, 2);
        QCOMPARE(till.names("tableView2"), QString("Thé"));
    }

    void openingAWindowIsLogged_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("critical");
        const auto row = [](const char* window, const char* action, const char* slot) {
            QTest::newRow(window) << QString(action)
                                  << QString("Errors FormVendel %1 : trouble").arg(slot);
        };
        row("FormVendelConfig", "actionConfig", "on_actionConfig_triggered");
        row("FormVendelSaisieArticle", "actionSaisie_Article",
            "on_actionSaisie_Article_triggereds");
        row("FormVendelHistorique", "actionHistorique", "on_actionHistorique_triggered");
        row("FormVendelAbout", "actionA_propos_de", "on_actionA_propos_de_triggered");
    }

    void openingAWindowIsLogged()
    {
        QFETCH(QString, action);
        QFETCH(QString, critical);
        Till till;
        const FailingEvent failing(QEvent::Show, QTest::currentDataTag());
        const CapturedLog log;
        till.window.findChild<QAction*>(action)->trigger();
        QCOMPARE(log.criticals(), QStringList(critical));
        QVERIFY(till.window.isVisible());
    }

    void aWindowThatCannotBeMadeIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        const FailingText failing("Effacer Ticket");
        const FormVendel window;
        QCOMPARE(log.criticals(), QStringList("Errors FormVendel Constructor : no text"));
    }
};

VENDEL_TEST(TestFormVendelFailures)
#include "tst_FormVendel_failures.moc"
