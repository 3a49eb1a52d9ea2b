// SPDX-License-Identifier: MIT
#include "app/ReceiptBytes.h"

#include "common/convert.h"

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace {
using namespace std::string_view_literals;

// Commands of the printer's reference (ESC E, ESC !, ESC a). The printer reads bit 0 alone of the
// emphasis and the digit "0" like the value 0.
constexpr auto emphasisOn = "\x1b\x45\x01"sv;
constexpr auto emphasisOff = "\x1b\x45\x02"sv;
constexpr auto bigText = "\x1b\x21\x30"sv;
constexpr auto wideText = "\x1b\x21\x20"sv;
constexpr auto normalText = "\x1b\x21\x02"sv;
constexpr auto centre = "\x1b\x61\x01"sv;
constexpr auto left = "\x1b\x61\x30"sv;
constexpr auto lineEnd = "\r\n"sv;

struct Release
{
    void operator()(char* buffer) const
    {
        std::free(buffer);
    }
};

void append(std::string& bytes, const ReceiptLine& line)
{
    using Style = ReceiptLine::Style;
    switch (line.style) {
    case Style::Plain:
        bytes.append(line.text.toStdString()).append(lineEnd);
        break;
    case Style::Header:
        bytes.append(emphasisOn).append(centredLine(line.text)).append(lineEnd).append(emphasisOff);
        break;
    case Style::Footer:
        bytes.append(centredLine(line.text)).append(lineEnd);
        break;
    case Style::Title:
        bytes.append(bigText).append(centre).append(line.text.toStdString()).append(lineEnd);
        bytes.append(normalText).append(left);
        break;
    case Style::GrandTotal:
        bytes.append(wideText).append(emphasisOn).append(line.text.toStdString()).append(lineEnd);
        bytes.append(emphasisOff).append(normalText);
        break;
    }
}
} // namespace

std::string receiptBytes(const Receipt& receipt)
{
    std::string bytes;
    for (const ReceiptLine& line : receipt) {
        append(bytes, line);
    }
    const std::unique_ptr<char, Release> converted(convert("UTF-8", "CP858", bytes.c_str()));
    if (converted == nullptr) {
        throw std::runtime_error("a character of the receipt is not in code page 858");
    }
    return converted.get();
}
