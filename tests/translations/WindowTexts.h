// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Shop.h"
#include "tests/translations/ShownTexts.h"

#include <QTranslator>

/// A shop whose names are numbers, so that every letter on the screen is the till's.
class NumberedShop : public Shop
{
public:
    NumberedShop();
};

/// Takes the English away for a while.
class InFrench
{
public:
    InFrench();
    ~InFrench();
    Q_DISABLE_COPY_MOVE(InFrench)

private:
    QTranslator* english_;
};

/// What the window of the running row shows.
QVector<ShownText> textsOfRow();

/// The texts of the running row's window that lack room, one a line.
QString clippedTexts();
