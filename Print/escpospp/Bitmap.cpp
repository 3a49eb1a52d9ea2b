// SPDX-License-Identifier: MIT
#include "Print/escpospp/Bitmap.h"

#include <algorithm>
#include <cstddef>

namespace {
/// ESC * counts columns with 16 bits.
constexpr std::size_t maxColumns = 0xFFFF;
constexpr std::size_t dotsPerByte = 8;

/// The height of a band in dots, and the mode byte of ESC * for it.
struct BandFormat
{
    std::size_t height;
    char mode;
};
constexpr BandFormat doubleDensityOf24{24, 33};
constexpr BandFormat doubleDensityOf8{8, 1};

char lowByte(std::size_t value) { return static_cast<char>(value & 0xFFU); }

/// The bit of a band's row \a k in its byte. Off by one on purpose: the first dot of each eight is
/// lost, and a byte's lowest bit stays 0. A correction would change what shops print.
unsigned weightOf(std::size_t k) { return 1U << (dotsPerByte - k % dotsPerByte); }

/// Appends the columns of the band that starts at row \a top, and a line feed. It reads row by row,
/// because a row's dots are next to each other in memory.
void appendBand(std::string& out, const DotMatrix& dots, std::size_t top, const BandFormat& format)
{
    const std::size_t width = dots.front().size();
    const std::size_t bytesPerColumn = format.height / dotsPerByte;
    const std::size_t first = out.size();
    out.append(width * bytesPerColumn, '\0');
    const std::size_t bottom = std::min(dots.size(), top + format.height);
    for (std::size_t r = top; r < bottom; ++r) {
        const std::size_t k = r - top;
        const unsigned weight = weightOf(k);
        char* byte = out.data() + first + k / dotsPerByte;
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
    const bool isRagged = std::any_of(
        dots.begin(), dots.end(), [width](const auto& row) { return row.size() != width; });
    if (isRagged || width > maxColumns) {
        return std::nullopt;
    }
    if (width == 0) {
        return std::string();
    }
    const BandFormat format = imageMode == 0 ? doubleDensityOf24 : doubleDensityOf8;
    std::string head = EscPos::BITMAP;
    head += format.mode;
    head += lowByte(width);
    head += lowByte(width >> 8U);
    const std::size_t bands = (dots.size() + format.height - 1) / format.height;
    std::string out;
    out.reserve(bands * (head.size() + width * format.height / dotsPerByte + 1));
    for (std::size_t top = 0; top < dots.size(); top += format.height) {
        out += head;
        appendBand(out, dots, top, format);
    }
    return out;
}
