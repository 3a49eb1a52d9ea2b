// SPDX-License-Identifier: MIT
#include "central/SqlArray.h"

#include <array>
#include <charconv>

void SqlArray::add(const std::string& text)
{
    std::string value = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\') {
            value += '\\';
        }
        value += letter;
    }
    append(value + '"');
}

void SqlArray::addReal(double number)
{
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    append(std::string(text.data(), end));
}
