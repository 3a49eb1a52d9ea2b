// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/StockSample.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <memory>

namespace {
std::unique_ptr<QWidget> makeWindow(const QString& name)
{
    if (name == QLatin1String("editor")) {
        return std::make_unique<FormVendelSaisieStock>();
    }
    if (name == QLatin1String("composition")) {
        return std::make_unique<FormVendelSaisieStockComposition>(QString("Café"), QString("1"));
    }
    if (name == QLatin1String("update")) {
        return std::make_unique<FormVendelSaisieStockMaj>();
    }
    if (name == QLatin1String("transfer")) {
        return std::make_unique<FormVendelSaisieStockCutPaste>();
    }
    const QString moment = QString("12/30/2019 23:59:59.999");
    return std::make_unique<FormVendelStockCalculation>(moment, moment);
}

void speakEnglish(Translation& translation)
{
    const auto add = [&](const char* french, const char* english) {
        translation.add(
            QString("FormVendelMessages"), QString::fromUtf8(french), QString::fromUtf8(english));
    };
    add("Afficher", "Display");
    add("Ajouter", "Add");
    add("Article :", "Article:");
    add("Couper /\nColler", "Cut /\nPaste");
    add("Mettre à jour", "Update");
    add("Mise à Jour", "Update");
    add("Modifier", "Change");
    add("Pèriode du", "Period from");
    add("Qtité", "Qty");
    add("Consommation", "Consumption");
    add("Supprimer", "Remove");
    add("Unité", "Unit");
    add("Validité", "Validity");
    add("au", "to");
}

QStringList clippedCaptions(const QWidget& window)
{
    QStringList clipped;
    const auto widgets = window.findChildren<QWidget*>();
    for (const auto* widget : widgets) {
        const bool hasCaption = qobject_cast<const QPushButton*>(widget) != nullptr
            || qobject_cast<const QLabel*>(widget) != nullptr;
        const QSize needed = widget->minimumSizeHint();
        const bool fits = needed.width() <= widget->width() && needed.height() <= widget->height()
            && window.rect().contains(widget->geometry());
        if (hasCaption && widget->parentWidget() == &window && !fits) {
            clipped << widget->objectName();
        }
    }
    return clipped;
}

/// The lists of \a window that scroll sideways or lack the bar that scrolls down.
QStringList crampedLists(const QWidget& window)
{
    QStringList cramped;
    const auto lists = window.findChildren<QTableView*>();
    for (const auto* list : lists) {
        if (list->horizontalScrollBar()->isVisible() || !list->verticalScrollBar()->isVisible()) {
            cramped << list->objectName();
        }
    }
    return cramped;
}
} // namespace

/// Whether the windows of the stock show all that stands on them.
class TestStockLayout : public QObject
{
    Q_OBJECT

private slots:
    void captionsAreShownWhole_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isEnglish");
        for (const char* name : {"editor", "composition", "update", "transfer", "consumption"}) {
            QTest::newRow((QByteArray(name) + " in French").constData())
                << QString::fromLatin1(name) << false;
            QTest::newRow((QByteArray(name) + " in English").constData())
                << QString::fromLatin1(name) << true;
        }
    }

    void captionsAreShownWhole()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isEnglish);
        const StockSample shop;
        Translation translation;
        if (isEnglish) {
            speakEnglish(translation);
        }
        const auto window = makeWindow(name);
        window->show();
        QCOMPARE(clippedCaptions(*window), QStringList());
    }

    void listsNeedNoScrollingSideways()
    {
        const Bar bar;
        const QString many = QString("with recursive row(n) as (select 100 union all select n "
                                     "+ 1 from row where n < 220) select ");
        for (const QString& insert :
            {QString("insert into Article (id, article, prix) ") + many
                    + QString("n + 1000, 'Nouveau ' || n, 1 from row"),
                QString("insert into ArticleStock ") + many + QString("n, 'Ancien ' || n from row"),
                QString("insert into DoseStock (id, composition, dose, unite) ") + many
                    + QString("100, 'Composition ' || n, 1234.5, 'fl. oz' from row")}) {
            bar.sql(insert.toUtf8().constData());
        }
        bar.sell("Ancien 100", 100);

        FormVendelSaisieStock editor;
        editor.show();
        editor.Display(true);
        child<QTableView>(editor, "tableView1").selectRow(0);
        FormVendelSaisieStockCutPaste transfer;
        transfer.show();
        child<QTableView>(transfer, "tableView1").selectRow(0);
        FormVendelSaisieStockMaj update;
        update.show();
        Consumed at;
        QTRY_COMPARE(crampedLists(editor), QStringList());
        QTRY_COMPARE(crampedLists(transfer), QStringList());
        QTRY_COMPARE(crampedLists(update), QStringList());
        QTRY_COMPARE(crampedLists(at.window), QStringList());
    }

    void tabGoesAsTheEyeDoes_data()
    {
        QTest::addColumn<QString>("order");
        const auto row = [](const char* window, const char* order) {
            QTest::newRow(window) << QString::fromLatin1(order);
        };
        row("editor", "tableView1 tableView2 btn_Display btn_Update btn_Remove btn_Cut_Paste");
        row("update", "tableView btn_Update");
        row("transfer", "cbx_Article btn_Modify tableView1 tableView2");
        row("consumption", "btn_Display tableView1 tableView2");
    }

    void tabGoesAsTheEyeDoes()
    {
        QFETCH(const QString, order);
        const StockSample shop;
        const auto window = makeWindow(QLatin1String(QTest::currentDataTag()));
        QVERIFY(showActive(*window));
        const QStringList names = order.split(' ');
        for (const QString& name : names) {
            QCOMPARE(window->focusWidget()->objectName(), name);
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(window->focusWidget()->objectName(), names.constFirst());
    }
};

VENDEL_TEST(TestStockLayout)
#include "tst_StockLayout.moc"
