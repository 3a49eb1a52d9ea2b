// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

struct libusb_context;
struct libusb_device_handle;

/// The receipt printer on the USB bus: found by its ids, taken from the system's driver, and held
/// until the process ends. Diagnostics go to standard output. To be used from one thread.
class Printer
{
public:
    /// Makes `instance` for the USB vendor and product ids; does nothing when there is one, unless
    /// a write to it has failed: that one is given up first.
    /// Throws the int -1 when no such device can be opened and claimed; `instance` is null then.
    static void initializePrinter(std::pair<int, int> ids);

    /// The process's printer, or null.
    static Printer* getPrinter();

    /// Opens the first device with the vendor and product ids and claims its interface 0.
    /// Throws the int -1 on failure.
    explicit Printer(std::pair<int, int> ids);
    ~Printer();
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    /// Sends \a bytes in one transfer, an empty one included, and waits until the printer has
    /// taken them. A failure is only printed ("Write Error").
    void raw(std::string bytes);

    /// Feeds and cuts.
    void cut();

    /// Sends EscPos::RESET.
    void reset();

    /// Sends \a s with its markers (see MDPair) turned into commands.
    /// False, and nothing sent, when they don't nest or one is left open.
    bool text(const std::string& s);

    /// The same, then cuts if the text was sent.
    bool textCut(const std::string& s);

    /// Prints a picture: rows from top to bottom, dots from left to right, true is black.
    /// One without dots sends nothing. Throws the int -1, and sends nothing, when rows differ in
    /// length or are wider than 65,535 dots.
    void image(const std::vector<std::vector<bool>>& dots);

    /// The process's printer; null until initializePrinter succeeds. It is never destroyed.
    static Printer* instance;

private:
    struct EndContext
    {
        void operator()(libusb_context* context) const noexcept;
    };
    struct CloseDevice
    {
        void operator()(libusb_device_handle* handle) const noexcept;
    };

    void initializeContext();
    void openFirst(std::pair<int, int> ids);
    void claim();

    int imageMode_ = 0;
    std::unique_ptr<libusb_context, EndContext> context_;
    std::unique_ptr<libusb_device_handle, CloseDevice> handle_;
    bool writeFailed_ = false;
};
