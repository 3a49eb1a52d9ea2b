// SPDX-License-Identifier: MIT
#include "tests/translations/EveryWindow.h"

#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
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
#include "tests/support/Widgets.h"

#include <QTest>

namespace {
template <class Form, class... Arguments>
EveryWindow window(const char* name, const char* title, const QVector<const char*>& buttons = {},
    Arguments... arguments)
{
    return {name, title,
        [=](QWidget* opener) { return std::make_unique<Form>(arguments..., opener); }, buttons};
}

const QVector<EveryWindow>& windows()
{
    static const QVector<EveryWindow> all{
        window<FormVendel>(
            "FormVendel", "Vendel", {"btn_Afficher", "btn_Ticket", "btn_Total_Ticket"}),
        window<FormVendelStart>("FormVendelStart", "Dialog"),
        {"FormVendelTicket", "Impression Ticket",
            [](QWidget* opener) {
                return std::make_unique<FormVendelTicket>(Payment::receipt(), opener);
            },
            {}},
        window<FormVendelAbout>("FormVendelAbout", "A propos de Système Vendel"),
        window<FormVendelConfig>("FormVendelConfig", "Config"),
        window<FormVendelFormulaireTicket>(
            "FormVendelFormulaireTicket", "Formulaire Impression Ticket"),
        window<FormVendelHistorique>(
            "FormVendelHistorique", "Vendel Historique", {"btn_Show_Date"}),
        window<FormVendelSaisieArticle>(
            "FormVendelSaisieArticle", "Saisie Article", {"btn_Afficher"}),
        window<FormVendelSaisieStock>("FormVendelSaisieStock", "Saisie Stock", {"btn_Display"}),
        window<FormVendelSaisieStockComposition>(
            "FormVendelSaisieStockComposition", "Saisie Stock", {}, QString("12"), QString("1")),
        window<FormVendelSaisieStockCutPaste>("FormVendelSaisieStockCutPaste", "Couper / Coller"),
        window<FormVendelSaisieStockMaj>("FormVendelSaisieStockMaj", "Mise à jour Stock"),
        window<FormVendelStockCalculation>("FormVendelStockCalculation", "Calcul Stock",
            {"btn_Display"}, QString("05/01/2019 00:00:00.000"),
            QString("12/30/2019 23:59:59.999")),
    };
    return all;
}
} // namespace

void eachWindow()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < windows().size(); ++number) {
        QTest::newRow(windows()[number].name) << number;
    }
}

const EveryWindow& windowOfRow()
{
    QFETCH(int, number);
    return windows()[number];
}

std::unique_ptr<QWidget> openWindowOfRow(QWidget& opener)
{
    auto window = windowOfRow().make(&opener);
    window->show();
    // The clock shows a designer's word until its first tick.
    if (window->metaObject()->indexOfSlot("on_timeout()") >= 0) {
        QMetaObject::invokeMethod(window.get(), "on_timeout");
    }
    for (const char* button : windowOfRow().buttons) {
        click(*window, button);
    }
    return window;
}

std::unique_ptr<QWidget> makeWindow(const QString& name)
{
    for (const EveryWindow& window : windows()) {
        if (window.name == name) {
            return window.make(nullptr);
        }
    }
    qFatal("no window %s", qPrintable(name));
}
