// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

/// Calls \a End, the C function that closes or frees what a handle refers to.
template <auto End> struct EndWith
{
    template <class T> void operator()(T* handle) const noexcept { End(handle); }
};

/// The one owner of a pointer that a C library hands out: \a End ends it, except when it is null.
template <class T, auto End> using Handle = std::unique_ptr<T, EndWith<End>>;
