// SPDX-License-Identifier: MIT
#include "tests/central/Wire.h"

#include <QDir>

#include <array>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {
constexpr const char* socketName = "/.s.PGSQL.5432";

sockaddr_un addressOf(const std::string& folder)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (folder + socketName).c_str(), sizeof address.sun_path - 1);
    return address;
}

bool copy(int from, int to)
{
    std::array<char, 65536> bytes{};
    const ssize_t size = read(from, bytes.data(), bytes.size());
    return size > 0 && send(to, bytes.data(), static_cast<std::size_t>(size), MSG_NOSIGNAL) == size;
}

/// Reads the answer to a request to its end and keeps it to itself.
void swallow(int server)
{
    // "Ready for query" ends each answer: its letter, its length, the transaction's state.
    constexpr std::size_t readySize = 6;
    std::array<char, 65536> bytes{};
    for (;;) {
        const ssize_t size = read(server, bytes.data(), bytes.size());
        if (size <= 0
            || (size >= static_cast<ssize_t>(readySize)
                && bytes.at(static_cast<std::size_t>(size) - readySize) == 'Z')) {
            return;
        }
    }
}
} // namespace

Wire::Wire(std::string server, std::function<Fate(int)> fate, std::function<void()> cut)
    : server_(std::move(server))
    , fate_(std::move(fate))
    , cut_(std::move(cut))
    , folder_(QDir::tempPath() + "/vendel-w-XXXXXX")
    , listener_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const sockaddr_un address = addressOf(folder());
    constexpr int waiting = 8;
    std::array<int, 2> ends{};
    if (bind(listener_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || listen(listener_.get(), waiting) != 0 || pipe(ends.data()) != 0) {
        qFatal("no wire");
    }
    end_ = Descriptor(ends[1]);
    endHere_ = Descriptor(ends[0]);
    thread_ = std::thread([this] { serve(); });
}

Wire::~Wire()
{
    end_.reset();
    thread_.join();
}

void Wire::serve()
{
    for (;;) {
        std::array<pollfd, 2> ready{{{listener_.get(), POLLIN, 0}, {endHere_.get(), POLLIN, 0}}};
        poll(ready.data(), ready.size(), -1);
        if (ready[1].revents != 0) {
            return;
        }
        carry(Descriptor(accept(listener_.get(), nullptr, nullptr)));
    }
}

void Wire::carry(const Descriptor& client)
{
    const Descriptor server(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const sockaddr_un address = addressOf(server_);
    if (connect(server.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        return;
    }
    for (;;) {
        std::array<pollfd, 3> ready{
            {{client.get(), POLLIN, 0}, {server.get(), POLLIN, 0}, {endHere_.get(), POLLIN, 0}}};
        poll(ready.data(), ready.size(), -1);
        if (ready[2].revents != 0 || (ready[1].revents != 0 && !copy(server.get(), client.get()))) {
            return;
        }
        if (ready[0].revents == 0) {
            continue;
        }
        // Nobody waits for what answers a goodbye.
        char first = 'X';
        if (recv(client.get(), &first, 1, MSG_PEEK) != 1 || first == 'X') {
            return;
        }
        const Fate fate = fate_(++requests_);
        if (fate != Fate::Lost && !copy(client.get(), server.get())) {
            return;
        }
        if (fate == Fate::Unanswered) {
            swallow(server.get());
        }
        if (fate != Fate::Pass) {
            isCut_ = true;
            if (cut_) {
                cut_();
            }
            return;
        }
    }
}
