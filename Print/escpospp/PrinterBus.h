// SPDX-License-Identifier: MIT
#pragma once

#include "base/Handle.h"

#include <string>
#include <utility>

#include <libusb.h>

/// The USB bus as receipt printers are looked for on it. Finding one disturbs nobody who uses it.
namespace PrinterBus {
using Context = Handle<libusb_context, libusb_exit>;
using Device = Handle<libusb_device_handle, libusb_close>;

/// The vendor and product ids of the printer that receipts go to.
inline constexpr std::pair<int, int> receiptPrinter{0x04B8, 0x0E15};

/// The first device with the ids that were looked for.
struct Found
{
    /// Whether the bus could be read, and has such a device.
    bool isThere = false;
    /// libusb's code: of opening it, or of reading the bus.
    int result = 0;
    /// The opened device, null when it cannot be opened. It must end before its context.
    Device device;
};

/// Opens the first device on the bus with the vendor and product ids, and claims nothing.
Found openFirst(libusb_context* context, std::pair<int, int> ids);

/// What can be said of a printer without taking it from the till.
enum class State
{
    Absent,
    Ready,
    Forbidden,
    /// There, but it cannot be opened, for another reason than this user's rights.
    Closed,
    /// The bus itself cannot be read.
    NoBus
};

/// Looks for the device with the ids, opens it and closes it again. \a reason is then what libusb
/// calls a failure, empty for none.
State look(std::pair<int, int> ids, std::string& reason);
} // namespace PrinterBus
