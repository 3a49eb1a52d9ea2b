// SPDX-License-Identifier: MIT
#pragma once

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

#include <QHash>

#include <memory>

using AnyWindow = std::unique_ptr<QDialog>;

template <class Window> AnyWindow make() { return std::make_unique<Window>(); }

/// The window with the given class name, not shown yet.
inline AnyWindow makeWindow(const QString& name)
{
    const QHash<QString, AnyWindow (*)()> makers{
        {"FormVendelAbout", make<FormVendelAbout>},
        {"FormVendelConfig", make<FormVendelConfig>},
        {"FormVendelFormulaireTicket", make<FormVendelFormulaireTicket>},
        {"FormVendelHistorique", make<FormVendelHistorique>},
        {"FormVendelSaisieArticle", make<FormVendelSaisieArticle>},
        {"FormVendelSaisieStock", make<FormVendelSaisieStock>},
        {"FormVendelSaisieStockCutPaste", make<FormVendelSaisieStockCutPaste>},
        {"FormVendelSaisieStockMaj", make<FormVendelSaisieStockMaj>},
    };
    if (name == "FormVendelSaisieStockComposition") {
        return std::make_unique<FormVendelSaisieStockComposition>("Café", "1");
    }
    if (name == "FormVendelStockCalculation") {
        return std::make_unique<FormVendelStockCalculation>(
            "05/01/2019 00:00:00.000", "12/30/2019 23:59:59.999");
    }
    return makers.value(name)();
}
