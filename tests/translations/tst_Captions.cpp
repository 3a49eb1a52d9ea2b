// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTicket.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/translations/EveryWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>

#include <type_traits>

namespace {
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

/// All texts of the form: labels, buttons, groups, menus and their entries, names for screen
/// readers.
QStringList captions(const QWidget& window)
{
    QStringList texts = QStringList(window.windowTitle()) + textsOf(window, &QLabel::text)
        + textsOf(window, &QAbstractButton::text) + textsOf(window, &QGroupBox::title)
        + textsOf(window, &QAction::text) + QStringList(window.accessibleName())
        + textsOf(window, &QWidget::accessibleName)
        + textsOf(window, &QWidget::accessibleDescription);
    texts.removeAll("");
    return texts;
}
} // namespace

static_assert(std::is_default_constructible_v<FormVendelStart>);
static_assert(std::is_default_constructible_v<FormVendelTicket>);
template <class Window>
constexpr bool filtersEvents
    = std::is_same_v<decltype(&Window::eventFilter), bool (Window::*)(QObject*, QEvent*)>;
static_assert(
    filtersEvents<
        FormVendel> && filtersEvents<FormVendelHistorique> && filtersEvents<FormVendelSaisieArticle> && filtersEvents<FormVendelSaisieStock> && filtersEvents<FormVendelSaisieStockCutPaste>);

/// Where each window looks the texts of its form up.
class TestCaptions : public QObject
{
    Q_OBJECT

private slots:
    void theFirstContextThatHasACaptionCounts_data() { eachWindow(); }
    void theFirstContextThatHasACaptionCounts()
    {
        const QString title = windowOfRow().title;
        const QString name = windowOfRow().name;
        const auto shownTitle = [] { return windowOfRow().make(nullptr)->windowTitle(); };
        const Shop shop;
        QCOMPARE(shownTitle(), title);
        Translation translation;
        translation.add("FormVendelElsewhere", title, "elsewhere");
        QCOMPARE(shownTitle(), title);
        const QStringList contexts{"FormVendelMessages", name + "Messages", name};
        for (const QString& context : contexts) {
            translation.add(context, title, "in " + context);
            QCOMPARE(shownTitle(), "in " + context);
        }
    }

    void everyCaptionIsLookedUp_data() { eachWindow(); }
    void everyCaptionIsLookedUp()
    {
        const Shop shop;
        const QStringList french = captions(*windowOfRow().make(nullptr));
        const MarkedContext marked(QTest::currentDataTag());
        const QStringList looked = captions(*windowOfRow().make(nullptr));
        QCOMPARE(looked.size(), french.size());
        // What the window itself writes, and Qt's own button, are no captions of the form.
        const QStringList others{"12", "05/01/2019 00:00:00.000", "12/30/2019 23:59:59.999",
            "Entête de page", "&OK", "OK"};
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
