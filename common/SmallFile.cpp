// SPDX-License-Identifier: MIT
#include "common/SmallFile.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
class Descriptor
{
public:
    explicit Descriptor(int number)
        : number_(number)
    { }
    ~Descriptor()
    {
        if (isOpen()) {
            close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

private:
    int number_;
};

[[noreturn]] void refuse() { throw std::runtime_error(std::strerror(errno)); }

void checkKind(int descriptor)
{
    struct stat status
    { };
    if (fstat(descriptor, &status) != 0) {
        refuse();
    }
    if (!S_ISREG(status.st_mode)) {
        throw std::runtime_error("it is not a regular file");
    }
}

QByteArray readAll(int descriptor)
{
    std::array<char, 65'536> part{};
    QByteArray bytes;
    for (;;) {
        const ssize_t count = read(descriptor, part.data(), part.size());
        if (count < 0) {
            refuse();
        }
        if (count == 0) {
            return bytes;
        }
        bytes.append(part.data(), static_cast<int>(count));
        // The size in its status says nothing about a file that grows or that the kernel generates.
        if (bytes.size() > SmallFile::maximumSize) {
            throw std::runtime_error("it is larger than 4 MB");
        }
    }
}
} // namespace

std::optional<QByteArray> SmallFile::read(const QString& file)
{
    // Opening a FIFO would wait for a writer, and a terminal could become the till's own and end
    // it.
    const Descriptor descriptor(
        open(QFile::encodeName(file).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!descriptor.isOpen() && errno == ENOENT) {
        return std::nullopt;
    }
    try {
        if (!descriptor.isOpen()) {
            refuse();
        }
        checkKind(descriptor.number());
        return readAll(descriptor.number());
    } catch (const std::runtime_error& error) {
        qCritical("%s is not read: %s", qUtf8Printable(file), error.what());
        return std::nullopt;
    }
}
