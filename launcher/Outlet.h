// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <string_view>

/// A way out of the launcher that never makes it wait: a terminal that is stopped, or a pipe that
/// nobody empties, misses what does not fit.
class Outlet
{
public:
    /// The way through \a descriptor, which somebody else owns and whose mode stays as it is.
    explicit Outlet(int descriptor);

    void write(std::string_view bytes) const;

private:
    Descriptor reopened_;
    int descriptor_;
    bool isFile_ = false;
};
