// SPDX-License-Identifier: MIT
#pragma once

#include "base/Handle.h"

#include <iconv.h>

/// Keeps a conversion open, or iconv would load its modules again for each input.
using HeldConversion = Handle<void, iconv_close>;

/// The charsets are known to every system that Vendel runs on.
inline HeldConversion hold(const char* to, const char* from)
{
    return HeldConversion(iconv_open(to, from));
}
