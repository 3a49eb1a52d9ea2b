// SPDX-License-Identifier: MIT
// The one home of stb_image's code, with the formats that a shop logo comes in.
#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_PNG
#define STBI_ONLY_BMP
#define STBI_ONLY_JPEG
#define STBI_ONLY_GIF
#define STBI_ONLY_PNM
#include <stb/stb_image.h>
