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

#include <functional>
#include <memory>

using AnyWindow = std::unique_ptr<QDialog>;

/// The window with the given class name, not shown yet.
inline AnyWindow makeWindow(const QString& name)
{
    const QHash<QString, std::function<AnyWindow()>> makers{
        {"FormVendelAbout", [] { return std::make_unique<FormVendelAbout>(); }},
        {"FormVendelConfig", [] { return std::make_unique<FormVendelConfig>(); }},
        {"FormVendelFormulaireTicket",
            [] { return std::make_unique<FormVendelFormulaireTicket>(); }},
        {"FormVendelHistorique", [] { return std::make_unique<FormVendelHistorique>(); }},
        {"FormVendelSaisieArticle", [] { return std::make_unique<FormVendelSaisieArticle>(); }},
        {"FormVendelSaisieStock", [] { return std::make_unique<FormVendelSaisieStock>(); }},
        {"FormVendelSaisieStockComposition",
            [] { return std::make_unique<FormVendelSaisieStockComposition>("Café", "1"); }},
        {"FormVendelSaisieStockCutPaste",
            [] { return std::make_unique<FormVendelSaisieStockCutPaste>(); }},
        {"FormVendelSaisieStockMaj", [] { return std::make_unique<FormVendelSaisieStockMaj>(); }},
        {"FormVendelStockCalculation",
            [] {
                return std::make_unique<FormVendelStockCalculation>(
                    "05/01/2019 00:00:00.000", "12/30/2019 23:59:59.999");
            }},
    };
    return makers.value(name)();
}
