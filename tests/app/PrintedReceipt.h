// SPDX-License-Identifier: MIT
#pragma once

#include "app/ReceiptBytes.h"
#include "tests/support/Shop.h"

#include <QByteArray>
#include <QDateTime>
#include <QTest>

/// The bytes of the stored ticket's receipt, made on 5 March 2024 at 09:07:03.
inline QByteArray printedReceipt()
{
    const QDateTime time(QDate(2024, 3, 5), QTime(9, 7, 3));
    return QByteArray::fromStdString(receiptBytes(composeReceipt(readSale(time))));
}

/// Puts a line on the ticket; \a price as SQL writes it.
inline void putOnTicket(const Shop& shop, const QByteArray& article, const QByteArray& price)
{
    const QByteArray values = "values (7, '" + article + "', " + price + ")";
    shop.sql(("insert into Ticket (id, article, prix) " + values).constData());
}

/// Writes the file above the sale.
inline void writeHeader(const Shop& shop, const QByteArray& bytes)
{
    shop.write("EnteteFormulaire.dat", bytes);
}

/// Writes the file below the sale.
inline void writeFooter(const Shop& shop, const QByteArray& bytes)
{
    shop.write("PiedFormulaire.dat", bytes);
}

/// Compares byte strings, showing both in full when they differ.
#define COMPARE_BYTES(actual, expected)                                                            \
    do {                                                                                           \
        const QByteArray shown = (actual);                                                         \
        const QByteArray wanted(expected);                                                         \
        QVERIFY2(shown == wanted,                                                                  \
            QByteArray("\n   actual: " + shown.toPercentEncoding(" ->$*")                          \
                + "\n expected: " + wanted.toPercentEncoding(" ->$*"))                             \
                .constData());                                                                     \
    } while (false)
