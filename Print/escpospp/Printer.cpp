// SPDX-License-Identifier: MIT
#include "Print/escpospp/Printer.h"

#include "Print/escpospp/Bitmap.h"
#include "Print/escpospp/Markdown.h"

#include <cstddef>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace {
constexpr int interfaceNumber = 0;
constexpr unsigned char bulkOut = 0x01;
/// In ms: a printer that waits for paper takes its bytes later.
constexpr unsigned noTimeLimit = 0;

/// Writes \a line to standard output, at once.
void report(std::string_view line) { std::cout << line << std::endl; }
} // namespace

Printer* Printer::instance = nullptr;

void Printer::initializePrinter(std::pair<int, int> ids)
{
    if (instance != nullptr && instance->writeFailed_) {
        std::unique_ptr<Printer>(std::exchange(instance, nullptr)).reset();
    }
    if (instance == nullptr) {
        instance = std::make_unique<Printer>(ids).release();
    }
}

Printer* Printer::getPrinter() { return instance; }

Printer::Printer(std::pair<int, int> ids)
{
    initializeContext();
    openFirst(ids);
    claim();
}

Printer::~Printer()
{
    const int result = libusb_release_interface(handle_.get(), interfaceNumber);
    report(result == 0 ? "Released Interface" : "Cannot Release Interface");
}

void Printer::raw(std::string bytes)
{
    int transferred = 0;
    int result = LIBUSB_ERROR_OVERFLOW;
    if (bytes.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        result = libusb_bulk_transfer(handle_.get(), bulkOut,
            reinterpret_cast<unsigned char*>(bytes.data()), static_cast<int>(bytes.size()),
            &transferred, noTimeLimit);
    }
    if (result != 0 || static_cast<std::size_t>(transferred) != bytes.size()) {
        report("Write Error");
        writeFailed_ = true;
    }
}

void Printer::cut() { raw(EscPos::CUT); }

void Printer::reset() { raw(EscPos::RESET); }

bool Printer::text(const std::string& s)
{
    Markdown markdown = renderMarkdown(s);
    if (!markdown.fault.empty()) {
        report(markdown.fault);
        return false;
    }
    raw(std::move(markdown.bytes));
    return true;
}

bool Printer::textCut(const std::string& s)
{
    const bool sent = text(s);
    if (sent) {
        cut();
    }
    return sent;
}

void Printer::image(const DotMatrix& dots)
{
    std::optional<std::string> bands = renderBitmap(dots, imageMode_);
    if (!bands) {
        report("Error: the bitmap is not squared");
        throw -1;
    }
    if (bands->empty()) {
        return;
    }
    raw(EscPos::NO_LINE);
    raw(std::move(*bands));
    raw(EscPos::RESET_LINE);
}

void Printer::initializeContext()
{
    libusb_context* context = nullptr;
    const int result = libusb_init(&context);
    if (result < 0) {
        report("Init Error " + std::to_string(result));
        throw -1;
    }
    context_.reset(context);
    libusb_set_option(context, LIBUSB_OPTION_LOG_LEVEL, LIBUSB_LOG_LEVEL_INFO);
}

void Printer::openFirst(std::pair<int, int> ids)
{
    handle_ = PrinterBus::openFirst(context_.get(), ids).device;
    if (!handle_) {
        report("Cannot open device");
        throw -1;
    }
}

void Printer::claim()
{
    if (libusb_kernel_driver_active(handle_.get(), interfaceNumber) == 1) {
        report("Kernel Driver Active");
        if (libusb_detach_kernel_driver(handle_.get(), interfaceNumber) == 0) {
            report("Kernel Driver Detached!");
        }
    }
    if (libusb_claim_interface(handle_.get(), interfaceNumber) < 0) {
        report("Cannot Claim Interface");
        throw -1;
    }
}
