// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// The shop's settings.
namespace Settings {
/// The VAT rate in per cent as a sale reads it: one value for each stored row, normally one.
std::vector<QString> taxRates();

/// The receipt printer's switch, likewise: "1" prints on paper, "0" shows the receipt on the
/// screen.
std::vector<QString> printerSwitches();

/// The two as their dialog reads them, from the first row. Both throw std::out_of_range when the
/// setting is missing.
QString taxRate();
QString printerSwitch();

/// Stores a new rate or switch; \a value is a number as SQL writes it.
void setTaxRate(const QString& value);
void setPrinterSwitch(const QString& value);
} // namespace Settings
