// SPDX-License-Identifier: MIT
#include "app/Payment.h"

#include "app/ReceiptBytes.h"
#include "Print/escpospp/Printer.h"
#include "store/History.h"
#include "store/Settings.h"

#include <string>
#include <utility>

namespace {
constexpr std::pair<int, int> receiptPrinter{0x04B8, 0x0E15};
/// What the printer throws when it cannot be claimed; any other int is nothing to the cashier.
constexpr int notConnected = -1;
} // namespace

PrinterNotConnected::PrinterNotConnected()
    : std::runtime_error("the receipt printer is not connected")
{ }

void Payment::record()
{
    const std::vector<TicketLine> lines = Ticket::lines();
    if (lines.empty()) {
        throw std::runtime_error("the ticket could not be read");
    }
    if (!History::record(lines)) {
        throw std::runtime_error("the ticket could not be written to the history");
    }
}

Payment::Output Payment::output()
{
    QString value;
    for (const QString& stored : Settings::printerSwitches()) {
        value = stored;
    }
    switch (std::stoi(value.toStdString())) {
    case 0:
        return Output::Screen;
    case 1:
        return Output::Paper;
    default:
        return Output::None;
    }
}

Receipt Payment::receipt()
{
    return composeReceipt(readSale(QDateTime::currentDateTime()));
}

bool Payment::printReceipt()
{
    try {
        Printer::initializePrinter(receiptPrinter);
        Printer* printer = Printer::getPrinter();
        printer->raw(receiptBytes(receipt()));
        printer->cut();
        return true;
    } catch (int code) {
        if (code == notConnected) {
            throw PrinterNotConnected();
        }
        return false;
    }
}
