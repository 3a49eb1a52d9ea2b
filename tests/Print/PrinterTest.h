// SPDX-License-Identifier: MIT
#pragma once

#include "Print/escpospp/Printer.h"
#include "tests/Print/FlushedOutput.h"
#include "tests/support/EmulatedPrinter.h"

#include <QByteArray>
#include <QStringList>

#include <filesystem>
#include <iterator>
#include <string>
#include <utility>

/// The vendor and product ids of the printer that receipts go to.
inline constexpr std::pair<int, int> receiptPrinter{0x04B8, 0x0E15};

/// \a bytes as hexadecimal text.
inline QByteArray hexOf(const std::string& bytes)
{
    return QByteArray::fromStdString(bytes).toHex();
}

/// The bytes of each transfer as hexadecimal text; one that was not taken whole has its result
/// in front.
inline QStringList transfersOf(const EmulatedPrinter& printer)
{
    QStringList list;
    for (const auto& transfer : printer.transfers()) {
        const QString hex = QString::fromLatin1(hexOf(transfer.bytes));
        list += transfer.result == "taken" ? hex
                                           : QString::fromStdString(transfer.result) + ' ' + hex;
    }
    return list;
}

/// Everything that happened on the bus, in words.
inline QStringList conversationOf(const EmulatedPrinter& printer)
{
    QStringList list;
    for (const auto& words : printer.conversation()) {
        list += QString::fromStdString(words);
    }
    return list;
}

/// The number of the process's open descriptors.
inline auto openDescriptors()
{
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

/// The value of the int that \a body throws; 0 when it throws none.
template <class Body> int thrownInt(Body&& body)
{
    try {
        std::forward<Body>(body)();
    } catch (int value) {
        return value;
    }
    return 0;
}

/// The same for taking the printer over.
inline int thrownByInitializing()
{
    return thrownInt([] { Printer::initializePrinter(receiptPrinter); });
}

/// The printer that receipts go to, taken over, and what is shown of it.
struct HeldPrinter
{
    EmulatedPrinter bus;
    FlushedOutput output;
    Printer printer{receiptPrinter};

    /// The bytes of each transfer so far.
    QStringList sent() const { return transfersOf(bus); }
};
