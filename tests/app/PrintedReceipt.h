// SPDX-License-Identifier: MIT
#pragma once

#include "app/ReceiptBytes.h"
#include "tests/support/Shop.h"

#include <QByteArray>
#include <QTest>

/// The bytes of the stored ticket's receipt, made on 5 March 2024 at 09:07:03.
inline QByteArray printedReceipt()
{
    const QDateTime time(QDate(2024, 3, 5), QTime(9, 7, 3));
    return QByteArray::fromStdString(receiptBytes(composeReceipt(readSale(time))));
}

/// The lines between the headings and the blank line above the totals.
inline QByteArray printedItems()
{
    const QByteArray headings = "Prix * Qtit\x82\r\n\r\n";
    const QByteArray receipt = printedReceipt();
    const auto begin = receipt.indexOf(headings) + headings.size();
    return receipt.mid(begin, receipt.indexOf("\r\n->  Total ticket") - begin);
}

/// Everything from the line "Total ticket" on.
inline QByteArray printedTotals()
{
    const QByteArray receipt = printedReceipt();
    return receipt.mid(receipt.indexOf("->  Total ticket"));
}

/// Puts a line on the ticket; \a price as SQL writes it.
inline void putOnTicket(const Shop& shop, const char* article, const char* price)
{
    const QByteArray sql = QByteArray("insert into Ticket (id, article, prix) values (7, '")
        + article + "', " + price + ")";
    shop.sql(sql.constData());
}

/// Writes the file above the sale.
inline void writeHeader(const Shop& shop, const QByteArray& bytes)
{
    shop.write(QString("EnteteFormulaire.dat"), bytes);
}

/// Writes the file below the sale.
inline void writeFooter(const Shop& shop, const QByteArray& bytes)
{
    shop.write(QString("PiedFormulaire.dat"), bytes);
}

/// Compares byte strings, telling both in full when they differ.
#define COMPARE_BYTES(actual, expected)                                                            \
    do {                                                                                           \
        const QByteArray shown = (actual);                                                         \
        const QByteArray wanted(expected);                                                         \
        QVERIFY2(shown == wanted,                                                                  \
            QByteArray("\n   actual: " + shown.toPercentEncoding(" ->$*")                          \
                + "\n expected: " + wanted.toPercentEncoding(" ->$*"))                             \
                .constData());                                                                     \
    } while (false)
