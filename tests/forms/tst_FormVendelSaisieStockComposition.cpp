// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <tuple>
#include <utility>

namespace {
/// The composition window of Sirop over a stock editor that shows its recipe.
struct Composing : StockSample
{
    FormVendelSaisieStock stock;
    FormVendelSaisieStockComposition window{"Sirop", "3", &stock};
    QLineEdit& composition = child<QLineEdit>(window, "txt_Composition");
    QLineEdit& dose = child<QLineEdit>(window, "txt_Dose");

    Composing()
    {
        stock.show();
        stock.Display_DoseStock("3");
        window.show();
    }

    void type(const QString& newComposition, const QString& newDose) const
    {
        composition.setText(newComposition);
        dose.setText(newDose);
    }

    QStringList recipe() { return rows(stock, "tableView2"); }
};

/// Fails the running test unless \a said is asked for after a click on "Ajouter", nothing added.
void compareRefusal(const QString& composition, const QString& dose, const QString& said)
{
    Composing at;
    at.type(composition, dose);
    const AnswerBox box;
    click(at.window, "btn_Add");
    QVERIFY2(box.said() == QStringList("Ajouter: " + said), qPrintable(composition + '/' + dose));
    QVERIFY(box.isNoticeOf(at.window));
    QVERIFY(at.window.isVisible());
    QCOMPARE(at.composition.text(), composition.trimmed());
    QCOMPARE(at.dose.text(), dose.trimmed());
    QCOMPARE(at.lines(), QString("10,11,12"));
}
} // namespace

class TestFormVendelSaisieStockComposition : public QObject
{
    Q_OBJECT

private slots:
    void showsTheArticleAndTwoUnits()
    {
        const Shop shop;
        FormVendelSaisieStockComposition window("<b>Café</b>", "1");
        QCOMPARE(child<QLabel>(window, "lbl_Article").text(), QString("<b>Café</b>"));
        QCOMPARE(child<QLabel>(window, "lbl_Article").textFormat(), Qt::PlainText);
        const auto& units = child<QComboBox>(window, "cbx_Unit");
        QCOMPARE(units.count(), 2);
        QCOMPARE(units.itemText(1), QString("g"));
        QCOMPARE(units.currentText(), QString("cl"));
        QVERIFY(!units.isEditable());
        QVERIFY(child<QPushButton>(window, "btn_Add").isDefault());
        QVERIFY(!child<QPushButton>(window, "btn_Add").autoDefault());
    }

    void aLongNameKeepsItsNeighboursInPlace()
    {
        const Shop shop;
        FormVendelSaisieStockComposition brief("Thé", "1");
        FormVendelSaisieStockComposition wordy(QString(300, 'W'), "1");
        brief.show();
        wordy.show();
        QCOMPARE(wordy.size(), QSize(495, 86));
        QCOMPARE(child<QLabel>(wordy, "lbl_Article").text().size(), 300);
        for (const char* name : {"txt_Composition", "txt_Dose", "cbx_Unit", "btn_Add"}) {
            QCOMPARE(
                child<QWidget>(wordy, name).geometry(), child<QWidget>(brief, name).geometry());
        }
        QVERIFY(child<QLabel>(wordy, "lbl_Article").geometry().right() < 495);
    }

    void addsALineAndCloses()
    {
        Composing at;
        at.type("  Eau \t", " 20 ");
        QCOMPARE(saidAtClick(at.window, "btn_Add"), QStringList());
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.composition.text(), QString("Eau"));
        QCOMPARE(at.dose.text(), QString("20"));
        QCOMPARE(at.recipe(), QStringList({"13|3|Eau|20.00|cl", "12|3|Menthe|3.00|cl"}));
    }

    void doseAndUnitAreStored()
    {
        for (const auto& [dose, unit, stored, shown] :
            {std::tuple("0,5", 0, "0.5|cl", "0.50|cl"), {"0.5", 1, "0.5|g", "0.50|g"},
                {"12", 1, "12|g", "12.00|g"}, {"-2", 0, "-2|cl", "-2.00|cl"},
                {"1e2", 0, "100|cl", "100.00|cl"}, {"+3,25", 0, "3.25|cl", "3.25|cl"}}) {
            Composing at;
            at.type("Eau", dose);
            child<QComboBox>(at.window, "cbx_Unit").setCurrentIndex(unit);
            click(at.window, "btn_Add");
            QCOMPARE(at.cell("select dose || '|' || unite from DoseStock where idlig = 13"),
                QString(stored));
            QCOMPARE(at.recipe().at(0), QString("13|3|Eau|%1").arg(shown));
        }
    }

    void quotesAreStoredAsTyped()
    {
        Composing at;
        at.type("L'eau d''ici", "1");
        click(at.window, "btn_Add");
        QCOMPARE(
            at.cell("select composition from DoseStock where idlig = 13"), QString("L'eau d''ici"));
        QCOMPARE(at.recipe().at(0), QString("13|3|L'eau d''ici|1.00|cl"));
    }

    void missingTextsAreAskedFor()
    {
        for (const auto& [composition, dose] : {std::pair("", ""), {"  ", "1"}, {"Eau", " "}}) {
            compareRefusal(composition, dose, "Saisir Composition / Dose / Choisir Unité");
        }
    }

    void aDoseThatIsNoNumberIsRefused()
    {
        for (const char* dose : {"deux", "1,2,3", "1.2.3", "3 cl", "1 000", "1);--", "0x10"}) {
            compareRefusal("Eau", dose, "Saisir une dose valide");
        }
    }

    void returnAdds()
    {
        Composing at;
        QVERIFY(showActive(at.window));
        QTest::keyClicks(&at.composition, "Eau");
        QTest::keyClicks(&at.dose, "2,5");
        QTest::keyClick(&at.dose, Qt::Key_Return);
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.recipe(), QStringList({"13|3|Eau|2.50|cl", "12|3|Menthe|3.00|cl"}));
    }

    void closingAddsNothing()
    {
        Composing at;
        at.type("Eau", "1");
        QTest::keyClick(&at.window, Qt::Key_Escape);
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.lines(), QString("10,11,12"));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockComposition)
#include "tst_FormVendelSaisieStockComposition.moc"
