// SPDX-License-Identifier: MIT
#include "app/ReceiptBytes.h"

#include "base/Handle.h"
#include "common/convert.h"
#include "Print/escpospp/EscPos.h"

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace {
constexpr std::string_view lineEnd = "\r\n";

/// What \a error of convert() means for a receipt.
const char* conversionFault(int error)
{
    switch (error) {
    case EILSEQ:
        return "a character of the receipt is not in code page 858";
    case ENOMEM:
        return "there is no memory left for the receipt";
    default:
        return "this system cannot write code page 858";
    }
}

void append(std::string& bytes, const ReceiptLine& line)
{
    using Style = ReceiptLine::Style;
    using namespace EscPos;
    switch (line.style) {
    case Style::Plain:
        bytes.append(line.text.toStdString()).append(lineEnd);
        break;
    case Style::Header:
        bytes.append(BOLD_ON).append(centredLine(line.text)).append(lineEnd);
        bytes.append(RECEIPT_BOLD_OFF);
        break;
    case Style::Footer:
        bytes.append(centredLine(line.text)).append(lineEnd);
        break;
    case Style::Title:
        bytes.append(DOUBLE_SIZE).append(CENTRE).append(line.text.toStdString()).append(lineEnd);
        bytes.append(NORMAL_TEXT).append(LEFT);
        break;
    case Style::GrandTotal:
        bytes.append(DOUBLE_WIDTH).append(BOLD_ON).append(line.text.toStdString()).append(lineEnd);
        bytes.append(RECEIPT_BOLD_OFF).append(NORMAL_TEXT);
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
    const Handle<char, std::free> converted(convert("UTF-8", "CP858", bytes.c_str()));
    if (converted == nullptr) {
        throw std::runtime_error(conversionFault(errno));
    }
    return converted.get();
}
