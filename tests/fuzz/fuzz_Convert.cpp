// SPDX-License-Identifier: MIT
// Any text to the printer's code page and back: what comes back is what went in, but for a broken
// end. The other charsets make the result grow, or end it with a shift state.
#include "base/Handle.h"
#include "common/convert.h"
#include "tests/fuzz/HeldConversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

namespace {
const HeldConversion toPrinter = hold("CP858", "UTF-8");
const HeldConversion fromPrinter = hold("UTF-8", "CP858");
const HeldConversion toJapanese = hold("ISO-2022-JP", "UTF-8");
const HeldConversion toWide = hold("UTF-32", "UTF-8");

void check(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

using Buffer = Handle<char, std::free>;

/// The converted text; nothing when it cannot be converted.
std::optional<std::string> converted(const char* from, const char* to, const std::string& text)
{
    const Buffer buffer(convert(from, to, text.c_str()));
    if (buffer == nullptr) {
        return std::nullopt;
    }
    std::string result(buffer.get());
    const char* end = buffer.get() + result.size();
    check(std::all_of(end, end + 4, [](char zero) { return zero == '\0'; }));
    return result;
}

bool isAscii(const std::string& text)
{
    return std::all_of(
        text.begin(), text.end(), [](char letter) { return (letter & '\x80') == 0; });
}

/// Whether \a tail is empty or the beginning of one UTF-8 character, of up to six bytes as iconv
/// knows it.
bool isBrokenEnd(const std::string& tail)
{
    return tail.empty()
        || (tail.size() <= 5 && (tail[0] & '\xc0') == '\xc0'
            && std::all_of(tail.begin() + 1, tail.end(),
                [](char letter) { return (letter & '\xc0') == '\x80'; }));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    text.resize(std::strlen(text.c_str()));

    const auto printed = converted("UTF-8", "CP858", text);
    check(printed || !isAscii(text));
    if (printed) {
        const auto back = converted("CP858", "UTF-8", *printed);
        check(back && text.compare(0, back->size(), *back) == 0);
        check(isBrokenEnd(text.substr(back->size())));
    }

    const auto grown = converted("CP858", "UTF-8", text);
    check(grown && grown->size() >= text.size());
    check(converted("UTF-8", "CP858", *grown) == text);

    converted("UTF-8", "ISO-2022-JP", text);
    // Zero bytes stand in the midst of this one.
    const Buffer wide(convert("UTF-8", "UTF-32", text.c_str()));
    return 0;
}
