// SPDX-License-Identifier: MIT
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <initializer_list>

namespace {
constexpr auto blue = "background-color: rgb(114, 159, 207)";
constexpr auto red = "background-color: rgb(204, 0, 0)";

/// A window and its widget, a row of a table.
QTestData& addRow(const char* window, const char* widget)
{
    return QTest::addRow("%s %s", window, widget) << window << widget;
}

/// The window of the running row on the screen.
AnyWindow openWindow()
{
    QFETCH(const QString, window);
    AnyWindow opened = makeWindow(window);
    opened->show();
    return opened;
}

/// The widgets of the stock's and the history's windows and of the settings that bear text, and
/// their captions; none where the text is no caption.
void addWidgets()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("caption");
    using Captions = std::initializer_list<std::pair<const char*, const char*>>;
    const auto add = [](const char* window, const Captions& captions) {
        for (const auto& [widget, caption] : captions) {
            addRow(window, widget) << caption;
        }
    };
    add("FormVendelHistorique",
        {{"lbl_First_Date", ""}, {"txt_First_Date", ""}, {"lbl_Second_Date", ""},
            {"txt_Second_Date", ""}, {"btn_Del_Seizure", ""}, {"groupBox", ""},
            {"rb_First_Date", ""}, {"rb_Second_Date", ""}, {"btn_Show_Date", ""},
            {"btn_View_Historical", ""}, {"btn_Total", ""}, {"btn_Clear", ""}});
    add("FormVendelSaisieStock",
        {{"btn_Display", "Afficher"}, {"btn_Update", "Mise à Jour"}, {"btn_Remove", "Supprimer"},
            {"btn_Cut_Paste", "Couper /\nColler"}});
    add("FormVendelSaisieStockComposition",
        {{"lbl_ArticleTitle", "Article :"}, {"lbl_Article", ""}, {"lbl_Composition", "Composition"},
            {"txt_Composition", ""}, {"lbl_Dose", "Dose"}, {"txt_Dose", ""}, {"lbl_Unit", "Unité"},
            {"cbx_Unit", ""}, {"btn_Add", "Ajouter"}});
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

/// Windows of a fixed size and their titles.
void addWindows()
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

/// Shorter and longer words than the French ones.
void speakEnglish(Translation& translation)
{
    const std::pair<const char*, const char*> words[]{{"Afficher", "Display"}, {"Ajouter", "Add"},
        {"Article :", "Article:"}, {"Couper /\nColler", "Cut /\nPaste"},
        {"Mettre à jour", "Update"}, {"Mise à Jour", "Update"}, {"Modifier", "Change"},
        {"Pèriode du", "Period from"}, {"Qtité", "Qty"}, {"Consommation", "Consumption"},
        {"Supprimer", "Remove"}, {"Unité", "Unit"}, {"Validité", "Validity"}, {"au", "to"}};
    for (const auto& [french, english] : words) {
        translation.add("FormVendelMessages", french, english);
    }
}

/// Names of the labels and buttons of \a window that reach beyond its edges.
QStringList textsBeyondTheEdge(const QWidget& window)
{
    QStringList names;
    const auto widgets = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const auto* widget : widgets) {
        const bool bearsText = qobject_cast<const QLabel*>(widget) != nullptr
            || qobject_cast<const QPushButton*>(widget) != nullptr;
        if (bearsText && !window.rect().contains(widget->geometry())) {
            names << widget->objectName();
        }
    }
    return names;
}
} // namespace

/// What windows share, in each of them: sizes, captions, letters, colours and the Tab key.
class TestEveryWindow : public QObject
{
    Q_OBJECT

private slots:
    void hasItsSizeAndTitle_data()
    {
        addWindows();
    }

