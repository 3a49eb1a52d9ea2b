// SPDX-License-Identifier: MIT
#pragma once

#include <iconv.h>

/// Keeps a conversion open, or iconv would load its modules anew for each input.
class HeldConversion
{
public:
    HeldConversion(const char* to, const char* from)
        : handle_(iconv_open(to, from))
    { }
    ~HeldConversion()
    {
        iconv_close(handle_);
    }
    HeldConversion(const HeldConversion&) = delete;
    HeldConversion& operator=(const HeldConversion&) = delete;
    HeldConversion(HeldConversion&&) = delete;
    HeldConversion& operator=(HeldConversion&&) = delete;

private:
    iconv_t handle_;
};
