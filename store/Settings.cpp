// SPDX-License-Identifier: MIT
#include "store/Settings.h"

#include "store/Rows.h"

namespace {
constexpr std::size_t valueColumn = 2;

void store(const QString& value, const char* setting)
{
    Rows::load(QLatin1String("update Config set valeur = ") + value
        + QLatin1String(" where param like '") + QLatin1String(setting) + QLatin1Char('\''));
}
} // namespace

std::vector<QString> Settings::taxRates()
{
    return Rows::firstColumn(Db::DbLoad("select valeur from Config where param like 'TVA'"));
}

std::vector<QString> Settings::printerSwitches()
{
    return Rows::firstColumn(
        Db::DbLoad("select valeur from Config where param like 'Epson TM-T20II'"));
}

QString Settings::taxRate()
{
    return Rows::text(Db::DbLoad("select * from Config where param like 'TVA'").at(0), valueColumn);
}

QString Settings::printerSwitch()
{
    return Rows::text(
        Db::DbLoad("select * from Config where param like 'Epson TM-T20II'").at(0), valueColumn);
}

void Settings::setTaxRate(const QString& value) { store(value, "TVA"); }

void Settings::setPrinterSwitch(const QString& value) { store(value, "Epson TM-T20II"); }
