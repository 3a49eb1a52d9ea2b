// SPDX-License-Identifier: MIT
// Any file as a logo, from the file to the printer's bytes. JPEG is left out for what is known of
// the distribution's decoder: see Print/escpospp/StbImage.cpp.
#include "Print/escpospp/Bitmap.h"
#include "Print/escpospp/EscPos.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <stb/stb_image.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {
/// Larger pictures take the same paths, only longer.
constexpr long long maxPixels = 1LL << 12;

bool isWorthwhile(const std::uint8_t* data, std::size_t size)
{
    int width = 0;
    int height = 0;
    int channels = 0;
    const bool known
        = stbi_info_from_memory(data, static_cast<int>(size), &width, &height, &channels) != 0;
    return !known || width * std::abs(static_cast<long long>(height)) <= maxPixels;
}

void check(const DotMatrix& dots, int imageMode)
{
    const auto bands = renderBitmap(dots, imageMode);
    const std::size_t width = dots.empty() ? 0 : dots.front().size();
    const std::size_t bandHeight = imageMode == 0 ? 24 : 8;
    const std::size_t bandCount = (dots.size() + bandHeight - 1) / bandHeight;
    const std::size_t expected = bandCount * (5 + width * bandHeight / 8 + 1);
    if (bands.has_value() ? bands->size() != expected : width <= 65'535) {
        std::abort();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const bool isJpeg = size > 0 && data[0] == 0xFF;
    if (isJpeg || !isWorthwhile(data, size)) {
        return 0;
    }
    static const int file = memfd_create("logo", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    const DotMatrix dots = EscPos::loadImage(path);
    check(dots, 0);
    check(dots, 1);
    return 0;
}
