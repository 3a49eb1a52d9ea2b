// SPDX-License-Identifier: MIT
#pragma once

#include "app/FormVendel.h"
#include "tests/support/Shop.h"

/// A shop with its sales screen open and the splash gone.
struct Counter
{
    /// The statements \a sql fill the shop's database before the screen opens.
    explicit Counter(const char* sql = "");

    /// The names in the list "tableView1" (menu) or "tableView2" (ticket), parted by "|".
    QString names(const char* list);

    Shop shop;
    FormVendel form;
};
