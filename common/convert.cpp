// SPDX-License-Identifier: MIT
#include "common/convert.h"

#include "base/Handle.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <iconv.h>

namespace {
constexpr std::size_t terminatorSize = 4;
constexpr auto iconvFailed = static_cast<std::size_t>(-1);

using Buffer = Handle<char, std::free>;
using Conversion = Handle<void, iconv_close>;

/// Null, with errno set, when a charset is unknown; iconv_open itself returns -1 then.
Conversion openConversion(const char* to, const char* from)
{
    const iconv_t handle = iconv_open(to, from);
    return Conversion(reinterpret_cast<std::intptr_t>(handle) == -1 ? nullptr : handle);
}

bool resize(Buffer& buffer, std::size_t size)
{
    auto* larger = static_cast<char*>(std::realloc(buffer.get(), size + terminatorSize));
    if (larger == nullptr) {
        return false;
    }
    static_cast<void>(buffer.release());
    buffer.reset(larger);
    return true;
}

/// convert() without its promise about errno: \a error gets the reason of a failure.
char* converted(const char* from, const char* to, const char* text, int& error)
{
    error = ENOMEM;
    const Conversion conversion = openConversion(to, from);
    if (conversion == nullptr) {
        error = errno;
        return nullptr;
    }
    std::size_t inputLeft = std::strlen(text);
    std::size_t size = inputLeft;
    Buffer buffer;
    if (!resize(buffer, size)) {
        return nullptr;
    }
    // iconv reads through its input pointer only, whatever its signature says.
    char* input = const_cast<char*>(text);
    std::size_t written = 0;
    bool isRead = false;
    for (;;) {
        char* output = buffer.get() + written;
        std::size_t room = size - written;
        errno = 0;
        // Without an input, iconv writes what ends the text in a set with shift states.
        const bool done
            = iconv(conversion.get(), isRead ? nullptr : &input, &inputLeft, &output, &room)
            != iconvFailed;
        const int reason = errno;
        written = size - room;
        if (done && isRead) {
            std::memset(output, 0, terminatorSize);
            return buffer.release();
        }
        if (done || (reason == EINVAL && !isRead)) {
            isRead = true;
        } else if (reason != E2BIG) {
            error = reason;
            return nullptr;
        } else {
            size += 8 + 2 * inputLeft;
            if (!resize(buffer, size)) {
                return nullptr;
            }
        }
    }
}
} // namespace

char* convert(const char* from, const char* to, const char* text)
{
    int error = 0;
    char* result = converted(from, to, text, error);
    // Closing the conversion may have changed it.
    if (result == nullptr) {
        errno = error;
    }
    return result;
}
