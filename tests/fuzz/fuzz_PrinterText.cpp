// SPDX-License-Identifier: MIT
// What Printer::text sends for any text, against the same rules applied by cutting the text from
// its front, one marker at a time.
#include "Print/escpospp/Markdown.h"
#include "Print/escpospp/MDPair.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {
std::optional<MDPair> pairAt(const std::string& text, std::size_t i)
{
    for (const char* marker : {"**", "__"}) {
        if (text.compare(i, 2, marker) == 0) {
            return MDPair::getMatching(marker);
        }
    }
    return std::nullopt;
}

std::optional<std::string> cutFromTheFront(std::string text)
{
    std::string out;
    std::vector<MDPair> open;
    std::size_t i = 0;
    while (!text.empty() && i != text.size() - 1) {
        const auto pair = pairAt(text, i);
        if (!pair) {
            ++i;
            continue;
        }
        const bool isTop = !open.empty() && open.back() == *pair;
        const bool isBelow = open.size() == 2 && open.front() == *pair;
        if (isBelow) {
            return std::nullopt;
        }
        out += text.substr(0, i) + (isTop ? pair->off : pair->on);
        if (isTop) {
            open.pop_back();
        } else {
            open.push_back(*pair);
        }
        text.erase(0, i + 2);
        i = 0;
    }
    return open.empty() ? std::optional(out + text) : std::nullopt;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const Markdown markdown = renderMarkdown(text);
    const auto expected = cutFromTheFront(text);
    if (expected.has_value() != markdown.fault.empty()
        || markdown.bytes != expected.value_or(std::string())) {
        std::abort();
    }
    return 0;
}
