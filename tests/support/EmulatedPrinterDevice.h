// SPDX-License-Identifier: MIT
#pragma once

#include "base/Handle.h"

#include <cstdio>
#include <deque>
#include <functional>
#include <mutex>
#include <string>

#include <umockdev.h>

struct usbdevfs_urb;

/// What a whole emulated bus does; its printers share it.
struct EmulatedBehaviour
{
    /// Requests are answered in libumockdev's thread, commands are obeyed in the main one; both
    /// hold this meanwhile.
    std::mutex guard;

    enum class Fault
    {
        None,
        Stall,
        ShortWrite,
        Unplug
    };

    bool kernelDriver = false;
    bool detachRefused = false;
    bool claimRefused = false;
    bool openRefused = false;
    /// What befalls the next transfer, once faultBytes of it are taken.
    Fault fault = Fault::None;
    std::size_t faultBytes = 0;
    /// Transfers still taken before the printer is unplugged; negative: never.
    long unplugAfter = -1;
};

/// Where the conversation goes: lines of one record each, and the bytes taken.
struct EmulatedRecords
{
    std::FILE* lines = nullptr;
    std::FILE* bytes = nullptr;
};

template <class T> using GRef = Handle<T, g_object_unref>;

/// One printer at its device node: answers libusb's requests and records every bulk transfer.
/// Source of the requests: linux/usbdevice_fs.h.
class EmulatedPrinterDevice
{
public:
    /// \a number is the printer's place in the records; \a unplugBus takes the bus's devices away.
    EmulatedPrinterDevice(int number, EmulatedBehaviour& behaviour, const EmulatedRecords& records,
        std::function<void()> unplugBus);
    ~EmulatedPrinterDevice();
    EmulatedPrinterDevice(const EmulatedPrinterDevice&) = delete;
    EmulatedPrinterDevice& operator=(const EmulatedPrinterDevice&) = delete;

    UMockdevIoctlBase* handler() { return handler_.get(); }

    /// From now on every request finds no device.
    void setGone() { gone_ = true; }

private:
    using Fault = EmulatedBehaviour::Fault;

    // A request's result: 0 or more, or an errno with its sign turned.
    using Result = int;

    static gboolean onIoctl(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer self);

    Result answer(UMockdevIoctlClient* client);
    Result control(unsigned long request, UMockdevIoctlData* arg);
    Result giveDriver(UMockdevIoctlData* arg);
    Result driverRequest(UMockdevIoctlData* arg);
    Result detach();
    Result claim();
    Result detachAndClaim();
    Result release();
    Result submit(UMockdevIoctlData* arg);
    Result reap(UMockdevIoctlData* arg);
    bool beginTransfer(const usbdevfs_urb& urb);
    void take(UMockdevIoctlData* urbData);
    void endTransfer();
    void record(const char* event);
    void record(const char* event, std::size_t requested, const std::string& bytes);

    int number_;
    EmulatedBehaviour& behaviour_;
    EmulatedRecords records_;
    std::function<void()> unplugBus_;
    GRef<UMockdevIoctlBase> handler_;
    bool driverBound_;
    bool gone_ = false;

    // The transfer under way: its pieces wait until libusb fetches them.
    std::deque<GRef<UMockdevIoctlData>> done_;
    Fault fault_ = Fault::None;
    std::size_t room_ = 0;
    std::size_t requested_ = 0;
    std::string taken_;
    bool broken_ = false;
};
