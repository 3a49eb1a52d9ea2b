// SPDX-License-Identifier: MIT
// The one home of stb_image's code, with the formats that a shop logo comes in.
//
// Known of the distribution's version 2.27, and not ours to correct: a damaged JPEG whose Huffman
// tables claim more than 256 codes is written past those tables, into the decoder's other fields;
// a PNM's overlong number wraps around. A till loads its own shop's logo, nobody else's.
#include "Print/escpospp/StbImage.h"

#include "Print/escpospp/EscPos.h"

#include <cstddef>
#include <cstdlib>

namespace {

// In the hungriest of files, a PNG, a pixel has four samples of 16 bits and may be a row by itself,
// with one byte ahead of it.
constexpr std::size_t MaxBytesPerPixel = 9;

// The decoder believes what a damaged file says of its own length, and asks for gigabytes. Its
// buffers grow by doubling: no picture of a printable size needs more than this.
constexpr std::size_t MaxBuffer = 2 * MaxBytesPerPixel * EscPos::MaxPixels;

/// Like realloc, but without memory for more than MaxBuffer bytes; \a memory stays valid then.
void* resized(void* memory, std::size_t size)
{
    return size <= MaxBuffer ? std::realloc(memory, size) : nullptr;
}

} // namespace

// A damaged file leaves parts of a picture unwritten; they must not show what memory held before.
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
