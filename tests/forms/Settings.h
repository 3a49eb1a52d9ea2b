// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelConfig.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QLineEdit>

/// A shop whose database \a change has changed.
struct ChangedShop : Shop
{
    explicit ChangedShop(const QByteArray& change) { fill(change); }
};

/// The settings on the screen of a shop of their own.
struct OpenSettings
{
    const ChangedShop shop;
    FormVendelConfig window;
    QLineEdit& rate = child<QLineEdit>(window, "txt_TVA");
    QComboBox& printer = child<QComboBox>(window, "cbx_Epson");

    /// The statements \a change change the shop before the settings are read.
    explicit OpenSettings(const QByteArray& change = {})
        : shop(change)
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            qFatal("the settings do not become active");
        }
    }

    /// Puts \a text in the place of the rate, key by key.
    void typeRate(const QString& text) const
    {
        rate.selectAll();
        QTest::keyClick(&rate, Qt::Key_Delete);
        QTest::keyClicks(&rate, text);
    }

    QString storedRate() const
    {
        return shop.cell("select valeur from Config where param = 'TVA'");
    }
    QString storedSwitch() const
    {
        return shop.cell("select valeur from Config where param = 'Epson TM-T20II'");
    }
};
