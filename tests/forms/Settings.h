// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QLineEdit>

/// The rate on the screen.
inline QString rateOf(QWidget& window)
{
    return child<QLineEdit>(window, "txt_TVA").text();
}

/// The printer's switch on the screen.
inline QString switchOf(QWidget& window)
{
    return child<QComboBox>(window, "cbx_Epson").currentText();
}

/// Puts \a rate in the place of what the field holds, key by key.
inline void typeRate(QWidget& window, const char* rate)
{
    auto& field = child<QLineEdit>(window, "txt_TVA");
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromLatin1(rate));
}

/// The rate in the database.
inline QString storedRate(const Shop& shop)
{
    return shop.cell("select valeur from Config where param = 'TVA'");
}

/// The printer's switch in the database.
inline QString storedSwitch(const Shop& shop)
{
    return shop.cell("select valeur from Config where param = 'Epson TM-T20II'");
}
