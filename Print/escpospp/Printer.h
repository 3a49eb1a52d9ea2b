// SPDX-License-Identifier: MIT
#pragma once

#include "Print/escpospp/EscPos.h"
#include "Print/escpospp/PrinterBus.h"

#include <string>
#include <utility>

/// The receipt printer on the USB bus: found by its ids, taken over from the system's driver, and
/// kept until the process ends. Diagnostics go to standard output. For one thread only.
class Printer
{
public:
    /// Makes `instance` for the USB vendor and product ids; does nothing when there is one, unless
    /// a write to it has failed: that one is given up first.
    /// Throws the int -1 when no such device can be opened and claimed; `instance` is null then.
    static void initializePrinter(std::pair<int, int> ids);

    /// The process's printer, or null. The caller does not own it.
    static Printer* getPrinter();

    /// Opens the first device with the vendor and product ids and claims its interface 0.
    /// Throws the int -1 on failure.
    explicit Printer(std::pair<int, int> ids);
    ~Printer();
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    /// Sends \a bytes in one transfer, also when there are none, and waits without a time limit
    /// until the printer has taken them. A failure is only printed ("Write Error").
    void raw(std::string bytes);

    /// Sends EscPos::CUT: feeds the paper and cuts it.
    void cut();

    /// Sends EscPos::RESET.
    void reset();

    /// Sends \a s with its markers (see MDPair) turned into commands.
    /// Returns false and sends nothing when the markers do not nest or one is left open.
    bool text(const std::string& s);

    /// Like text(), then cuts if the text was sent.
    bool textCut(const std::string& s);

    /// Prints a picture; one without dots sends nothing. Throws the int -1, and sends nothing, when
    /// rows differ in length or are wider than 65,535 dots.
    void image(const DotMatrix& dots);

    /// The process's printer; null until initializePrinter succeeds. It is not destroyed at the
    /// end.
    static Printer* instance;

private:
    void initializeContext();
    void openFirst(std::pair<int, int> ids);
    void claim();

    int imageMode_ = 0;
    PrinterBus::Context context_;
    PrinterBus::Device handle_;
    bool writeFailed_ = false;
};
