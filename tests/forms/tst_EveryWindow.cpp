// SPDX-License-Identifier: MIT
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <initializer_list>
#include <tuple>
#include <utility>

namespace {
constexpr auto blue = "background-color: rgb(114, 159, 207)";
constexpr auto red = "background-color: rgb(204, 0, 0)";

/// The window of the running row on the screen.
AnyWindow openWindow()
{
    QFETCH(const QString, window);
    AnyWindow opened = makeWindow(window);
    opened->show();
    return opened;
}
} // namespace

/// What windows share, in each of them: sizes, captions, letters, colours and the Tab key.
class TestEveryWindow : public QObject
{
    Q_OBJECT

private slots:
    void hasItsSizeAndTitleAndShowsItsTextsWhole_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("title");
        const auto add = [](const char* window, QSize size, const char* title) {
            QTest::newRow(window) << window << size << title;
        };
        add("FormVendelSaisieStock", {904, 531}, "Saisie Stock");
        add("FormVendelSaisieStockComposition", {495, 86}, "Saisie Stock");
        add("FormVendelSaisieStockMaj", {563, 261}, "Mise à jour Stock");
        add("FormVendelSaisieStockCutPaste", {845, 393}, "Couper / Coller");
        add("FormVendelStockCalculation", {751, 566}, "Calcul Stock");
        add("FormVendelConfig", {370, 261}, "Config");
        add("FormVendelFormulaireTicket", {477, 501}, "Formulaire Impression Ticket");
        add("FormVendelAbout", {435, 283}, "A propos de Système Vendel");
    }

    void hasItsSizeAndTitleAndShowsItsTextsWhole()
    {
        QFETCH(const QString, window);
        QFETCH(const QSize, size);
        QFETCH(const QString, title);
        const Shop shop;
        const CapturedLog log;
        const AnyWindow opened = openWindow();
        QCOMPARE(opened->objectName(), window);
        QCOMPARE(opened->size(), size);
        QCOMPARE(opened->minimumSize(), size);
        QCOMPARE(opened->maximumSize(), size);
        QCOMPARE(opened->windowModality(), Qt::WindowModal);
        QCOMPARE(opened->windowTitle(), title);
        QCOMPARE(clippedTexts(*opened), QStringList());
        QVERIFY(opened->rect().contains(opened->childrenRect()));
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        for (const QString& context : {window, window + "Messages"}) {
            const QByteArray name = context.toLatin1();
            const MarkedContext marked(name.constData());
            QCOMPARE(openWindow()->windowTitle(), context + ':' + title);
        }
    }

    void textsHaveTheirLettersAndCaptions_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("widget");
        // Empty where the text is no caption.
        QTest::addColumn<QString>("caption");
        using Captions = std::initializer_list<std::pair<const char*, const char*>>;
        const auto add = [](const char* window, const Captions& captions) {
            for (const auto& [widget, caption] : captions) {
                QTest::addRow("%s %s", window, widget) << window << widget << caption;
            }
        };
        add("FormVendelHistorique",
            {{"lbl_First_Date", ""}, {"txt_First_Date", ""}, {"lbl_Second_Date", ""},
                {"txt_Second_Date", ""}, {"btn_Del_Seizure", ""}, {"groupBox", ""},
                {"rb_First_Date", ""}, {"rb_Second_Date", ""}, {"btn_Show_Date", ""},
                {"btn_View_Historical", ""}, {"btn_Total", ""}, {"btn_Clear", ""}});
        add("FormVendelSaisieStock",
            {{"btn_Display", "Afficher"}, {"btn_Update", "Mise à Jour"},
                {"btn_Remove", "Supprimer"}, {"btn_Cut_Paste", "Couper /\nColler"}});
        add("FormVendelSaisieStockComposition",
            {{"lbl_ArticleTitle", "Article :"}, {"lbl_Article", ""},
                {"lbl_Composition", "Composition"}, {"txt_Composition", ""}, {"lbl_Dose", "Dose"},
                {"txt_Dose", ""}, {"lbl_Unit", "Unité"}, {"cbx_Unit", ""}, {"btn_Add", "Ajouter"}});
        add("FormVendelSaisieStockMaj", {{"btn_Update", "Mettre à jour"}});
        add("FormVendelSaisieStockCutPaste", {{"cbx_Article", ""}, {"btn_Modify", "Modifier"}});
        add("FormVendelStockCalculation",
            {{"lbl_Period", "Pèriode du"}, {"lbl_Period_Date1", ""}, {"lbl_To", "au"},
                {"lbl_To_Date2", ""}, {"btn_Display", "Afficher"}});
        add("FormVendelConfig",
            {{"lbl_TVA", "TVA"}, {"lbl_Epson", "Epson TM-T20II"},
                {"lbl_Formulaire", "Formulaire Impression Ticket"}, {"btn_Maj_TVA", "MAJ"},
                {"btn_Maj_Epson", "MAJ"}, {"btn_Maj_Formulaire", "MAJ"}, {"txt_TVA", ""},
                {"cbx_Epson", ""}});
    }

    void textsHaveTheirLettersAndCaptions()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, widget);
        QFETCH(const QString, caption);
        const Shop shop;
        const AnyWindow opened = openWindow();
        const auto& shown = child<QWidget>(*opened, qPrintable(widget));
        QCOMPARE(shown.font().pointSize(), 12);
        QCOMPARE(shown.font().families().constFirst(), QString("Carlito"));
        QVERIFY(!shown.font().bold());
        if (!caption.isEmpty()) {
            QCOMPARE(shown.property("text").toString(), caption);
            const ContextEcho echo;
            QCOMPARE(child<QWidget>(*openWindow(), qPrintable(widget)).property("text").toString(),
                window);
        }
    }

    void boxesAreTranslatedAmongTheMessages()
    {
        const Shop shop;
        const ContextEcho echo;
        for (const auto& [window, button] : {std::pair("FormVendelSaisieStock", "btn_Remove"),
                 {"FormVendelSaisieStockComposition", "btn_Add"},
                 {"FormVendelSaisieStockMaj", "btn_Update"},
                 {"FormVendelSaisieStockCutPaste", "btn_Modify"},
                 {"FormVendelStockCalculation", "btn_Display"},
                 {"FormVendelFormulaireTicket", "btn_Pied_Page"},
                 {"FormVendelConfig", "btn_Maj_TVA"}}) {
            const AnyWindow opened = makeWindow(window);
            opened->show();
            if (auto* rate = opened->findChild<QLineEdit*>("txt_TVA")) {
                rate->clear();
            }
            QCOMPARE(saidAtClick(*opened, button, QMessageBox::No),
                QStringList(QString("%1Messages: %1Messages").arg(window)));
        }
    }

    void buttonsHaveTheirColourAndSize()
    {
        const Shop shop;
        for (const auto& [window, buttons, style, size] :
            {std::tuple("FormVendelHistorique", "btn_Del_Seizure", "", QSize(270, 36)),
                {"FormVendelHistorique", "btn_Show_Date btn_View_Historical btn_Total", blue,
                    {270, 36}},
                {"FormVendelHistorique", "btn_Clear", red, {270, 36}},
                {"FormVendelSaisieStock", "btn_Display btn_Update btn_Remove btn_Cut_Paste", blue,
                    {149, 52}},
                {"FormVendelSaisieStockComposition", "btn_Add", blue, {110, 40}},
                {"FormVendelSaisieStockMaj", "btn_Update", blue, {120, 43}},
                {"FormVendelSaisieStockCutPaste", "btn_Modify", blue, {149, 32}},
                {"FormVendelStockCalculation", "btn_Display", blue, {149, 36}}}) {
            const AnyWindow opened = makeWindow(window);
            opened->show();
            const auto names = QByteArray(buttons).split(' ');
            for (const QByteArray& name : names) {
                const auto& button = child<QPushButton>(*opened, name);
                QVERIFY2(button.styleSheet() == style, window + name);
                QVERIFY2(button.size() == size, window + name);
            }
        }
    }

    void fieldsAreHighEnoughToBeHit()
    {
        const Shop shop;
        FormVendelHistorique history;
        history.show();
        QCOMPARE(child<QLineEdit>(history, "txt_First_Date").height(), 30);
        QCOMPARE(child<QLineEdit>(history, "txt_Second_Date").height(), 30);
        FormVendelSaisieStockCutPaste transfer;
        transfer.show();
        QCOMPARE(child<QComboBox>(transfer, "cbx_Article").height(), 32);
    }

    void tabGoesAsTheWorkDoesAndReturnPressesNoButtonFromElsewhere_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("order");
        const auto add = [](const char* window, const char* order) {
            QTest::newRow(window) << window << order;
        };
        add("FormVendelSaisieStock",
            "btn_Display btn_Update tableView1 tableView2 btn_Cut_Paste btn_Remove");
        add("FormVendelSaisieStockComposition", "txt_Composition txt_Dose cbx_Unit btn_Add");
        add("FormVendelSaisieStockMaj", "tableView btn_Update");
        add("FormVendelSaisieStockCutPaste", "tableView1 tableView2 cbx_Article btn_Modify");
        add("FormVendelStockCalculation", "btn_Display tableView1 tableView2");
        add("FormVendelConfig", "txt_TVA btn_Maj_TVA cbx_Epson btn_Maj_Epson btn_Maj_Formulaire");
        add("FormVendelFormulaireTicket", "txt_Form btn_Entete_Page btn_Pied_Page");
    }

    void tabGoesAsTheWorkDoesAndReturnPressesNoButtonFromElsewhere()
    {
        const StockSample shop;
        const AnyWindow opened = openWindow();
        QVERIFY(showActive(*opened));
        const QStringList names = tabOrder(*opened);
        QTEST(names.join(' '), "order");
        // Return adds the composition.
        if (opened->objectName() != "FormVendelSaisieStockComposition") {
            const AnswerBox box;
            for (const QString& name : names) {
                auto& widget = child<QWidget>(*opened, qPrintable(name));
                widget.setFocus();
                if (qobject_cast<QPushButton*>(&widget) == nullptr) {
                    QTest::keyClick(&widget, Qt::Key_Return);
                }
            }
            QTest::keyClick(opened.get(), Qt::Key_Return);
            QVERIFY(!box.wasShown());
            QVERIFY(opened->isVisible());
            QVERIFY(opened->findChildren<QDialog*>().isEmpty());
        }
    }
};

VENDEL_TEST(TestEveryWindow)
#include "tst_EveryWindow.moc"
