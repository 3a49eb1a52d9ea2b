// SPDX-License-Identifier: MIT
#include "Print/escpospp/PrinterBus.h"

namespace PrinterBus {
namespace {
/// Also gives each device of the list back to the library; an open one stays with its handle.
void endDeviceList(libusb_device** list) { libusb_free_device_list(list, 1); }
using DeviceList = Handle<libusb_device*, endDeviceList>;
} // namespace

Found openFirst(libusb_context* context, std::pair<int, int> ids)
{
    libusb_device** list = nullptr;
    // A negative count means that the bus could not be read, and that there is no list.
    const ssize_t count = libusb_get_device_list(context, &list);
    const DeviceList owner(count < 0 ? nullptr : list);
    Found found;
    found.result = count < 0 ? static_cast<int>(count) : 0;
    for (ssize_t i = 0; i < count; ++i) {
        libusb_device_descriptor descriptor{};
        if (libusb_get_device_descriptor(list[i], &descriptor) == 0
            && descriptor.idVendor == ids.first && descriptor.idProduct == ids.second) {
            libusb_device_handle* handle = nullptr;
            found.isThere = true;
            found.result = libusb_open(list[i], &handle);
            if (found.result == 0) {
                found.device.reset(handle);
            }
            break;
        }
    }
    return found;
}

State look(std::pair<int, int> ids, std::string& reason)
{
    libusb_context* handle = nullptr;
    const int begun = libusb_init(&handle);
    if (begun < 0) {
        reason = libusb_error_name(begun);
        return State::NoBus;
    }
    const Context context(handle);
    const Found found = openFirst(handle, ids);
    reason = found.result == 0 ? "" : libusb_error_name(found.result);
    if (!found.isThere) {
        return found.result == 0 ? State::Absent : State::NoBus;
    }
    if (found.device) {
        return State::Ready;
    }
    return found.result == LIBUSB_ERROR_ACCESS ? State::Forbidden : State::Closed;
}
} // namespace PrinterBus
