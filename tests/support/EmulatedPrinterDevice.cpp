// SPDX-License-Identifier: MIT
#include "tests/support/EmulatedPrinterDevice.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <limits>
#include <thread>
#include <utility>

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>

namespace {
constexpr unsigned highSpeed = 3;
/// What the descriptors name.
constexpr unsigned interfaceNumber = 0;
constexpr unsigned char bulkOut = 0x01;
/// The mocked node always polls as ready: a client that is answered at once would spin.
constexpr std::chrono::milliseconds nothingYet{3};

GRef<UMockdevIoctlData> resolve(UMockdevIoctlData* data, std::size_t offset, std::size_t length)
{
    return GRef<UMockdevIoctlData>(umockdev_ioctl_data_resolve(data, offset, length, nullptr));
}

template <class T> T& as(UMockdevIoctlData* data) { return *reinterpret_cast<T*>(data->data); }

std::string hexOf(const std::string& bytes)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string hex;
    hex.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += digits[byte >> 4U];
        hex += digits[byte & 0xFU];
    }
    return hex.empty() ? "-" : hex;
}

/// Whether a request is for the printer's interface; its number comes first in every Argument.
template <class Argument> bool isForInterface(UMockdevIoctlData* arg)
{
    return as<unsigned>(resolve(arg, 0, sizeof(Argument)).get()) == interfaceNumber;
}
} // namespace

EmulatedPrinterDevice::EmulatedPrinterDevice(int number, EmulatedBehaviour& behaviour,
    const EmulatedRecords& records, std::function<void()> unplugBus)
    : number_(number)
    , behaviour_(behaviour)
    , records_(records)
    , unplugBus_(std::move(unplugBus))
    , handler_(umockdev_ioctl_base_new())
    , driverBound_(behaviour.kernelDriver)
{
    g_signal_connect(handler_.get(), "handle-ioctl", G_CALLBACK(onIoctl), this);
}

EmulatedPrinterDevice::~EmulatedPrinterDevice()
{
    g_signal_handlers_disconnect_by_data(handler_.get(), this);
}

