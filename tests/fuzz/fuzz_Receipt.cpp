// SPDX-License-Identifier: MIT
// A receipt of any header, footer and ticket. The input's fields end with the byte FF: header,
// footer, sum, rate, then count, article, price and product of each line.
#include "app/Receipt.h"
#include "app/ReceiptBytes.h"
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/fuzz/HeldConversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {
const HeldConversion toPrinter = hold("CP858", "UTF-8");

constexpr char endOfField = '\xff';

void check(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = text.find(separator, begin);
        parts.push_back(text.substr(begin, end - begin));
        if (end == std::string::npos) {
            return parts;
        }
        begin = end + 1;
    }
}

/// Columns of the database end at a NUL, like the texts of the files.
std::string column(const std::string& bytes) { return bytes.substr(0, bytes.find('\0')); }

QString textOf(const std::string& bytes) { return QString::fromUtf8(bytes.c_str()); }

/// A frame's line as it is sent: no control character but tab and carriage return.
std::string withoutCommands(std::string line)
{
    std::replace_if(
        line.begin(), line.end(),
        [](unsigned char byte) {
            return (byte < 0x20 || byte == 0x7f) && byte != '\t' && byte != '\r';
        },
        ' ');
    return line;
}

/// The bytes of a header's or footer's lines, reckoned on the file's bytes; nothing when they are
/// not UTF-8 or not all in the printer's code page.
std::optional<std::string> expectedFrame(
    const std::string& file, const std::string& before, const std::string& after)
{
    const std::string text = column(file);
    if (QString::fromUtf8(text.c_str()).toStdString() != text) {
        return std::nullopt;
    }
    std::string bytes;
    for (const std::string& part : split(text, '\n')) {
        const std::string line = withoutCommands(part);
        if (line.find("titre:") != std::string::npos) {
            bytes += "\x1b!0\x1b"
                     "a\x01"
                + split(line, ':').at(1)
                + "\r\n\x1b!\x02\x1b"
                  "a0";
            continue;
        }
        bytes += before;
        if (line.size() <= 48) {
            const std::string side(line.size() < 47 ? (47 - line.size()) / 2 : 0, ' ');
            bytes.append(side).append(line).append(side);
        }
        bytes += "\r\n" + after;
    }
    const Handle<char, std::free> converted(convert("UTF-8", "CP858", bytes.c_str()));
    return converted == nullptr ? std::nullopt : std::optional<std::string>(converted.get());
}

/// The lines of a frame's file.
std::size_t linesOf(const std::string& file) { return split(column(file), '\n').size(); }
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> fields
        = split(std::string(reinterpret_cast<const char*>(data), size), endOfField);
    fields.resize(std::max<std::size_t>(fields.size(), 4));
    const std::string& header = fields[0];
    const std::string& footer = fields[1];

    Sale sale;
    sale.time = QDateTime(QDate(2024, 3, 5), QTime(9, 7, 3));
    sale.header = QString::fromUtf8(header.c_str());
    sale.footer = QString::fromUtf8(footer.c_str());
    sale.sum = textOf(fields[2]);
    sale.taxRates = {textOf(fields[3])};
    for (std::size_t i = 4; i + 4 <= fields.size(); i += 4) {
        sale.items.push_back({textOf(fields[i]), textOf(fields[i + 1]), textOf(fields[i + 2]),
            textOf(fields[i + 3])});
    }

    const Receipt receipt = composeReceipt(sale);
    check(receipt.size() == linesOf(header) + 2 + 4 + sale.items.size() + 6 + linesOf(footer));

    std::string bytes;
    try {
        bytes = receiptBytes(receipt);
    } catch (const std::runtime_error&) {
        return 0;
    }
    const auto top = expectedFrame(header,
        "\x1b"
        "E\x01",
        "\x1b"
        "E\x02");
    if (top) {
        check(bytes.compare(0, top->size(), *top) == 0);
        check(bytes.compare(top->size(), 11, "\r\n\r\nProduit") == 0);
    }
    const auto bottom = expectedFrame(footer, "", "");
    if (bottom) {
        check(bytes.size() > bottom->size());
        check(bytes.compare(bytes.size() - bottom->size(), bottom->size(), *bottom) == 0);
    }
    return 0;
}
