// SPDX-License-Identifier: MIT
#include "launcher/KeptJournals.h"

#include "launcher/SafeFile.h"

#include <array>
#include <cstdint>
#include <sstream>

namespace KeptJournals {
namespace {
constexpr const char* registerName = ".journaux";

/// The size and the 64-bit FNV-1a hash of \a file, from draft-eastlake-fnv.
std::string contentOf(int file)
{
    constexpr std::uint64_t offsetBasis = 14695981039346656037U;
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t hash = offsetBasis;
    off_t size = 0;
    std::array<unsigned char, 65536> block{};
    ssize_t got = 0;
    while ((got = pread(file, block.data(), block.size(), size)) > 0) {
        for (ssize_t at = 0; at < got; ++at) {
            hash = (hash ^ block[static_cast<std::size_t>(at)]) * prime;
        }
        size += got;
    }
    if (got < 0) {
        SafeFile::fail("journal");
    }
    std::ostringstream content;
    content << size << ' ' << std::hex << hash;
    return content.str();
}

std::string lines(int shelf)
{
    constexpr std::size_t largest = 1048576;
    return SafeFile::read(shelf, registerName, largest).value_or("");
}
} // namespace

void remember(int shelf, const std::string& name, int content)
{
    const std::string known = lines(shelf) + name + ' ' + contentOf(content) + '\n';
    SafeFile::write(shelf, registerName, known, SafeFile::Existing::Replace);
}

bool isKnown(int shelf, const std::string& name, int content)
{
    const std::string line = '\n' + name + ' ' + contentOf(content) + '\n';
    return ('\n' + lines(shelf)).find(line) != std::string::npos;
}
} // namespace KeptJournals
