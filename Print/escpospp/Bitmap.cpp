// SPDX-License-Identifier: MIT
#include "Print/escpospp/Bitmap.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr std::size_t MaxColumns = 0xFFFF;
constexpr std::size_t DotsPerByte = 8;

struct BandFormat
{
    std::size_t height;
    char mode;
};

char lowByte(std::size_t value)
{
    return static_cast<char>(value & 0xFFU);
}

// One place too far on purpose: the first dot of each eight falls out of its byte, and a byte's
// lowest bit stays 0. Receipts print so; a correction would change them.
unsigned weightOf(std::size_t k)
{
    return 1U << (DotsPerByte - k % DotsPerByte);
}

// Adds the rows' dots to the columns' bytes row by row: along a row the bits lie together.
void appendBand(std::string& out, const DotMatrix& dots, std::size_t top, const BandFormat& format)
{
    const std::size_t width = dots.front().size();
    const std::size_t bytesPerColumn = format.height / DotsPerByte;
    const std::size_t first = out.size();
    out.append(width * bytesPerColumn, '\0');
    const std::size_t bottom = std::min(dots.size(), top + format.height);
    for (std::size_t r = top; r < bottom; ++r) {
        const std::size_t k = r - top;
        const unsigned weight = weightOf(k);
        char* byte = out.data() + first + k / DotsPerByte;
        for (const bool black : dots[r]) {
            *byte = lowByte(static_cast<unsigned char>(*byte) | (black ? weight : 0U));
            byte += bytesPerColumn;
        }
    }
    out += '\n';
}

} // namespace

std::optional<std::string> renderBitmap(const DotMatrix& dots, int imageMode)
{
    if (dots.empty()) {
        return std::string();
    }
    const std::size_t width = dots.front().size();
    const bool ragged = std::any_of(
        dots.begin(), dots.end(), [width](const auto& row) { return row.size() != width; });
    if (ragged || width > MaxColumns) {
        return std::nullopt;
    }
    if (width == 0) {
        return std::string();
    }
    const BandFormat format = imageMode == 0 ? BandFormat{24, 33} : BandFormat{8, 1};
    std::string head = EscPos::BITMAP;
    head += format.mode;
    head += lowByte(width);
    head += lowByte(width >> 8U);
    const std::size_t bands = (dots.size() + format.height - 1) / format.height;
    std::string out;
    out.reserve(bands * (head.size() + width * format.height / DotsPerByte + 1));
    for (std::size_t top = 0; top < dots.size(); top += format.height) {
        out += head;
        appendBand(out, dots, top, format);
    }
    return out;
}
