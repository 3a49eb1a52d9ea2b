// SPDX-License-Identifier: MIT
#pragma once

#include "app/Receipt.h"

#include <stdexcept>

/// No receipt printer can be claimed.
class PrinterNotConnected : public std::runtime_error
{
public:
    PrinterNotConnected();
};

/// The steps of a payment, in their order. A step that fails leaves the ticket as it is: it is
/// emptied when its receipt is shown or printed. Paid again, it is a second sale.
namespace Payment {
enum class Output
{
    Screen,
    Paper,
    /// Any other setting: the sale is recorded, without a receipt.
    None
};

/// Copies the ticket's lines into the history, all of them or none. Throws std::runtime_error when
/// none was copied.
void record();

/// Where the receipt goes. Throws std::exception when the setting is missing or no number.
Output output();

/// The receipt of the ticket, dated now. Throws like readSale().
Receipt receipt();

/// Claims the printer, prints the receipt of the ticket and cuts the paper. Returns whether the job
/// was sent: a write that fails is only reported on standard output. Throws PrinterNotConnected,
/// and like receipt() and receiptBytes().
bool printReceipt();
} // namespace Payment
