// SPDX-License-Identifier: MIT
#include "forms/FormVendelFormulaireTicket.h"
#include "tests/forms/Settings.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <utility>

class TestFormVendelConfig : public QObject
{
    Q_OBJECT

private slots:
    void fieldsStandBesideTheirLabels()
    {
        OpenSettings settings;
        const QRect rate = settings.rate.geometry();
        const QRect printer = settings.printer.geometry();
        QCOMPARE(rate.left(), printer.left());
        QCOMPARE(rate.right(), printer.right());
        const int buttonsLeft = child<QPushButton>(settings.window, "btn_Maj_TVA").x();
        for (const char* setting : {"TVA", "Epson", "Formulaire"}) {
            const auto& label = child<QLabel>(settings.window, QByteArray("lbl_") + setting);
            const auto& button
                = child<QPushButton>(settings.window, QByteArray("btn_Maj_") + setting);
            QCOMPARE(label.geometry().center().y(), button.geometry().center().y());
            QCOMPARE(label.x(), 16);
            QCOMPARE(button.x(), buttonsLeft);
            QVERIFY(label.buddy() != nullptr);
        }
        const auto middleOf = [&](const char* label) {
            return child<QLabel>(settings.window, label).geometry().center().y();
        };
        QCOMPARE(rate.center().y(), middleOf("lbl_TVA"));
        QCOMPARE(printer.center().y(), middleOf("lbl_Epson"));
    }

    void thePrinterIsOffOrOn()
    {
        OpenSettings settings;
        QCOMPARE(settings.printer.count(), 2);
        QVERIFY(!settings.printer.isEditable());
        QCOMPARE(settings.printer.itemText(0), QString("OFF"));
        QCOMPARE(settings.printer.itemText(1), QString("ON"));
    }

    void theStoredRateIsShownWithTwoDecimals()
    {
        for (const auto& [stored, shown] : {std::pair("20", "20.00"), {"5.5", "5.50"},
                 {"-1", "-1.00"}, {"1234.5", "1,234.50"}, {"'vingt'", "0.00"}}) {
            OpenSettings settings(
                QByteArray("update Config set valeur = ") + stored + " where param = 'TVA'");
            QCOMPARE(settings.rate.text(), QString(shown));
        }
    }

    void theStoredSwitchIsShown()
    {
        const CapturedLog log;
        for (const char* stored : {"1", "0", "2", "-1", "1.5", "'oui'", "99999999999"}) {
            OpenSettings settings(QByteArray("update Config set valeur = ") + stored
                + " where param = 'Epson TM-T20II'");
            const bool isOn = qstrcmp(stored, "1") == 0;
            QVERIFY2(settings.printer.currentText() == (isOn ? "ON" : "OFF"), stored);
            QCOMPARE(settings.rate.text(), QString("0.00"));
        }
        QCOMPARE(log.criticals(), QStringList());
    }

    void settingsAreFoundWhateverTheirCase()
    {
        OpenSettings settings("update Config set param = lower(param), valeur = 1");
        QCOMPARE(settings.printer.currentText(), QString("ON"));
        QCOMPARE(settings.rate.text(), QString("1.00"));
        settings.typeRate("7");
        click(settings.window, "btn_Maj_TVA");
        QCOMPARE(settings.shop.cell("select valeur from Config where param = 'tva'"), QString("7"));
    }

    void aRateIsStoredAndClosesTheWindow()
    {
        for (const auto& [typed, stored] : {std::pair("5,5", "5.5"), {"5.5", "5.5"},
                 {"  20 ", "20"}, {"-3", "-3"}, {"1e3", "1000"}}) {
            OpenSettings settings;
            settings.typeRate(typed);
            QCOMPARE(saidAtClick(settings.window, "btn_Maj_TVA"), QStringList());
            QVERIFY2(!settings.window.isVisible(), typed);
            QCOMPARE(settings.storedRate(), QString(stored));
        }
    }

    void aBadRateIsRefused()
    {
        for (const auto& [typed, kept] : {std::pair("", ""), {"   ", ""}, {" abc ", "abc"},
                 {"20%", "20%"}, {"1,234.50", "1,234.50"}}) {
            OpenSettings settings;
            settings.typeRate(typed);
            const AnswerBox box;
            click(settings.window, "btn_Maj_TVA");
            QVERIFY2(box.said() == QStringList("TVA: Saisir une TVA valide"), typed);
            QVERIFY(box.isNoticeOf(settings.window));
            QVERIFY(settings.window.isVisible());
            QCOMPARE(settings.rate.text(), QString(kept));
            QCOMPARE(settings.storedRate(), QString("0"));
        }
    }

    void theSwitchIsStoredAndClosesTheWindow()
    {
        OpenSettings settings;
        for (const auto& [key, stored] :
            {std::pair(Qt::Key_Down, "1"), std::pair(Qt::Key_Up, "0")}) {
            settings.window.show();
            QTest::keyClick(&settings.printer, key);
            QCOMPARE(saidAtClick(settings.window, "btn_Maj_Epson"), QStringList());
            QVERIFY(!settings.window.isVisible());
            QCOMPARE(settings.storedSwitch(), QString(stored));
        }
    }

    void eachButtonStoresItsOwnSettingOnly()
    {
        OpenSettings settings;
        settings.typeRate("abc");
        QTest::keyClick(&settings.printer, Qt::Key_Down);
        click(settings.window, "btn_Maj_Epson");
        QCOMPARE(settings.storedSwitch(), QString("1"));
        QCOMPARE(settings.storedRate(), QString("0"));

        settings.window.show();
        settings.typeRate("20");
        QTest::keyClick(&settings.printer, Qt::Key_Up);
        click(settings.window, "btn_Maj_TVA");
        QCOMPARE(settings.storedSwitch(), QString("1"));
        QCOMPARE(settings.storedRate(), QString("20"));
    }

    void neitherReturnNorEscapeStoresARate()
    {
        OpenSettings settings;
        settings.typeRate("20");
        QTest::keyClick(&settings.rate, Qt::Key_Return);
        QVERIFY(settings.window.isVisible());
        QCOMPARE(settings.storedRate(), QString("0"));
        QTest::keyClick(&settings.window, Qt::Key_Escape);
        QVERIFY(!settings.window.isVisible());
        QCOMPARE(settings.storedRate(), QString("0"));
    }

    void majOpensTheReceiptsTexts()
    {
        OpenSettings settings;
        click(settings.window, "btn_Maj_Formulaire");
        QPointer<FormVendelFormulaireTicket> texts
            = settings.window.findChild<FormVendelFormulaireTicket*>();
        QVERIFY(texts != nullptr);
        QVERIFY(texts->isVisible());
        QVERIFY(settings.window.isVisible());
        texts->close();
        QTRY_VERIFY(texts.isNull());
        QVERIFY(settings.window.isVisible());
    }
};

VENDEL_TEST(TestFormVendelConfig)
#include "tst_FormVendelConfig.moc"
