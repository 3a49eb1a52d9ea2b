// SPDX-License-Identifier: MIT
#pragma once

#include "app/Receipt.h"

#include <functional>
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
/// Copies the ticket's lines into the history, all of them or none. Throws std::runtime_error when
/// none was copied.
void record();

/// Gives the customer the receipt of the recorded ticket, as the printer's switch says: calls
/// \a show with it, which returns whether it could be shown, or prints it and cuts the paper;
/// another switch gives none. When the receipt cannot be composed, \a show gets an empty one.
/// Throws PrinterNotConnected, and std::exception when the switch is missing or no number; a write
/// to the printer that fails is only reported on standard output.
void giveReceipt(const std::function<bool(const Receipt&)>& show);

/// The receipt of the ticket, dated now. Throws like readSale().
Receipt receipt();
} // namespace Payment
