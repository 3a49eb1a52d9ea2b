// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelConfig.h"
#include "forms/FormVendelFormulaireTicket.h"
#include "tests/forms/Settings.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <array>

namespace {
const std::array<const char*, 3> buttons{"btn_Maj_TVA", "btn_Maj_Epson", "btn_Maj_Formulaire"};
const std::array<const char*, 3> labels{"lbl_TVA", "lbl_Epson", "lbl_Formulaire"};
} // namespace

class TestFormVendelConfig : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheSettings()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelConfig window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(window.objectName(), QString("FormVendelConfig"));
        QCOMPARE(window.windowTitle(), QString("Config"));
        QCOMPARE(window.size(), QSize(370, 261));
        QCOMPARE(window.minimumSize(), QSize(370, 261));
        QCOMPARE(window.maximumSize(), QSize(370, 261));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(child<QLabel>(window, "lbl_TVA").text(), QString("TVA"));
        QCOMPARE(child<QLabel>(window, "lbl_Epson").text(), QString("Epson TM-T20II"));
        QCOMPARE(child<QLabel>(window, "lbl_Formulaire").text(),
            QString("Formulaire Impression Ticket"));
        for (const char* name : labels) {
            QCOMPARE(child<QLabel>(window, name).font().pointSize(), 12);
        }
        for (const char* name : buttons) {
            const auto& button = child<QPushButton>(window, name);
            QCOMPARE(button.text(), QString("MAJ"));
            QCOMPARE(button.font().pointSize(), 12);
            QVERIFY(!button.autoDefault());
            QVERIFY(!button.isDefault());
        }
        QCOMPARE(child<QLineEdit>(window, "txt_TVA").font().pointSize(), 12);
        const auto& printer = child<QComboBox>(window, "cbx_Epson");
        QCOMPARE(printer.font().pointSize(), 12);
        QCOMPARE(printer.count(), 2);
        QVERIFY(!printer.isEditable());
        QCOMPARE(printer.itemText(0), QString("OFF"));
        QCOMPARE(printer.itemText(1), QString("ON"));
    }

    void everyTextIsLookedUpInItsContext()
    {
        const Shop shop;
        const ContextEcho translation;
        FormVendelConfig window;
        window.show();
        const QString own = QString("FormVendelConfig");
        QCOMPARE(window.windowTitle(), own);
        for (const char* name : labels) {
            QCOMPARE(child<QLabel>(window, name).text(), own);
        }
        for (const char* name : buttons) {
            QCOMPARE(child<QPushButton>(window, name).text(), own);
        }
        typeRate(window, "");
        const AnswerBox box;
        click(window, "btn_Maj_TVA");
        QCOMPARE(box.title(), QString("FormVendelConfigMessages"));
        QCOMPARE(box.text(), QString("FormVendelConfigMessages"));
    }

    void fieldsStandBesideTheirLabels()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        const QRect rate = child<QLineEdit>(window, "txt_TVA").geometry();
        const QRect printer = child<QComboBox>(window, "cbx_Epson").geometry();
        QCOMPARE(rate.left(), printer.left());
        QCOMPARE(rate.right(), printer.right());
        const int buttonsLeft = child<QPushButton>(window, "btn_Maj_TVA").x();
        for (std::size_t row = 0; row < buttons.size(); ++row) {
            const auto& label = child<QLabel>(window, labels[row]);
            const auto& button = child<QPushButton>(window, buttons[row]);
            QCOMPARE(label.geometry().center().y(), button.geometry().center().y());
            QCOMPARE(label.x(), 16);
            QCOMPARE(button.x(), buttonsLeft);
            QVERIFY(label.buddy() != nullptr);
        }
        QCOMPARE(rate.center().y(), child<QLabel>(window, "lbl_TVA").geometry().center().y());
        QCOMPARE(printer.center().y(), child<QLabel>(window, "lbl_Epson").geometry().center().y());
    }

    void nothingIsClipped()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        QCOMPARE(clippedTexts(window), QStringList());
    }

    void tabFollowsTheEye()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(tabOrder(window),
            QStringList({QString("txt_TVA"), QString("btn_Maj_TVA"), QString("cbx_Epson"),
                QString("btn_Maj_Epson"), QString("btn_Maj_Formulaire")}));
    }

    void returnPressesNoButton()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        typeRate(window, "20");
        QTest::keyClick(&child<QLineEdit>(window, "txt_TVA"), Qt::Key_Return);
        QVERIFY(window.isVisible());
        QCOMPARE(storedRate(shop), QString("0"));
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
        QCOMPARE(storedRate(shop), QString("0"));
    }

    void theMenuOpensAndClosingDeletesIt()
    {
        const Shop shop;
        FormVendel till;
        till.show();
        chooseMenu(till, "menuVendel", "actionConfig");
        QPointer<FormVendelConfig> settings = till.findChild<FormVendelConfig*>();
        QVERIFY(settings != nullptr);
        QVERIFY(settings->isVisible());
        QCOMPARE(settings->parentWidget(), &till);
        click(*settings, "btn_Maj_Epson");
        QTRY_VERIFY(settings.isNull());
    }

    void theStoredRateIsShownWithTwoDecimals_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("whole") << QByteArray("20") << QString("20.00");
        QTest::newRow("fraction") << QByteArray("5.5") << QString("5.50");
        QTest::newRow("negative") << QByteArray("-1") << QString("-1.00");
        QTest::newRow("thousand") << QByteArray("1234.5") << QString("1,234.50");
        QTest::newRow("no number") << QByteArray("'vingt'") << QString("0.00");
    }

    void theStoredRateIsShownWithTwoDecimals()
    {
        QFETCH(QByteArray, stored);
        const Shop shop;
        shop.sql("update Config set valeur = " + stored + " where param = 'TVA'");
        FormVendelConfig window;
        QTEST(rateOf(window), "shown");
    }

    void theStoredSwitchIsShown_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("0") << QByteArray("0") << QString("OFF");
        QTest::newRow("1") << QByteArray("1") << QString("ON");
        QTest::newRow("2") << QByteArray("2") << QString("OFF");
        QTest::newRow("-1") << QByteArray("-1") << QString("OFF");
        QTest::newRow("fraction") << QByteArray("1.5") << QString("OFF");
        QTest::newRow("no number") << QByteArray("'oui'") << QString("OFF");
        QTest::newRow("too large") << QByteArray("99999999999") << QString("OFF");
    }

    void theStoredSwitchIsShown()
    {
        QFETCH(QByteArray, stored);
        const Shop shop;
        shop.sql("update Config set valeur = " + stored + " where param = 'Epson TM-T20II'");
        const CapturedLog log;
        FormVendelConfig window;
        QTEST(switchOf(window), "shown");
        QCOMPARE(rateOf(window), QString("0.00"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aMissingSettingIsLogged_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::newRow("rate") << QByteArray("TVA");
        QTest::newRow("printer") << QByteArray("Epson TM-T20II");
    }

    void aMissingSettingIsLogged()
    {
        QFETCH(QByteArray, setting);
        const Shop shop;
        shop.sql("delete from Config where param = '" + setting + '\'');
        const CapturedLog log;
        FormVendelConfig window;
        window.show();
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().constFirst().startsWith(
            QLatin1String("Errors FormVendelConfig Constructor : ")));
        QCOMPARE(switchOf(window), QString("OFF"));
        QCOMPARE(rateOf(window), QString());
    }

    void settingsAreFoundWhateverTheirCase()
    {
        const Shop shop;
        shop.sql("update Config set param = lower(param), valeur = 1");
        FormVendelConfig window;
        window.show();
        QCOMPARE(switchOf(window), QString("ON"));
        QCOMPARE(rateOf(window), QString("1.00"));
        typeRate(window, "7");
        click(window, "btn_Maj_TVA");
        QCOMPARE(shop.cell("select valeur from Config where param = 'tva'"), QString("7"));
    }

    void majOpensTheReceiptsTexts()
    {
        const Shop shop;
        FormVendelConfig window;
        window.show();
        click(window, "btn_Maj_Formulaire");
        QPointer<FormVendelFormulaireTicket> texts
            = window.findChild<FormVendelFormulaireTicket*>();
        QVERIFY(texts != nullptr);
        QVERIFY(texts->isVisible());
        QCOMPARE(texts->windowModality(), Qt::WindowModal);
        QVERIFY(window.isVisible());
        texts->close();
        QTRY_VERIFY(texts.isNull());
        QVERIFY(window.isVisible());
    }

    void aFailingConstructorIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        const FailingText failure("Config");
        const FormVendelConfig window;
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendelConfig Constructor : no text")));
    }
};

VENDEL_TEST(TestFormVendelConfig)
#include "tst_FormVendelConfig.moc"
