// SPDX-License-Identifier: MIT
#include "forms/FormVendelConfig.h"
#include "tests/forms/Settings.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QApplication>

#include <stdexcept>
#include <utility>

namespace {
/// Fails at the first showing of the receipt's texts.
class FailingShow : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show
            && watched->objectName() == QLatin1String("FormVendelFormulaireTicket")) {
            throw std::runtime_error("no window");
        }
        return false;
    }
};
} // namespace

class TestFormVendelConfigStore : public QObject
{
    Q_OBJECT

private slots:
    void aRateIsStoredAndClosesTheWindow_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("comma") << QByteArray("5,5") << QString("5.5");
        QTest::newRow("point") << QByteArray("5.5") << QString("5.5");
        QTest::newRow("blanks") << QByteArray("  20 ") << QString("20");
        QTest::newRow("negative") << QByteArray("-3") << QString("-3");
        QTest::newRow("beyond a hundred") << QByteArray("1e3") << QString("1000");
    }

    void aRateIsStoredAndClosesTheWindow()
    {
        QFETCH(QByteArray, typed);
        const Shop shop;
        FormVendelConfig window;
        window.show();
        typeRate(window, typed.constData());
        const AnswerBox box;
        click(window, "btn_Maj_TVA");
        QVERIFY(!box.wasShown());
        QVERIFY(!window.isVisible());
        QTEST(storedRate(shop), "stored");
    }

    void aBadRateIsRefused_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("blanks") << QByteArray("   ") << QString();
        QTest::newRow("letters") << QByteArray(" abc ") << QString("abc");
        QTest::newRow("per cent") << QByteArray("20%") << QString("20%");
        QTest::newRow("group separator") << QByteArray("1,234.50") << QString("1,234.50");
    }

    void aBadRateIsRefused()
    {
        QFETCH(QByteArray, typed);
        const Shop shop;
        FormVendelConfig window;
        window.show();
        typeRate(window, typed.constData());
        const AnswerBox box;
        click(window, "btn_Maj_TVA");
        QCOMPARE(box.title(), QString("TVA"));
        QCOMPARE(box.text(), QString("Saisir une TVA valide"));
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &window);
        QCOMPARE(box.strays(), 0);
        QVERIFY(window.isVisible());
        QTEST(rateOf(window), "kept");
        QCOMPARE(storedRate(shop), QString("0"));
    }

    void aRateThatSqlDoesNotKnowIsNotStored()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        typeRate(window, "nan");
        QByteArray said;
        {
            CapturedOutput output;
            click(window, "btn_Maj_TVA");
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : update Config set valeur = nan where param "
                "like 'TVA' no such column: nan\n"));
        QVERIFY(!window.isVisible());
        QCOMPARE(storedRate(shop), QString("0"));
    }

    void theSwitchIsStoredAndClosesTheWindow()
    {
        const Shop shop;
        for (const auto& [key, stored] :
            {std::pair(Qt::Key_Down, "1"), std::pair(Qt::Key_Up, "0")}) {
            FormVendelConfig window;
            window.show();
            QTest::keyClick(&child<QComboBox>(window, "cbx_Epson"), key);
            const AnswerBox box;
            click(window, "btn_Maj_Epson");
            QVERIFY(!box.wasShown());
            QVERIFY(!window.isVisible());
            QCOMPARE(storedSwitch(shop), QLatin1String(stored));
        }
    }

    void eachButtonStoresItsOwnSettingOnly()
    {
        const Shop shop;
        FormVendelConfig first;
        first.show();
        typeRate(first, "abc");
        QTest::keyClick(&child<QComboBox>(first, "cbx_Epson"), Qt::Key_Down);
        click(first, "btn_Maj_Epson");
        QCOMPARE(storedSwitch(shop), QString("1"));
        QCOMPARE(storedRate(shop), QString("0"));

        FormVendelConfig second;
        second.show();
        typeRate(second, "20");
        QTest::keyClick(&child<QComboBox>(second, "cbx_Epson"), Qt::Key_Up);
        click(second, "btn_Maj_TVA");
        QCOMPARE(storedSwitch(shop), QString("1"));
        QCOMPARE(storedRate(shop), QString("20"));
    }

    void reopeningShowsWhatWasStored()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 5.5 where param = 'TVA'");
        shop.sql("update Config set valeur = 1 where param = 'Epson TM-T20II'");
        FormVendelConfig window;
        QCOMPARE(rateOf(window), QString("5.50"));
        QCOMPARE(switchOf(window), QString("ON"));
    }

    void theStatementsAreSplicedFromTheFields()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        typeRate(window, "5,5");
        shop.sql("drop table Config");
        QByteArray said;
        {
            const CapturedLog log;
            CapturedOutput output;
            click(window, "btn_Maj_TVA");
            window.show();
            click(window, "btn_Maj_Epson");
            const FormVendelConfig another;
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : update Config set valeur = 5.5 where param "
                "like 'TVA' no such table: Config\n"
                "Errors Db::DbLoad sqlite3_errmsg : update Config set valeur = 0 where param "
                "like 'Epson TM-T20II' no such table: Config\n"
                "Errors Db::DbLoad sqlite3_errmsg : select * from Config where param like "
                "'Epson TM-T20II' no such table: Config\n"));
    }

    void failuresAreLogged()
    {
        const LeakCheckPause pause;
        const Shop shop;
        const CapturedLog log;
        FormVendelConfig window;
        window.show();
        typeRate(window, "");
        {
            const FailingText failure("Saisir une TVA valide");
            click(window, "btn_Maj_TVA");
            QCOMPARE(
                log.criticals(), QStringList(QString("Errors on_btn_Maj_TVA_clicked : no text")));
        }
        connect(&window, &QDialog::rejected, [] { throw std::runtime_error("no closing"); });
        click(window, "btn_Maj_Epson");
        QCOMPARE(
            log.criticals().constLast(), QString("Errors on_btn_Maj_Epson_clicked : no closing"));
        QCOMPARE(log.criticals().size(), 2);
    }

    void receiptsTextsThatDoNotOpenAreLogged()
    {
        const LeakCheckPause pause;
        const Shop shop;
        const CapturedLog log;
        FormVendelConfig window;
        window.show();
        FailingShow failure;
        qApp->installEventFilter(&failure);
        click(window, "btn_Maj_Formulaire");
        QCOMPARE(log.criticals(),
            QStringList(
                QString("Errors FormVendelConfig on_btn_Maj_Formulaire_clicked : no window")));
        QVERIFY(window.isVisible());
    }
};

VENDEL_TEST(TestFormVendelConfigStore)
#include "tst_FormVendelConfigStore.moc"
