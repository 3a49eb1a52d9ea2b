// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
/// A stock editor that shows the recipe of Sirop, with the composition window of Sirop open.
struct Composing
{
    Composing()
    {
        stock.show();
        stock.Display_DoseStock(QString("3"));
        window.show();
    }

    void type(const QString& composition, const QString& dose)
    {
        child<QLineEdit>(window, "txt_Composition").setText(composition);
        child<QLineEdit>(window, "txt_Dose").setText(dose);
    }

    StockSample shop;
    FormVendelSaisieStock stock;
    FormVendelSaisieStockComposition window{QString("Sirop"), QString("3"), &stock};
};
} // namespace

class TestFormVendelSaisieStockComposition : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheCompositionWindow()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelSaisieStockComposition window(QString("<b>Café</b>"), QString("1"), nullptr);
        QCOMPARE(window.size(), QSize(495, 86));
        QCOMPARE(window.minimumSize(), QSize(495, 86));
        QCOMPARE(window.maximumSize(), QSize(495, 86));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.windowTitle(), QString("Saisie Stock"));
        QCOMPARE(child<QLabel>(window, "lbl_ArticleTitle").text(), QString("Article :"));
        QCOMPARE(child<QLabel>(window, "lbl_Article").text(), QString("<b>Café</b>"));
        QCOMPARE(child<QLabel>(window, "lbl_Article").textFormat(), Qt::PlainText);
        QCOMPARE(child<QLabel>(window, "lbl_Composition").text(), QString("Composition"));
        QCOMPARE(child<QLabel>(window, "lbl_Dose").text(), QString("Dose"));
        QCOMPARE(child<QLabel>(window, "lbl_Unit").text(), QString("Unité"));
        QCOMPARE(child<QPushButton>(window, "btn_Add").text(), QString("Ajouter"));
        const auto& units = child<QComboBox>(window, "cbx_Unit");
        QCOMPARE(units.count(), 2);
        QCOMPARE(units.itemText(0), QString("cl"));
        QCOMPARE(units.itemText(1), QString("g"));
        QCOMPARE(units.currentText(), QString("cl"));
        QVERIFY(!units.isEditable());
        QVERIFY(child<QPushButton>(window, "btn_Add").isDefault());
        QVERIFY(!anyAutoDefault(window));
        QCOMPARE(log.warnings(), QStringList());
    }

    void aLongNameKeepsItsNeighboursInPlace()
    {
        const Shop shop;
        FormVendelSaisieStockComposition brief(QString("Thé"), QString("1"), nullptr);
        FormVendelSaisieStockComposition long_(QString(300, 'W'), QString("1"), nullptr);
        brief.show();
        long_.show();
        QCOMPARE(long_.size(), QSize(495, 86));
        QCOMPARE(child<QLabel>(long_, "lbl_Article").text().size(), 300);
        for (const char* name : {"txt_Composition", "txt_Dose", "cbx_Unit", "btn_Add"}) {
            QCOMPARE(
                child<QWidget>(long_, name).geometry(), child<QWidget>(brief, name).geometry());
        }
        QVERIFY(child<QLabel>(long_, "lbl_Article").geometry().right() < 495);
    }

    void addsALineAndCloses()
    {
        Composing at;
        const AnswerBox box;
        at.type(QString("  Eau \t"), QString(" 20 "));
        click(at.window, "btn_Add");
        QVERIFY(!box.wasShown());
        QVERIFY(!at.window.isVisible());
        QCOMPARE(child<QLineEdit>(at.window, "txt_Composition").text(), QString("Eau"));
        QCOMPARE(child<QLineEdit>(at.window, "txt_Dose").text(), QString("20"));
        QCOMPARE(rowCount(at.stock, "tableView2"), 2);
        QCOMPARE(rowTexts(at.stock, "tableView2", 0), cells({"13", "3", "Eau", "20.00", "cl"}));
    }

    void doseAndUnitAreStored_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* typed, int unit, const char* stored, const char* shown) {
            QTest::newRow(typed) << QString::fromLatin1(typed) << unit
                                 << QString::fromLatin1(stored) << QString::fromLatin1(shown);
        };
        row("0,5", 0, "0.5|cl", "0.50");
        row("0.5", 1, "0.5|g", "0.50");
        row("12", 1, "12|g", "12.00");
        row("-2", 0, "-2|cl", "-2.00");
        row("1e2", 0, "100|cl", "100.00");
        row("+3,25", 0, "3.25|cl", "3.25");
    }

    void doseAndUnitAreStored()
    {
        QFETCH(const QString, typed);
        QFETCH(const int, unit);
        QFETCH(const QString, stored);
        QFETCH(const QString, shown);
        Composing at;
        at.type(QString("Eau"), typed);
        child<QComboBox>(at.window, "cbx_Unit").setCurrentIndex(unit);
        click(at.window, "btn_Add");
        QCOMPARE(
            at.shop.cell("select dose || '|' || unite from DoseStock where composition = 'Eau'"),
            stored);
        QCOMPARE(rowTexts(at.stock, "tableView2", 0).at(3), shown);
    }

    void quotesAreStoredAsTyped()
    {
        Composing at;
        at.type(QString("L'eau d''ici"), QString("1"));
        click(at.window, "btn_Add");
        QCOMPARE(at.shop.cell("select composition from DoseStock where idlig = 13"),
            QString("L'eau d''ici"));
        QCOMPARE(rowTexts(at.stock, "tableView2", 0).at(2), QString("L'eau d''ici"));
    }

    void missingTextsAreAskedFor_data()
    {
        QTest::addColumn<QString>("composition");
        QTest::addColumn<QString>("dose");
        QTest::newRow("both") << QString() << QString();
        QTest::newRow("composition of blanks") << QString("  ") << QString("1");
        QTest::newRow("dose of blanks") << QString("Eau") << QString(" ");
    }

    void missingTextsAreAskedFor()
    {
        QFETCH(const QString, composition);
        QFETCH(const QString, dose);
        Composing at;
        at.type(composition, dose);
        const AnswerBox box;
        click(at.window, "btn_Add");
        QCOMPARE(box.text(), QString("Saisir Composition / Dose / Choisir Unité"));
        QCOMPARE(box.title(), QString("Ajouter"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &at.window);
        QCOMPARE(box.strays(), 0);
        QVERIFY(at.window.isVisible());
        QCOMPARE(child<QLineEdit>(at.window, "txt_Composition").text(), composition.trimmed());
        QCOMPARE(child<QLineEdit>(at.window, "txt_Dose").text(), dose.trimmed());
        QCOMPARE(at.shop.cell("select count(*) from DoseStock"), QString("3"));
    }

    void aDoseThatIsNoNumberIsRefused_data()
    {
        QTest::addColumn<QString>("dose");
        for (const char* dose : {"deux", "1,2,3", "1.2.3", "3 cl", "1 000", "1);--", "0x10"}) {
            QTest::newRow(dose) << QString::fromLatin1(dose);
        }
    }

    void aDoseThatIsNoNumberIsRefused()
    {
        QFETCH(const QString, dose);
        Composing at;
        at.type(QString("Eau"), dose);
        const AnswerBox box;
        click(at.window, "btn_Add");
        QCOMPARE(box.text(), QString("Saisir une dose valide"));
        QCOMPARE(box.title(), QString("Ajouter"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.strays(), 0);
        QVERIFY(at.window.isVisible());
        QCOMPARE(child<QLineEdit>(at.window, "txt_Dose").text(), dose);
        QCOMPARE(at.shop.cell("select count(*) from DoseStock"), QString("3"));
    }

    void aRefusedInsertIsReportedAndCloses()
    {
        Composing at;
        at.type(QString("Eau"), QString("inf"));
        CapturedOutput output;
        click(at.window, "btn_Add");
        QCOMPARE(diagnostics(output),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : insert into DoseStock (id, composition, "
                       "dose, unite) values (3, 'Eau', inf, 'cl') no such column: inf\n"));
        QVERIFY(!at.window.isVisible());
        QCOMPARE(rowCount(at.stock, "tableView2"), 1);
    }

    void returnAdds()
    {
        Composing at;
        QVERIFY(showActive(at.window));
        QTest::keyClicks(&child<QLineEdit>(at.window, "txt_Composition"), QString("Eau"));
        QTest::keyClicks(&child<QLineEdit>(at.window, "txt_Dose"), QString("2,5"));
        QTest::keyClick(&child<QLineEdit>(at.window, "txt_Dose"), Qt::Key_Return);
        QVERIFY(!at.window.isVisible());
        QCOMPARE(rowTexts(at.stock, "tableView2", 0), cells({"13", "3", "Eau", "2.50", "cl"}));
    }

    void tabGoesFromFieldToField()
    {
        Composing at;
        QVERIFY(showActive(at.window));
        for (const char* name : {"txt_Composition", "txt_Dose", "cbx_Unit", "btn_Add"}) {
            QCOMPARE(at.window.focusWidget(), &child<QWidget>(at.window, name));
            QTest::keyClick(at.window.focusWidget(), Qt::Key_Tab);
        }
    }

    void closingAddsNothing()
    {
        Composing at;
        at.type(QString("Eau"), QString("1"));
        QTest::keyClick(&at.window, Qt::Key_Escape);
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.shop.cell("select count(*) from DoseStock"), QString("3"));
    }

    void textsAreTranslatedInTheirContexts()
    {
        const Shop shop;
        {
            const MarkedContext captions("FormVendelSaisieStockComposition");
            FormVendelSaisieStockComposition window(QString(), QString(), nullptr);
            QCOMPARE(child<QLabel>(window, "lbl_Dose").text(),
                QString("FormVendelSaisieStockComposition:Dose"));
        }
        const MarkedContext texts("FormVendelSaisieStockCompositionMessages");
        FormVendelSaisieStockComposition window(QString(), QString(), nullptr);
        window.show();
        const AnswerBox box;
        click(window, "btn_Add");
        QCOMPARE(box.title(), QString("FormVendelSaisieStockCompositionMessages:Ajouter"));
    }

    void troubleIsLogged()
    {
        const CapturedLog log;
        Composing at;
        {
            const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelSaisieStockComposition");
            FormVendelSaisieStockComposition broken(QString(), QString(), nullptr);
        }
        const FailingEvent trouble(QEvent::Show, "QMessageBox");
        click(at.window, "btn_Add");
        QCOMPARE(log.criticals(),
            cells({"Errors FormSaisieStockComposition Constructor : trouble",
                "Errors FormSaisieStockComposition on_btn_Add_clicked : trouble"}));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockComposition)
#include "tst_FormVendelSaisieStockComposition.moc"
