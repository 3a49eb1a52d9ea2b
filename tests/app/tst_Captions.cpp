// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTicket.h"
#include "forms/FormVendelAbout.h"
#include "forms/FormVendelConfig.h"
#include "forms/FormVendelFormulaireTicket.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>

#include <functional>
#include <memory>
#include <type_traits>

namespace {
using Open = std::function<std::unique_ptr<QWidget>()>;

template <class Window> std::unique_ptr<QWidget> open()
{
    return std::make_unique<Window>();
}

std::unique_ptr<QWidget> openComposition()
{
    return std::make_unique<FormVendelSaisieStockComposition>("Café", "1", nullptr);
}

std::unique_ptr<QWidget> openCalculation()
{
    return std::make_unique<FormVendelStockCalculation>("05/01/2019", "06/01/2019", nullptr);
}

/// Reads \a text of every widget of a kind.
template <class Widget> QStringList textsOf(const QWidget& window, QString (Widget::*text)() const)
{
    QStringList texts;
    const auto widgets = window.findChildren<Widget*>();
    for (const auto* widget : widgets) {
        texts << (widget->*text)();
    }
    return texts;
}

/// All texts of the form: labels, buttons, groups, menus and their entries.
QStringList captions(const QWidget& window)
{
    QStringList texts = QStringList(window.windowTitle()) + textsOf(window, &QLabel::text)
        + textsOf(window, &QAbstractButton::text) + textsOf(window, &QGroupBox::title)
        + textsOf(window, &QAction::text);
    texts.removeAll("");
    return texts;
}
} // namespace
Q_DECLARE_METATYPE(Open)

static_assert(std::is_default_constructible_v<FormVendelStart>);
static_assert(std::is_default_constructible_v<FormVendelTicket>);
static_assert(
    std::is_same_v<decltype(&FormVendel::eventFilter), bool (FormVendel::*)(QObject*, QEvent*)>);
static_assert(std::is_same_v<decltype(&FormVendelHistorique::eventFilter),
    bool (FormVendelHistorique::*)(QObject*, QEvent*)>);
static_assert(std::is_same_v<decltype(&FormVendelSaisieArticle::eventFilter),
    bool (FormVendelSaisieArticle::*)(QObject*, QEvent*)>);
static_assert(std::is_same_v<decltype(&FormVendelSaisieStock::eventFilter),
    bool (FormVendelSaisieStock::*)(QObject*, QEvent*)>);
static_assert(std::is_same_v<decltype(&FormVendelSaisieStockCutPaste::eventFilter),
    bool (FormVendelSaisieStockCutPaste::*)(QObject*, QEvent*)>);

/// Where each window looks the texts of its form up.
class TestCaptions : public QObject
{
    Q_OBJECT

private:
    static void windows()
    {
        QTest::addColumn<Open>("openWindow");
        QTest::addColumn<QString>("title");
        const auto row = [](const char* name, const Open& openWindow, const char* title) {
            QTest::newRow(name) << openWindow << QString(title);
        };
        row("FormVendel", open<FormVendel>, "Vendel");
        row("FormVendelStart", open<FormVendelStart>, "Dialog");
        row("FormVendelTicket", open<FormVendelTicket>, "Impression Ticket");
        row("FormVendelAbout", open<FormVendelAbout>, "A propos de Système Vendel");
        row("FormVendelConfig", open<FormVendelConfig>, "Config");
        row("FormVendelFormulaireTicket", open<FormVendelFormulaireTicket>,
            "Formulaire Impression Ticket");
        row("FormVendelHistorique", open<FormVendelHistorique>, "Vendel Historique");
        row("FormVendelSaisieArticle", open<FormVendelSaisieArticle>, "Saisie Article");
        row("FormVendelSaisieStock", open<FormVendelSaisieStock>, "Saisie Stock");
        row("FormVendelSaisieStockComposition", openComposition, "Saisie Stock");
        row("FormVendelSaisieStockCutPaste", open<FormVendelSaisieStockCutPaste>,
            "Couper / Coller");
        row("FormVendelSaisieStockMaj", open<FormVendelSaisieStockMaj>, "Mise à jour Stock");
        row("FormVendelStockCalculation", openCalculation, "Calcul Stock");
    }

private slots:
    void theFirstContextThatHasACaptionCounts_data()
    {
        windows();
    }
    void theFirstContextThatHasACaptionCounts()
    {
        QFETCH(const Open, openWindow);
        QFETCH(const QString, title);
        const QString name = QTest::currentDataTag();
        const Shop shop;
        QCOMPARE(openWindow()->windowTitle(), title);
        Translation translation;
        translation.add("FormVendelElsewhere", title, "elsewhere");
        QCOMPARE(openWindow()->windowTitle(), title);
        const QStringList contexts{"FormVendelMessages", name + "Messages", name};
        for (const QString& context : contexts) {
            translation.add(context, title, "in " + context);
            QCOMPARE(openWindow()->windowTitle(), "in " + context);
        }
    }

    void everyCaptionIsLookedUp_data()
    {
        windows();
    }
    void everyCaptionIsLookedUp()
    {
        QFETCH(const Open, openWindow);
        const Shop shop;
        const QStringList french = captions(*openWindow());
        const MarkedContext marked(QTest::currentDataTag());
        const QStringList looked = captions(*openWindow());
        QCOMPARE(looked.size(), french.size());
        // What the window itself writes, and Qt's own button, are no captions of the form.
        const QStringList others{"Café", "05/01/2019", "06/01/2019", "Entête de page", "&OK", "OK"};
        int translated = 0;
        for (int at = 0; at < french.size(); ++at) {
            const bool isMarked = looked.at(at) == QTest::currentDataTag() + (':' + french.at(at));
            translated += isMarked ? 1 : 0;
            QVERIFY2(isMarked || others.contains(french.at(at)), qPrintable(looked.at(at)));
        }
        QVERIFY(translated > 0);
    }
};

VENDEL_TEST(TestCaptions)
#include "tst_Captions.moc"
