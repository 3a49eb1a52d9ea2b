// SPDX-License-Identifier: MIT
#pragma once

#include "base/Handle.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include <sys/types.h>

/// One bulk transfer as the emulated printer saw it.
struct EmulatedTransfer
{
    /// The printer's place among those on the bus, from 0.
    int device;
    /// "taken", "short", "stall" or "gone" (unplugged before or during it).
    std::string result;
    /// What the program wanted to send, in bytes.
    std::size_t requested;
    /// What the printer took.
    std::string bytes;

    bool operator==(const EmulatedTransfer&) const = default;
};

/// A USB bus with TM-T20II printers for the calling process, from construction to destruction:
/// the real libusb finds, opens, claims and writes to them. The printers live in a process of
/// their own and record what they are sent. One bus at a time; link the program with
/// `vendel_emulated_printer`, which puts libumockdev's preload library in front of the C library.
///
/// The destructor gives up `Printer::instance` first: a program must let go of its devices before
/// the bus ends, or its next request ends it.
class EmulatedPrinter
{
public:
    /// What is on the bus from the start. More switches: send().
    struct Setup
    {
        /// "vvvv:pppp" for each device, four hexadecimal digits each; may be empty.
        std::vector<std::string> devices{"04b8:0e15"};
        /// The kernel's printer driver is bound to interface 0 until it is detached.
        bool kernelDriver = false;
        /// The driver cannot be detached.
        bool detachRefused = false;
        /// Another program holds interface 0.
        bool claimRefused = false;
        /// The device's node cannot be opened.
        bool openRefused = false;
    };

    /// One TM-T20II without a kernel driver.
    EmulatedPrinter();
    /// Throws std::runtime_error when the bus cannot be made.
    explicit EmulatedPrinter(const Setup& setup);
    ~EmulatedPrinter();
    EmulatedPrinter(const EmulatedPrinter&) = delete;
    EmulatedPrinter& operator=(const EmulatedPrinter&) = delete;

    /// Pulls all cables. The program has heard of it when its next libusb call is made.
    void unplug() { send("unplug"); }
    /// Plugs all cables back in.
    void plug() { send("plug"); }
    /// Takes so many more transfers; the one after them finds no device.
    void unplugAfter(int transfers) { send("unplug-after " + std::to_string(transfers)); }
    /// Pulls the cable when so many bytes of the next transfer are taken.
    void unplugDuring(int bytes) { send("unplug-during " + std::to_string(bytes)); }
    /// Takes only so many bytes of the next transfer; the one after it is whole again.
    void shortWrite(int bytes) { send("short-write " + std::to_string(bytes)); }
    /// Stalls the next transfer; the one after it is taken.
    void stall() { send("stall"); }

    /// Sends one command line to the printer's process (README.md lists them) and waits until it
    /// is done. Throws std::runtime_error when it is refused.
    void send(const std::string& command);

    /// All bulk transfers so far, one for each libusb_bulk_transfer, empty ones included.
    std::vector<EmulatedTransfer> transfers() const;

    /// All bytes that the printers took so far.
    std::string bytes() const;

    /// Everything that happened, as words: "0 open", "0 detach", "0 claim", "0 taken",
    /// "0 release".
    std::vector<std::string> conversation() const;

private:
    using File = Handle<std::FILE, std::fclose>;

    void start(const std::vector<std::string>& arguments);
    std::string readLine();
    std::vector<std::string> records() const;

    std::string folder_;
    pid_t process_ = -1;
    File commands_;
    File answers_;
};
