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
#include "tests/support/Translation.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
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
    return std::make_unique<FormVendelSaisieStockComposition>(
        QString("Café"), QString("1"), nullptr);
}

std::unique_ptr<QWidget> openCalculation()
{
    return std::make_unique<FormVendelStockCalculation>(
        QString("05/01/2019"), QString("06/01/2019"), nullptr);
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
            QTest::newRow(name) << openWindow << QString::fromUtf8(title);
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

    /// All texts of the form: labels, buttons, groups, menus and their entries.
    static QStringList captions(const QWidget& window)
    {
        QStringList texts{window.windowTitle()};
        const auto labels = window.findChildren<QLabel*>();
        for (const auto* label : labels) {
            texts << label->text();
        }
        const auto buttons = window.findChildren<QAbstractButton*>();
        for (const auto* button : buttons) {
            texts << button->text();
        }
        const auto groups = window.findChildren<QGroupBox*>();
        for (const auto* group : groups) {
            texts << group->title();
        }
        const auto actions = window.findChildren<QAction*>();
        for (const auto* action : actions) {
            texts << action->text();
        }
        texts.removeAll(QString());
        return texts;
    }

private slots:
    void withoutATranslationTheTitleIsTheForms_data()
    {
        windows();
    }
    void withoutATranslationTheTitleIsTheForms()
    {
        QFETCH(const Open, openWindow);
        QFETCH(const QString, title);
        const Shop shop;
        QCOMPARE(openWindow()->windowTitle(), title);
    }

    void theFirstContextThatHasACaptionCounts_data()
    {
        windows();
    }
    void theFirstContextThatHasACaptionCounts()
    {
        QFETCH(const Open, openWindow);
        QFETCH(const QString, title);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        const Shop shop;
        Translation translation;
        translation.add(QString("FormVendelElsewhere"), title, QString("elsewhere"));
        QCOMPARE(openWindow()->windowTitle(), title);
        translation.add(QString("FormVendelMessages"), title, QString("catalogue"));
        QCOMPARE(openWindow()->windowTitle(), QString("catalogue"));
        translation.add(name + QLatin1String("Messages"), title, QString("messages"));
        QCOMPARE(openWindow()->windowTitle(), QString("messages"));
        translation.add(name, title, QString("own"));
        QCOMPARE(openWindow()->windowTitle(), QString("own"));
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
        const auto window = openWindow();
        const QStringList looked = captions(*window);
        QCOMPARE(looked.size(), french.size());
        int translated = 0;
        for (int at = 0; at < french.size(); ++at) {
            const QString mark = QString::fromUtf8(QTest::currentDataTag()) + ':' + french.at(at);
            translated += looked.at(at) == mark ? 1 : 0;
            // What the window itself writes, and Qt's own button, are no captions of the form.
            const QStringList others{QString("Café"), QString("05/01/2019"), QString("06/01/2019"),
                QString("Entête de page"), QString("&OK"), QString("OK")};
            QVERIFY2(
                looked.at(at) == mark || others.contains(french.at(at)), qPrintable(looked.at(at)));
        }
        QVERIFY(translated > 0);
    }
};

VENDEL_TEST(TestCaptions)
#include "tst_Captions.moc"
