// SPDX-License-Identifier: MIT
#include "tests/forms/Settings.h"
#include "tests/support/Captured.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/WindowFailures.h"

#include <stdexcept>

/// Settings that cannot be read or stored, and exceptions thrown into their slots.
class TestFormVendelConfigFailures : public QObject
{
    Q_OBJECT

private slots:
    void aRateThatSqlDoesNotKnowIsNotStored()
    {
        OpenSettings settings;
        settings.typeRate("nan");
        CapturedOutput output;
        click(settings.window, "btn_Maj_TVA");
        QCOMPARE(output.text(),
            databaseReport(
                "update Config set valeur = nan where param like 'TVA'", "no such column: nan"));
        QVERIFY(!settings.window.isVisible());
        QCOMPARE(settings.storedRate(), QString("0"));
    }

    void statementsThatFailAreReported()
    {
        OpenSettings settings;
        settings.typeRate("5,5");
        settings.shop.sql("drop table Config");
        const CapturedLog log;
        CapturedOutput output;
        click(settings.window, "btn_Maj_TVA");
        settings.window.show();
        click(settings.window, "btn_Maj_Epson");
        const FormVendelConfig another;
        QByteArray reports;
        for (const char* sql : {"update Config set valeur = 5.5 where param like 'TVA'",
                 "update Config set valeur = 0 where param like 'Epson TM-T20II'",
                 "select * from Config where param like 'Epson TM-T20II'"}) {
            reports += databaseReport(sql, "no such table: Config");
        }
        QCOMPARE(output.text(), reports);
    }

    void aMissingSettingIsLogged()
    {
        for (const char* setting : {"TVA", "Epson TM-T20II"}) {
            const CapturedLog log;
            OpenSettings settings(
                QByteArray("delete from Config where param = '") + setting + '\'');
            QCOMPARE(log.criticals().size(), 1);
            QVERIFY(
                log.criticals().constFirst().startsWith("Errors FormVendelConfig Constructor : "));
            QCOMPARE(settings.printer.currentText(), QString("OFF"));
            QCOMPARE(settings.rate.text(), QString());
        }
    }

    void aFailingConstructorIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        const FailingText failure("Config");
        const FormVendelConfig window;
        QCOMPARE(log.criticals(), QStringList("Errors FormVendelConfig Constructor : no text"));
    }

    void failingButtonsAreLogged()
    {
        const LeakCheckPause pause;
        const CapturedLog log;
        OpenSettings settings;
        settings.typeRate("");
        {
            const FailingText failure("Saisir une TVA valide");
            click(settings.window, "btn_Maj_TVA");
        }
        connect(
            &settings.window, &QDialog::rejected, [] { throw std::runtime_error("no closing"); });
        click(settings.window, "btn_Maj_Epson");
        QCOMPARE(log.criticals(),
            QStringList({"Errors on_btn_Maj_TVA_clicked : no text",
                "Errors on_btn_Maj_Epson_clicked : no closing"}));
    }

    void receiptsTextsThatDoNotOpenAreLogged()
    {
        const LeakCheckPause pause;
        const CapturedLog log;
        OpenSettings settings;
        const FailingEvent failure(QEvent::Show, "FormVendelFormulaireTicket");
        click(settings.window, "btn_Maj_Formulaire");
        QCOMPARE(log.criticals(),
            QStringList("Errors FormVendelConfig on_btn_Maj_Formulaire_clicked : trouble"));
        QVERIFY(settings.window.isVisible());
    }
};

VENDEL_TEST(TestFormVendelConfigFailures)
#include "tst_FormVendelConfig_failures.moc"
