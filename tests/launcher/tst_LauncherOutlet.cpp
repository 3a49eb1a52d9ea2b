// SPDX-License-Identifier: MIT
#include "launcher/Outlet.h"
#include "tests/support/TestProgram.h"

#include <QTemporaryFile>
#include <QTest>

#include <array>
#include <string>

#include <fcntl.h>
#include <sys/socket.h>

namespace {
/// More than any pipe or socket holds.
const std::string much(4000000, 'x');

/// The bytes that wait in \a descriptor.
std::size_t sizeIn(int descriptor)
{
    std::size_t size = 0;
    std::array<char, 65536> block{};
    ssize_t got = 0;
    while ((got = read(descriptor, block.data(), block.size())) > 0) {
        size += static_cast<std::size_t>(got);
    }
    return size;
}

struct Ends
{
    Descriptor out;
    Descriptor in;
};

Ends makePipe()
{
    std::array<int, 2> ends{};
    const bool isMade = pipe2(ends.data(), O_CLOEXEC) == 0;
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return isMade ? Ends{Descriptor(ends[0]), Descriptor(ends[1])} : Ends{};
}

Ends makeSockets()
{
    std::array<int, 2> ends{};
    const bool isMade = socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0;
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return isMade ? Ends{Descriptor(ends[0]), Descriptor(ends[1])} : Ends{};
}
} // namespace

class TestLauncherOutlet : public QObject
{
    Q_OBJECT

private slots:
    void aFileGetsEverything()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        Outlet(file.handle()).write(much);
        QCOMPARE(file.size(), qint64(4000000));
    }

    void aPipeGetsWhatIsSaid()
    {
        const Ends pipe = makePipe();
        Outlet(pipe.in.get()).write("bonjour\n");
        QCOMPARE(sizeIn(pipe.out.get()), std::size_t(8));
    }

    void aPipeThatNobodyEmptiesMissesTheRest()
    {
        const Ends pipe = makePipe();
        Outlet(pipe.in.get()).write(much);
        const std::size_t size = sizeIn(pipe.out.get());
        QVERIFY(size >= 4096 && size < much.size());
        QCOMPARE(fcntl(pipe.in.get(), F_GETFL) & O_NONBLOCK, 0);
    }

    void aSocketGetsWhatIsSaid()
    {
        const Ends sockets = makeSockets();
        Outlet(sockets.in.get()).write("bonjour\n");
        QCOMPARE(sizeIn(sockets.out.get()), std::size_t(8));
    }

    void aSocketThatNobodyEmptiesMissesTheRest()
    {
        const Ends sockets = makeSockets();
        Outlet(sockets.in.get()).write(much);
        const std::size_t size = sizeIn(sockets.out.get());
        QVERIFY(size >= 4096 && size < much.size());
    }

    void nothingIsNoPlace() { Outlet(-1).write("bonjour\n"); }
};

VENDEL_TEST(TestLauncherOutlet)
#include "tst_LauncherOutlet.moc"
