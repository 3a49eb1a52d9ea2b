// SPDX-License-Identifier: MIT
// The only file that compiles stb_image, with the formats that a shop's logo may have.
//
// Known of the distribution's version 2.27, and not ours to correct: a damaged JPEG whose Huffman
// tables claim more than 256 codes is written past those tables, into the decoder's other fields;
// a number in a PNM that is too long wraps around. A till loads only its own shop's logo.
#include "Print/escpospp/StbImage.h"

#include "Print/escpospp/EscPos.h"

#include <cstddef>
#include <cstdlib>

namespace {
/// Worst case, PNG: four samples of 16 bits, and one pixel per row plus its filter byte.
constexpr std::size_t maxBytesPerPixel = 9;

/// In bytes. The decoder trusts the lengths in a damaged file and asks for gigabytes; its buffers
/// grow by doubling, so no picture of a printable size needs more than this.
constexpr std::size_t maxBuffer = 2 * maxBytesPerPixel * EscPos::maxPixels;

/// Like realloc, but without memory for more than maxBuffer bytes; \a memory stays valid then.
void* resized(void* memory, std::size_t size)
{
    return size <= maxBuffer ? std::realloc(memory, size) : nullptr;
}
} // namespace

// The decoder does not write the parts that a damaged file lacks; they must not show old memory.
#define STBI_MALLOC(size) std::calloc(1, size)
#define STBI_REALLOC(memory, size) resized(memory, size)
#define STBI_FREE(memory) std::free(memory)
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_PNG
#define STBI_ONLY_BMP
#define STBI_ONLY_JPEG
#define STBI_ONLY_GIF
#define STBI_ONLY_PNM
#include <stb/stb_image.h>

bool isUnreadablePnm(std::FILE* file)
{
    stbi__context context;
    stbi__start_file(&context, file);
    int width = 0;
    int height = 0;
    int channels = 0;
    const int bits
        = stbi__pnm_test(&context) != 0 ? stbi__pnm_info(&context, &width, &height, &channels) : 0;
    const long ahead = context.img_buffer_end - context.img_buffer;
    const long dataStart = std::ftell(file) - ahead;
    std::fseek(file, 0, SEEK_END);
    const long available = std::ftell(file) - dataStart;
    std::rewind(file);
    const bool endsEarly = available < 1L * width * height * channels;
    return bits == 16 || (bits == 8 && endsEarly);
}
