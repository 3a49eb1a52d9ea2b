// SPDX-License-Identifier: MIT
#include "common/convert.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <iconv.h>

namespace {
constexpr std::size_t terminatorSize = 4;
constexpr auto iconvFailed = static_cast<std::size_t>(-1);

class Descriptor
{
public:
    Descriptor(const char* to, const char* from)
        : handle_(iconv_open(to, from))
    { }
    ~Descriptor()
    {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    bool isOpen() const
    {
        // iconv_open says failure with -1, not with null.
        return reinterpret_cast<std::intptr_t>(handle_) != -1;
    }
    iconv_t get() const
    {
        return handle_;
    }

private:
    iconv_t handle_;
};

struct Release
{
    void operator()(char* buffer) const
    {
        std::free(buffer);
    }
};
using Buffer = std::unique_ptr<char, Release>;

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
} // namespace

char* convert(const char* from, const char* to, const char* text)
{
    const Descriptor descriptor(to, from);
    if (!descriptor.isOpen()) {
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
            = iconv(descriptor.get(), isRead ? nullptr : &input, &inputLeft, &output, &room)
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
            return nullptr;
        } else {
            size += 8 + 2 * inputLeft;
            if (!resize(buffer, size)) {
                return nullptr;
            }
        }
    }
}
