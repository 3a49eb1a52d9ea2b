// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/EmulatedPrinterDevice.h"

#include <memory>
#include <string>
#include <vector>

/// A mocked USB bus under one testbed directory: a root hub and printers below it.
class EmulatedPrinterBus
{
public:
    /// The ids of one device as hexadecimal digits, "04b8" and "0e15".
    struct Ids
    {
        std::string vendor;
        std::string product;
    };

    EmulatedPrinterBus(
        std::vector<Ids> devices, EmulatedBehaviour& behaviour, const EmulatedRecords& records);

    /// The testbed's directory, to be given to the program as UMOCKDEV_DIR.
    std::string directory() const;

    /// Takes all devices off the bus; nothing when they are off.
    void unplug();

    /// Puts them back, each under a new device number as after a real plugging; nothing when they
    /// are there.
    void plug();

private:
    struct Plugged
    {
        std::string sysPath;
        std::string node;
        std::unique_ptr<EmulatedPrinterDevice> device;
    };

    void addRootHub();
    void addDevice(int number, const Ids& ids);
    void add(const std::string& description);

    std::vector<Ids> ids_;
    EmulatedBehaviour& behaviour_;
    EmulatedRecords records_;
    GRef<UMockdevTestbed> testbed_;
    int nextDeviceNumber_ = 2;
    std::vector<Plugged> plugged_;
    // Programs may still hold a node that is gone.
    std::vector<std::unique_ptr<EmulatedPrinterDevice>> unplugged_;
};
