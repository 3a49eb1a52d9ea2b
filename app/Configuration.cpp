// SPDX-License-Identifier: MIT
#include "app/Configuration.h"

DbRows Configuration::taxRates()
{
    return Db::DbLoad("select valeur from Config where param like 'TVA'");
}

DbRows Configuration::printerSwitches()
{
    return Db::DbLoad("select valeur from Config where param like 'Epson TM-T20II'");
}
