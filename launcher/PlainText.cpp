// SPDX-License-Identifier: MIT
#include "launcher/PlainText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {
constexpr char32_t invalid = 0;

struct Character
{
    char32_t code = invalid;
    std::size_t bytes = 1;
};

/// The first character of \a text, of one byte and invalid when UTF-8 does not know it.
Character first(std::string_view text)
{
    struct Lead
    {
        unsigned mask;
        unsigned value;
        char32_t smallest;
    };
    constexpr std::array<Lead, 4> leads{
        {{0x80, 0x00, 0}, {0xe0, 0xc0, 0x80}, {0xf0, 0xe0, 0x800}, {0xf8, 0xf0, 0x10000}}};
    constexpr unsigned payload = 0x3f;
    constexpr unsigned payloadBits = 6;
    const unsigned start = static_cast<unsigned char>(text[0]);
    for (std::size_t more = 0; more < leads.size(); ++more) {
        const Lead& lead = leads[more];
        if ((start & lead.mask) != lead.value) {
            continue;
        }
        char32_t code = start & ~lead.mask;
        for (std::size_t at = 1; at <= more; ++at) {
            const unsigned next = at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
            if ((next & ~payload) != 0x80) {
                return {};
            }
            code = (code << payloadBits) | (next & payload);
        }
        return code < lead.smallest ? Character() : Character{code, more + 1};
    }
    return {};
}

/// Whether \a code is a visible character, or a blank of a line.
bool isVisible(char32_t code)
{
    // Control characters, marks of direction and of lines, surrogates, what is no character.
    constexpr std::array<std::pair<char32_t, char32_t>, 10> hidden{{{0x00, 0x1f}, {0x7f, 0x9f},
        {0xad, 0xad}, {0x061c, 0x061c}, {0x200b, 0x200f}, {0x2028, 0x202e}, {0x2060, 0x206f},
        {0xd800, 0xdfff}, {0xfeff, 0xfeff}, {0xfff0, 0xfffb}}};
    constexpr char32_t tags = 0xe0000;
    return code < tags && std::none_of(hidden.begin(), hidden.end(), [&](const auto& range) {
        return code >= range.first && code <= range.second;
    });
}
} // namespace

std::string plainText(std::string_view text, std::size_t longest)
{
    std::string plain;
    for (std::size_t count = 0; !text.empty(); ++count) {
        if (count == longest) {
            return plain + "…";
        }
        const Character character = first(text);
        plain += isVisible(character.code) ? text.substr(0, character.bytes) : "?";
        text.remove_prefix(character.bytes);
    }
    return plain;
}