gboolean EmulatedPrinterDevice::onIoctl(
    UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self)
{
    auto* device = static_cast<EmulatedPrinterDevice*>(self);
    const std::lock_guard lock(device->behaviour_.guard);
    const Result result = device->answer(client);
    umockdev_ioctl_client_complete(client, result < 0 ? -1 : result, result < 0 ? -result : 0);
    return TRUE;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::answer(UMockdevIoctlClient* client)
{
    const unsigned long request = umockdev_ioctl_client_get_request(client);
    UMockdevIoctlData* arg = umockdev_ioctl_client_get_arg(client);
    // What was taken before the cable was pulled can still be fetched.
    if (request == USBDEVFS_REAPURBNDELAY || request == USBDEVFS_REAPURB) {
        return reap(arg);
    }
    if (request == USBDEVFS_SUBMITURB) {
        return submit(arg);
    }
    return gone_ ? -ENODEV : control(request, arg);
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::control(
    unsigned long request, UMockdevIoctlData* arg)
{
    switch (request) {
    // libusb's first request on a node that it has opened.
    case USBDEVFS_GET_CAPABILITIES:
        record("open");
        as<__u32>(resolve(arg, 0, sizeof(__u32)).get())
            = USBDEVFS_CAP_ZERO_PACKET | USBDEVFS_CAP_BULK_CONTINUATION;
        return 0;
    case USBDEVFS_GET_SPEED:
        return highSpeed;
    case USBDEVFS_GETDRIVER:
        return giveDriver(arg);
    case USBDEVFS_IOCTL:
        return driverRequest(arg);
    case USBDEVFS_DISCONNECT_CLAIM:
        return isForInterface<usbdevfs_disconnect_claim>(arg) ? detachAndClaim() : -EINVAL;
    case USBDEVFS_CLAIMINTERFACE:
        return isForInterface<unsigned>(arg) ? claim() : -ENOENT;
    case USBDEVFS_RELEASEINTERFACE:
        return isForInterface<unsigned>(arg) ? release() : -EINVAL;
    case USBDEVFS_DISCARDURB:
        return -EINVAL;
    case USBDEVFS_CONNECTINFO:
    case USBDEVFS_CLEAR_HALT:
    case USBDEVFS_RESETEP:
    case USBDEVFS_RESET:
        return 0;
    default:
        return -ENOTTY;
    }
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::giveDriver(UMockdevIoctlData* arg)
{
    if (!driverBound_ || !isForInterface<usbdevfs_getdriver>(arg)) {
        return -ENODATA;
    }
    const auto data = resolve(arg, 0, sizeof(usbdevfs_getdriver));
    std::strcpy(as<usbdevfs_getdriver>(data.get()).driver, "usblp");
    return 0;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::driverRequest(UMockdevIoctlData* arg)
{
    if (!isForInterface<usbdevfs_ioctl>(arg)) {
        return -EINVAL;
    }
    const auto data = resolve(arg, 0, sizeof(usbdevfs_ioctl));
    const auto code = static_cast<unsigned>(as<usbdevfs_ioctl>(data.get()).ioctl_code);
    return code == USBDEVFS_DISCONNECT ? detach() : 0;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::detach()
{
    if (behaviour_.detachRefused) {
        return -EPERM;
    }
    if (!driverBound_) {
        return -ENODATA;
    }
    driverBound_ = false;
    record("detach");
    return 0;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::claim()
{
    if (behaviour_.claimRefused || driverBound_) {
        return -EBUSY;
    }
    record("claim");
    return 0;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::detachAndClaim()
{
    const Result detached = driverBound_ ? detach() : 0;
    return detached < 0 ? detached : claim();
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::release()
{
    record("release");
    return 0;
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::submit(UMockdevIoctlData* arg)
{
    if (gone_) {
        return -ENODEV;
    }
    auto urbData = resolve(arg, 0, sizeof(usbdevfs_urb));
    const auto& urb = as<usbdevfs_urb>(urbData.get());
    if (urb.endpoint != bulkOut) {
        return -ENOENT;
    }
    const bool first = (urb.flags & USBDEVFS_URB_BULK_CONTINUATION) == 0;
    if (first && !beginTransfer(urb)) {
        return -ENODEV;
    }
    take(urbData.get());
    done_.push_back(std::move(urbData));
    return 0;
}

bool EmulatedPrinterDevice::beginTransfer(const usbdevfs_urb& urb)
{
    if (behaviour_.unplugAfter == 0) {
        record("gone", static_cast<std::size_t>(urb.buffer_length), {});
        unplugBus_();
        return false;
    }
    fault_ = std::exchange(behaviour_.fault, Fault::None);
    room_ = fault_ == Fault::None ? std::numeric_limits<std::size_t>::max() : behaviour_.faultBytes;
    requested_ = 0;
    taken_.clear();
    broken_ = false;
    return true;
}

void EmulatedPrinterDevice::take(UMockdevIoctlData* urbData)
{
    auto& urb = as<usbdevfs_urb>(urbData);
    const auto length = static_cast<std::size_t>(urb.buffer_length);
    requested_ += length;
    if (broken_) {
        urb.actual_length = 0;
        urb.status = -ENOENT;
        return;
    }
    const std::size_t accepted = std::min(length, room_);
    if (accepted > 0) {
        const auto buffer = resolve(urbData, offsetof(usbdevfs_urb, buffer), length);
        taken_.append(reinterpret_cast<const char*>(buffer->data), accepted);
    }
    room_ -= accepted;
    urb.actual_length = static_cast<int>(accepted);
    broken_ = accepted < length || (fault_ != Fault::None && room_ == 0);
    if (!broken_ || fault_ == Fault::ShortWrite) {
        urb.status = 0;
    } else {
        urb.status = fault_ == Fault::Stall ? -EPIPE : -ENODEV;
    }
}

EmulatedPrinterDevice::Result EmulatedPrinterDevice::reap(UMockdevIoctlData* arg)
{
    if (done_.empty()) {
        std::this_thread::sleep_for(nothingYet);
        return gone_ ? -ENODEV : -EAGAIN;
    }
    const GRef<UMockdevIoctlData> urbData = std::move(done_.front());
    done_.pop_front();
    const auto pointer = resolve(arg, 0, sizeof(void*));
    umockdev_ioctl_data_set_ptr(pointer.get(), 0, urbData.get());
    if (done_.empty()) {
        endTransfer();
    }
    return 0;
}

void EmulatedPrinterDevice::endTransfer()
{
    const char* event = "taken";
    if (broken_) {
        event = fault_ == Fault::Stall ? "stall" : fault_ == Fault::Unplug ? "gone" : "short";
    }
    record(event, requested_, taken_);
    if (records_.bytes != nullptr) {
        std::fwrite(taken_.data(), 1, taken_.size(), records_.bytes);
        std::fflush(records_.bytes);
    }
    if (behaviour_.unplugAfter > 0) {
        --behaviour_.unplugAfter;
    }
    if (broken_ && fault_ == Fault::Unplug) {
        unplugBus_();
    }
}

void EmulatedPrinterDevice::record(const char* event)
{
    if (records_.lines != nullptr) {
        std::fprintf(records_.lines, "%d %s\n", number_, event);
        std::fflush(records_.lines);
    }
}

void EmulatedPrinterDevice::record(
    const char* event, std::size_t requested, const std::string& bytes)
{
    if (records_.lines != nullptr) {
        std::fprintf(
            records_.lines, "%d %s %zu %s\n", number_, event, requested, hexOf(bytes).c_str());
        std::fflush(records_.lines);
    }
}
