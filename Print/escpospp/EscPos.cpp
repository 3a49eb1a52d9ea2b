// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"

#include "base/Handle.h"
#include "Print/escpospp/StbImage.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <stb/stb_image.h>

namespace {
using File = Handle<std::FILE, std::fclose>;
using Pixels = Handle<stbi_uc, stbi_image_free>;

/// Red, green and blue, whatever the file holds.
constexpr int samplesPerPixel = 3;

/// Whether the picture in \a file has a size, and no more than maxPixels pixels. Reads its head
/// only, and leaves the file at its start.
bool isOfPrintableSize(std::FILE* file)
{
    int width = 0;
    int height = 0;
    int channels = 0;
    // The height of a BMP whose rows go from top to bottom is negative here.
    return stbi_info_from_file(file, &width, &height, &channels) != 0 && width > 0 && height != 0
        && width * std::abs(static_cast<long long>(height)) <= EscPos::maxPixels;
}

/// Whether a pixel is printed. The sum is in single precision, which decides for colours whose
/// exact luminance is 150.
bool isBlack(const stbi_uc* rgb)
{
    auto luminance = static_cast<float>(0.3 * rgb[0]);
    luminance = static_cast<float>(luminance + 0.59 * rgb[1]);
    luminance = static_cast<float>(luminance + 0.11 * rgb[2]);
    return luminance < 150.0F;
}
} // namespace

DotMatrix EscPos::loadImage(const std::string& path)
{
    // Opening a pipe would wait for somebody to write to it.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return {};
    }
    const File file{std::fopen(path.c_str(), "rb")};
    if (!file || !isOfPrintableSize(file.get()) || isUnreadablePnm(file.get())) {
        return {};
    }
    int width = 0;
    int height = 0;
    int channels = 0;
    const Pixels pixels{
        stbi_load_from_file(file.get(), &width, &height, &channels, samplesPerPixel)};
    if (!pixels) {
        return {};
    }
    const auto columns = static_cast<std::size_t>(width);
    DotMatrix dots(static_cast<std::size_t>(height), std::vector<bool>(columns));
    const stbi_uc* rgb = pixels.get();
    for (auto& row : dots) {
        for (std::size_t x = 0; x < columns; ++x, rgb += samplesPerPixel) {
            row[x] = isBlack(rgb);
        }
    }
    return dots;
}
