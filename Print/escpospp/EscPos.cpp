// SPDX-License-Identifier: MIT
#include "Print/escpospp/EscPos.h"

#include "Print/escpospp/StbImage.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

#include <stb/stb_image.h>

namespace {

struct CloseFile
{
    void operator()(std::FILE* file) const noexcept
    {
        std::fclose(file);
    }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

struct FreePixels
{
    void operator()(stbi_uc* pixels) const noexcept
    {
        stbi_image_free(pixels);
    }
};
using Pixels = std::unique_ptr<stbi_uc, FreePixels>;

constexpr int Channels = 3;

bool isOfPrintableSize(std::FILE* file)
{
    int width = 0;
    int height = 0;
    int channels = 0;
    // The height of a BMP stored from its top down is negative here.
    return stbi_info_from_file(file, &width, &height, &channels) != 0 && width > 0 && height != 0
        && width * std::abs(static_cast<long long>(height)) <= EscPos::MaxPixels;
}

// The sum is kept in single precision: on colours whose exact luminance is 150 this decides.
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
    const Pixels pixels{stbi_load_from_file(file.get(), &width, &height, &channels, Channels)};
    if (!pixels) {
        return {};
    }
    const auto columns = static_cast<std::size_t>(width);
    DotMatrix dots(static_cast<std::size_t>(height), std::vector<bool>(columns));
    const stbi_uc* rgb = pixels.get();
    for (auto& row : dots) {
        for (std::size_t x = 0; x < columns; ++x, rgb += Channels) {
            row[x] = isBlack(rgb);
        }
    }
    return dots;
}
