// SPDX-License-Identifier: MIT
#include "tests/support/EmulatedPrinterBus.h"

#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <unistd.h>

namespace {
std::string padded(int number)
{
    std::string text = std::to_string(number);
    return std::string(3 - std::min<std::size_t>(3, text.size()), '0') + text;
}

/// Device, configuration, one printer interface, bulk OUT 0x01 and bulk IN 0x82.
/// Source: Universal Serial Bus 2.0, chapter 9.6; printer class 1.1.
std::string printerDescriptors(const EmulatedPrinterBus::Ids& ids)
{
    const auto swapped = [](const std::string& id) { return id.substr(2) + id.substr(0, 2); };
    return "1201000200000040" + swapped(ids.vendor) + swapped(ids.product) + "000101020301"
        + "09022000010100C001"
        + "0904000002070102"
          "00"
        + "07050102000200" + "07058202000200";
}

const char* const hubDescriptors = "12010002090000406B1D020000050302010109021900010100E000"
                                   "090400000109000000"
                                   "0705810304000C";
} // namespace

EmulatedPrinterBus::EmulatedPrinterBus(
    std::vector<Ids> devices, EmulatedBehaviour& behaviour, const EmulatedRecords& records)
    : ids_(std::move(devices))
    , behaviour_(behaviour)
    , records_(records)
    , testbed_(umockdev_testbed_new())
{
    addRootHub();
    plug();
}

std::string EmulatedPrinterBus::directory() const
{
    const Handle<gchar, g_free> root(umockdev_testbed_get_root_dir(testbed_.get()));
    return root.get();
}

void EmulatedPrinterBus::unplug()
{
    for (auto& plugged : std::exchange(plugged_, {})) {
        plugged.device->setGone();
        const std::string interface = plugged.sysPath + "/"
            + plugged.sysPath.substr(plugged.sysPath.rfind('/') + 1) + ":1.0";
        umockdev_testbed_uevent(testbed_.get(), interface.c_str(), "remove");
        umockdev_testbed_remove_device(testbed_.get(), interface.c_str());
        umockdev_testbed_uevent(testbed_.get(), plugged.sysPath.c_str(), "remove");
        umockdev_testbed_remove_device(testbed_.get(), plugged.sysPath.c_str());
        unplugged_.push_back(std::move(plugged.device));
    }
}

void EmulatedPrinterBus::plug()
{
    if (!plugged_.empty()) {
        return;
    }
    behaviour_.unplugAfter = -1;
    for (std::size_t i = 0; i < ids_.size(); ++i) {
        addDevice(static_cast<int>(i), ids_[i]);
    }
}

void EmulatedPrinterBus::addRootHub()
{
    add("P: /devices/usb1\nN: bus/usb/001/001\n"
        "E: DEVNAME=/dev/bus/usb/001/001\nE: DEVTYPE=usb_device\nE: SUBSYSTEM=usb\n"
        "E: BUSNUM=001\nE: DEVNUM=001\n"
        "A: busnum=1\\n\nA: devnum=1\\n\nA: speed=480\\n\nA: bConfigurationValue=1\\n\n"
        "A: idVendor=1d6b\\n\nA: idProduct=0002\\n\nH: descriptors="
        + std::string(hubDescriptors) + "\n");
}

void EmulatedPrinterBus::addDevice(int number, const Ids& ids)
{
    const int deviceNumber = nextDeviceNumber_++;
    const std::string name = "1-" + std::to_string(number + 1);
    const std::string path = "/devices/usb1/" + name;
    const std::string node = "bus/usb/001/" + padded(deviceNumber);
    add("P: " + path + "\nN: " + node + "\nE: DEVNAME=/dev/" + node
        + "\nE: DEVTYPE=usb_device\nE: SUBSYSTEM=usb\nE: BUSNUM=001\nE: DEVNUM="
        + padded(deviceNumber) + "\nA: busnum=1\\n\nA: devnum=" + std::to_string(deviceNumber)
        + "\\n\nA: speed=480\\n\nA: bConfigurationValue=1\\n\nA: idVendor=" + ids.vendor
        + "\\n\nA: idProduct=" + ids.product + "\\n\nH: descriptors=" + printerDescriptors(ids)
        + "\n");
    add("P: " + path + "/" + name + ":1.0\nE: DEVTYPE=usb_interface\nE: SUBSYSTEM=usb\n"
        + "E: INTERFACE=7/1/2\nA: bInterfaceClass=07\\n\nA: bInterfaceSubClass=01\\n\n"
        + "A: bInterfaceProtocol=02\\n\nA: bInterfaceNumber=00\\n\n");
    auto device = std::make_unique<EmulatedPrinterDevice>(
        number, behaviour_, records_, [this] { unplug(); });
    const std::string nodePath = "/dev/" + node;
    umockdev_testbed_attach_ioctl(testbed_.get(), nodePath.c_str(), device->handler(), nullptr);
    if (behaviour_.openRefused) {
        unlink((directory() + nodePath).c_str());
    }
    plugged_.push_back({"/sys" + path, nodePath, std::move(device)});
    umockdev_testbed_uevent(testbed_.get(), ("/sys" + path).c_str(), "add");
}

void EmulatedPrinterBus::add(const std::string& description)
{
    if (umockdev_testbed_add_from_string(testbed_.get(), description.c_str(), nullptr) == FALSE) {
        throw std::runtime_error("cannot describe a device: " + description);
    }
}
