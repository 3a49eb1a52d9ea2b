// SPDX-License-Identifier: MIT
#include "backoffice/OutputFile.h"

#include "base/Descriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(OutputFile)
};

[[noreturn]] void fail(const QString& path, const QString& reason)
{
    throw OutputError(path == QLatin1String("-")
            ? Text::tr("La sortie standard ne peut pas être écrite (%1).").arg(reason)
            : Text::tr("Le fichier « %1 » ne peut pas être écrit (%2).").arg(path, reason));
}

[[noreturn]] void failWith(const QString& path, int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        fail(path, Text::tr("il n'y a plus de place"));
    case EPIPE:
        fail(path, Text::tr("personne ne la lit plus"));
    case EACCES:
    case EPERM:
    case EROFS:
        fail(path, Text::tr("ce n'est pas permis"));
    default:
        fail(path, QString::fromStdString(std::generic_category().message(error)));
    }
}

/// Writes to what is already open as \a descriptor.
void writeTo(int descriptor, const QString& path, const QByteArray& bytes)
{
    const char* next = bytes.constData();
    const char* const end = next + bytes.size();
    while (next < end) {
        const ssize_t written = ::write(descriptor, next, static_cast<std::size_t>(end - next));
        if (written >= 0) {
            next += written;
        } else if (errno == EAGAIN) {
            // Whoever has opened the pipe does not want to wait; here it is waited for.
            pollfd pipe{descriptor, POLLOUT, 0};
            poll(&pipe, 1, -1);
        } else if (errno != EINTR) {
            failWith(path, errno);
        }
    }
}

/// A file that is no regular one keeps its place: a device cannot be replaced by a file.
void writeToDevice(const QString& path, const QByteArray& bytes)
{
    const Descriptor device(open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC));
    if (!device) {
        failWith(path, errno);
    }
    writeTo(device.get(), path, bytes);
}

void replace(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    const auto failLast
        = [&] { errno != 0 ? failWith(path, errno) : fail(path, file.errorString()); };
    errno = 0;
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        failLast();
    }
    if (!file.commit()) {
        failLast();
    }
}
} // namespace

void OutputFile::write(const QString& path, const QByteArray& bytes)
{
    if (path == QLatin1String("-")) {
        writeTo(STDOUT_FILENO, path, bytes);
        return;
    }
    const QFileInfo file(path);
    if (file.isDir()) {
        fail(path, Text::tr("c'est un dossier"));
    }
    if (!file.absoluteDir().exists()) {
        fail(path, Text::tr("son dossier n'existe pas"));
    }
    if (file.exists() && !file.isFile()) {
        writeToDevice(path, bytes);
    } else {
        replace(path, bytes);
    }
}
