// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/AccessTree.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"
#include "tests/translations/EveryWindow.h"
#include "tests/translations/WindowTexts.h"

#include <QAccessible>
#include <QMenuBar>
#include <QTableView>
#include <QWindow>

#include <optional>

namespace {
/// The window of the running row, its lists filled, the first row of each marked, taking keys.
std::unique_ptr<QWidget> openWithKeys(QWidget& opener)
{
    auto window = openWindowOfRow(opener);
    if (auto* splash = window->findChild<FormVendelStart*>()) {
        splash->close();
    }
    const auto lists = window->findChildren<QTableView*>();
    for (QTableView* list : lists) {
        list->selectRow(0);
    }
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get())) {
        qFatal("the window does not become active");
    }
    return window;
}

void eachWindowInBothLanguages()
{
    QTest::addColumn<bool>("isFrench");
    QTest::newRow("French") << true;
    QTest::newRow("English") << false;
}
} // namespace

/// Every window can be used with the keyboard alone, and a screen reader has a name for all of it.
class TestEveryControl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { eachWindowInBothLanguages(); }

    void init()
    {
        QFETCH_GLOBAL(const bool, isFrench);
        if (isFrench) {
            french_.emplace();
        }
    }

    void cleanup() { french_.reset(); }

    void everyControlHasAName_data() { eachWindow(); }
    void everyControlHasAName()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWithKeys(opener);
        const QStringList nameless = namelessControls(*window);
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join('\n')));
    }

    void noTwoControlsSoundAlike_data() { eachWindow(); }
    void noTwoControlsSoundAlike()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWithKeys(opener);
        const QStringList shared = ambiguousNames(*window);
        QVERIFY2(shared.isEmpty(), qPrintable(shared.join('\n')));
    }

    void controlsAreCalledAsACashierCallsThem_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("french");
        QTest::addColumn<QString>("english");
        const auto add
            = [](const char* window, const char* control, const char* french, const char* english) {
                  QTest::addRow("%s %s", window, control) << window << control << french << english;
              };
        add("FormVendel", "tableView1", "Menu", "Menu");
        add("FormVendel", "tableView2", "Ticket", "Ticket");
        add("FormVendel", "txt_montant", "Montant", "Amount");
        add("FormVendel", "chkbx_ToolTip", "InfoBulle", "Tooltips");
        add("FormVendel", "btn_7", "7", "7");
        add("FormVendel", "btn_11", "Virgule", "Decimal point");
        add("FormVendel", "btn_12", "Plus", "Plus");
        add("FormVendel", "btn_13", "Moins", "Minus");
        add("FormVendelStart", "", "Système Vendel", "Vendel System");
        add("FormVendelTicket", "txt_Ticket", "Impression Ticket", "Receipt");
        add("FormVendelAbout", "txt_Edit", "Informations", "Information");
        add("FormVendelConfig", "cbx_Epson", "Epson TM-T20II", "Epson TM-T20II");
        add("FormVendelConfig", "btn_Maj_TVA", "MAJ TVA", "Update VAT");
        add("FormVendelConfig", "btn_Maj_Epson", "MAJ Epson TM-T20II", "Update Epson TM-T20II");
        add("FormVendelConfig", "btn_Maj_Formulaire", "MAJ Formulaire Impression Ticket",
            "Update Receipt Form");
        add("FormVendelFormulaireTicket", "txt_Form", "Entête de page", "Page header");
        add("FormVendelHistorique", "tableView1", "Historique", "History");
        add("FormVendelHistorique", "tableView2", "Date", "Date");
        add("FormVendelHistorique", "tableView3", "Ventes par article", "Sales by item");
        add("FormVendelSaisieArticle", "tableView", "Menu", "Menu");
        add("FormVendelSaisieStock", "tableView1", "Article", "Item");
        add("FormVendelSaisieStock", "tableView2", "Composition", "Composition");
        add("FormVendelSaisieStockComposition", "cbx_Unit", "Unité", "Unit");
        add("FormVendelSaisieStockCutPaste", "cbx_Article", "Remplaçant", "Replacement");
        add("FormVendelSaisieStockMaj", "tableView", "Mise à jour", "Update");
        add("FormVendelStockCalculation", "tableView1", "Consommation par article",
            "Consumption by item");
        add("FormVendelStockCalculation", "tableView2", "Consommation", "Consumption");
    }
    void controlsAreCalledAsACashierCallsThem()
    {
        QFETCH_GLOBAL(const bool, isFrench);
        QFETCH(const QString, window);
        QFETCH(const QString, control);
        const NumberedShop shop;
        const auto opened = makeWindow(window);
        QWidget& named = control.isEmpty() ? *opened : child<QWidget>(*opened, qPrintable(control));
        QTEST(spokenName(named), isFrench ? "french" : "english");
    }

    void tabLeadsToEveryControl_data() { eachWindow(); }
    void tabLeadsToEveryControl()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWithKeys(opener);
        const QStringList missed = controlsOutOfReach(*window);
        QVERIFY2(missed.isEmpty(), qPrintable(missed.join('\n')));
    }

    void altLeadsToEveryMenu_data() { eachWindow(); }
    void altLeadsToEveryMenu()
    {
        const NumberedShop shop;
        QWidget opener;
        const auto window = openWithKeys(opener);
        auto* bar = window->findChild<QMenuBar*>();
        if (bar == nullptr) {
            return;
        }
        QTest::keyClick(window->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        QVERIFY(bar->hasFocus());
        const auto menus = bar->actions();
        for (const QAction* menu : menus) {
            QCOMPARE(bar->activeAction(), menu);
            QTest::keyClick(bar, Qt::Key_Right);
        }
    }

private:
    std::optional<InFrench> french_;
};

VENDEL_TEST(TestEveryControl)
#include "tst_EveryControl.moc"