    void hasItsSizeAndTitle()
    {
        QFETCH(const QString, window);
        QFETCH(const QSize, size);
        const Shop shop;
        const CapturedLog log;
        const AnyWindow opened = openWindow();
        QCOMPARE(opened->objectName(), window);
        QCOMPARE(opened->size(), size);
        QCOMPARE(opened->minimumSize(), size);
        QCOMPARE(opened->maximumSize(), size);
        QCOMPARE(opened->windowModality(), Qt::WindowModal);
        QTEST(opened->windowTitle(), "title");
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void hasNoButtonThatReturnPressesFromAfar_data()
    {
        addWindows();
    }

    void hasNoButtonThatReturnPressesFromAfar()
    {
        const Shop shop;
        const AnyWindow opened = openWindow();
        QStringList pressed;
        const auto buttons = opened->findChildren<QPushButton*>();
        for (const auto* button : buttons) {
            if (button->autoDefault() || button->isDefault()) {
                pressed << button->text();
            }
        }
        // The composition is added, the box about the till is closed by Return.
        QStringList expected;
        if (opened->objectName() == "FormVendelSaisieStockComposition") {
            expected << "Ajouter";
        } else if (opened->objectName() == "FormVendelAbout") {
            expected << "OK";
        }
        QCOMPARE(pressed, expected);
    }

    void titleIsTranslatedForTheWindowOrAmongItsMessages_data()
    {
        addWindows();
    }

    void titleIsTranslatedForTheWindowOrAmongItsMessages()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, title);
        const Shop shop;
        for (const QString& context : {window, window + "Messages"}) {
            const QByteArray name = context.toLatin1();
            const MarkedContext marked(name.constData());
            QCOMPARE(openWindow()->windowTitle(), context + ':' + title);
        }
    }

    void lettersAreAsLargeAsElsewhere_data()
    {
        addWidgets();
    }

    void lettersAreAsLargeAsElsewhere()
    {
        QFETCH(const QString, widget);
        const Shop shop;
        const AnyWindow opened = openWindow();
        const QFont font = child<QWidget>(*opened, qPrintable(widget)).font();
        QCOMPARE(font.pointSize(), 12);
        QCOMPARE(font.families().constFirst(), QString("Carlito"));
        QVERIFY(!font.bold());
    }

    void captionsAreTranslatedForTheirWindow_data()
    {
        addWidgets();
    }

    void captionsAreTranslatedForTheirWindow()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, widget);
        QFETCH(const QString, caption);
        const Shop shop;
        if (!caption.isEmpty()) {
            const auto shown = [&] {
                return child<QWidget>(*openWindow(), qPrintable(widget)).property("text");
            };
            QCOMPARE(shown().toString(), caption);
            const ContextEcho echo;
            QCOMPARE(shown().toString(), window);
        }
    }

    void boxesAreTranslatedAmongTheMessages_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("button");
        addRow("FormVendelSaisieStock", "btn_Remove");
        addRow("FormVendelSaisieStockComposition", "btn_Add");
        addRow("FormVendelSaisieStockMaj", "btn_Update");
        addRow("FormVendelSaisieStockCutPaste", "btn_Modify");
        addRow("FormVendelStockCalculation", "btn_Display");
        addRow("FormVendelFormulaireTicket", "btn_Pied_Page");
    }

    void boxesAreTranslatedAmongTheMessages()
    {
        QFETCH(const QString, window);
        QFETCH(const QString, button);
        const Shop shop;
        const ContextEcho echo;
        const AnyWindow opened = openWindow();
        const QString context = window + "Messages";
        QCOMPARE(saidAtClick(*opened, qPrintable(button), QMessageBox::No),
            QStringList(context + ": " + context));
    }

    void buttonsHaveTheirColourAndSize_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QSize>("size");
        const auto add = [](const char* window, std::initializer_list<const char*> buttons,
                             const char* style, QSize size) {
            for (const char* button : buttons) {
                addRow(window, button) << style << size;
            }
        };
        add("FormVendelHistorique", {"btn_Del_Seizure"}, "", {270, 36});
        add("FormVendelHistorique", {"btn_Show_Date", "btn_View_Historical", "btn_Total"}, blue,
            {270, 36});
        add("FormVendelHistorique", {"btn_Clear"}, red, {270, 36});
        add("FormVendelSaisieStock", {"btn_Display", "btn_Update", "btn_Remove", "btn_Cut_Paste"},
            blue, {149, 52});
        add("FormVendelSaisieStockComposition", {"btn_Add"}, blue, {110, 40});
        add("FormVendelSaisieStockMaj", {"btn_Update"}, blue, {120, 43});
        add("FormVendelSaisieStockCutPaste", {"btn_Modify"}, blue, {149, 32});
        add("FormVendelStockCalculation", {"btn_Display"}, blue, {149, 36});
    }

    void buttonsHaveTheirColourAndSize()
    {
        QFETCH(const QString, button);
        const Shop shop;
        const AnyWindow opened = openWindow();
        const auto& shown = child<QPushButton>(*opened, qPrintable(button));
        QTEST(shown.styleSheet(), "style");
        QTEST(shown.size(), "size");
    }

    void fieldsAreHighEnoughToBeHit_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("height");
        addRow("FormVendelHistorique", "txt_First_Date") << 30;
        addRow("FormVendelHistorique", "txt_Second_Date") << 30;
        addRow("FormVendelSaisieStockCutPaste", "cbx_Article") << 32;
    }

    void fieldsAreHighEnoughToBeHit()
    {
        QFETCH(const QString, field);
        const Shop shop;
        const AnyWindow opened = openWindow();
        QTEST(child<QWidget>(*opened, qPrintable(field)).height(), "height");
    }

    void textsAreShownWholeInFrenchAndInEnglish_data()
    {
        addWindows();
    }

    void textsAreShownWholeInFrenchAndInEnglish()
    {
        const StockSample shop;
        const auto check = [] {
            const AnyWindow opened = openWindow();
            QCOMPARE(clippedTexts(*opened), QStringList());
            QCOMPARE(textsBeyondTheEdge(*opened), QStringList());
        };
        check();
        Translation english;
        speakEnglish(english);
        check();
    }

    void tabGoesAsTheEyeDoes_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("order");
        const auto add = [](const char* window, const char* order) {
            QTest::newRow(window) << window << order;
        };
        add("FormVendelSaisieStock",
            "tableView1 tableView2 btn_Display btn_Update btn_Remove btn_Cut_Paste");
        add("FormVendelSaisieStockComposition", "txt_Composition txt_Dose cbx_Unit btn_Add");
        add("FormVendelSaisieStockMaj", "tableView btn_Update");
        add("FormVendelSaisieStockCutPaste", "cbx_Article btn_Modify tableView1 tableView2");
        add("FormVendelStockCalculation", "btn_Display tableView1 tableView2");
        add("FormVendelConfig", "txt_TVA btn_Maj_TVA cbx_Epson btn_Maj_Epson btn_Maj_Formulaire");
        add("FormVendelFormulaireTicket", "txt_Form btn_Entete_Page btn_Pied_Page");
    }

    void tabGoesAsTheEyeDoes()
    {
        const StockSample shop;
        const AnyWindow opened = openWindow();
        QVERIFY(showActive(*opened));
        QTEST(tabOrder(*opened).join(' '), "order");
    }

    void returnPressesNoButton_data()
    {
        QTest::addColumn<QString>("window");
        for (const char* window :
            {"FormVendelSaisieStock", "FormVendelSaisieStockMaj", "FormVendelSaisieStockCutPaste",
                "FormVendelStockCalculation", "FormVendelConfig", "FormVendelFormulaireTicket"}) {
            QTest::newRow(window) << window;
        }
    }

    void returnPressesNoButton()
    {
        const StockSample shop;
        const AnyWindow opened = openWindow();
        QVERIFY(showActive(*opened));
        const AnswerBox box;
        const QStringList names = tabOrder(*opened);
        for (const QString& name : names) {
            auto& widget = child<QWidget>(*opened, qPrintable(name));
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_Return);
        }
        QTest::keyClick(opened.get(), Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(opened->isVisible());
        QVERIFY(opened->findChildren<QDialog*>().isEmpty());
    }
};

VENDEL_TEST(TestEveryWindow)
#include "tst_EveryWindow.moc"
