// SPDX-License-Identifier: MIT
// Prints where the widgets of a dialog stand once it is laid out, a line "name x y width height"
// for each, in pixels from the window's top left corner: shell scripts aim their mouse by it.
#include "app/Application.h"
#include "ui_FormVendelAbout.h"
#include "ui_FormVendelConfig.h"
#include "ui_FormVendelFormulaireTicket.h"
#include "ui_FormVendelHistorique.h"
#include "ui_FormVendelSaisieArticle.h"
#include "ui_FormVendelSaisieStock.h"
#include "ui_FormVendelSaisieStockComposition.h"
#include "ui_FormVendelSaisieStockCutPaste.h"
#include "ui_FormVendelSaisieStockMaj.h"
#include "ui_FormVendelStockCalculation.h"

#include <QApplication>
#include <QDialog>

#include <functional>
#include <iostream>
#include <map>
#include <string>

namespace {
template <class Form> void printPlaces()
{
    QDialog window;
    Form form;
    form.setupUi(&window);
    window.show();
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->objectName().isEmpty() || !widget->isVisible()) {
            continue;
        }
        const QPoint corner = widget->mapTo(&window, QPoint(0, 0));
        std::cout << qPrintable(widget->objectName()) << ' ' << corner.x() << ' ' << corner.y()
                  << ' ' << widget->width() << ' ' << widget->height() << '\n';
    }
}

const std::map<std::string, std::function<void()>> forms{
    {"FormVendelAbout", printPlaces<Ui_FormVendelAbout>},
    {"FormVendelConfig", printPlaces<Ui_FormVendelConfig>},
    {"FormVendelFormulaireTicket", printPlaces<Ui_FormVendelFormulaireTicket>},
    {"FormVendelHistorique", printPlaces<Ui_FormVendelHistorique>},
    {"FormVendelSaisieArticle", printPlaces<Ui_FormVendelSaisieArticle>},
    {"FormVendelSaisieStock", printPlaces<Ui_FormVendelSaisieStock>},
    {"FormVendelSaisieStockComposition", printPlaces<Ui_FormVendelSaisieStockComposition>},
    {"FormVendelSaisieStockCutPaste", printPlaces<Ui_FormVendelSaisieStockCutPaste>},
    {"FormVendelSaisieStockMaj", printPlaces<Ui_FormVendelSaisieStockMaj>},
    {"FormVendelStockCalculation", printPlaces<Ui_FormVendelStockCalculation>},
};
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application::setAttributes();
    QApplication application(argc, argv);
    Application::setUp(application);
    const auto form = forms.find(argc == 2 ? argv[1] : "");
    if (form == forms.end()) {
        std::cerr << "usage: form-places FORM\n";
        return 2;
    }
    form->second();
    return 0;
}
