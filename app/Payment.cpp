// SPDX-License-Identifier: MIT
#include "app/Payment.h"

#include "app/ReceiptBytes.h"
#include "common/SlotGuard.h"
#include "Print/escpospp/Printer.h"
#include "store/History.h"
#include "store/Settings.h"

#include <optional>
#include <string>

namespace {
/// What the printer throws when it cannot be claimed; any other int is nothing to the cashier.
constexpr int notConnected = -1;

enum class Output
{
    Screen,
    Paper,
    /// Any other setting: the sale is recorded, without a receipt.
    None
};

Output output()
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

/// Claims the printer and prints; returns whether the job was sent.
bool printReceipt()
{
    try {
        Printer::initializePrinter(PrinterBus::receiptPrinter);
        Printer* printer = Printer::getPrinter();
        printer->raw(receiptBytes(Payment::receipt()));
        printer->cut();
        return true;
    } catch (int code) {
        if (code == notConnected) {
            throw PrinterNotConnected();
        }
        return false;
    }
}

/// Shows the receipt, or an empty window if it cannot be composed; returns whether the customer can
/// read it. What fails is logged as the receipt window's, whose work it is.
bool showReceipt(const std::function<bool(const Receipt&)>& show)
{
    std::optional<Receipt> receipt;
    guarded("FormVendelTicket Constructor", [&] { receipt = Payment::receipt(); });
    return show(receipt.value_or(Receipt())) && receipt;
}
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

void Payment::giveReceipt(const std::function<bool(const Receipt&)>& show)
{
    bool isGiven = false;
    switch (output()) {
    case Output::Screen:
        isGiven = showReceipt(show);
        break;
    case Output::Paper:
        isGiven = printReceipt();
        break;
    case Output::None:
        break;
    }
    if (isGiven) {
        Ticket::clear();
    }
}

Receipt Payment::receipt() { return composeReceipt(readSale(QDateTime::currentDateTime())); }
