// SPDX-License-Identifier: MIT
#include "launcher/Outlet.h"

#include <algorithm>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

Outlet::Outlet(int descriptor)
    : descriptor_(descriptor)
{
    struct stat found
    { };
    if (fstat(descriptor, &found) != 0 || S_ISREG(found.st_mode)) {
        isFile_ = true;
        return;
    }
    // Under a mode of its own, because the descriptor's is shared with whoever started the
    // launcher.
    const std::string name = "/proc/self/fd/" + std::to_string(descriptor);
    reopened_ = Descriptor(open(name.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (reopened_) {
        descriptor_ = reopened_.get();
    }
}

void Outlet::write(std::string_view bytes) const
{
    // A socket, or the terminal of another user, cannot be opened again: there, as much is written
    // at once as has room whenever there is any.
    constexpr std::size_t piece = 512;
    while (!bytes.empty()) {
        pollfd ready{descriptor_, POLLOUT, 0};
        if (!isFile_ && (poll(&ready, 1, 0) <= 0 || (ready.revents & POLLOUT) == 0)) {
            return;
        }
        const std::size_t size
            = isFile_ || reopened_ ? bytes.size() : std::min(bytes.size(), piece);
        const ssize_t written = ::write(descriptor_, bytes.data(), size);
        if (written <= 0) {
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}
