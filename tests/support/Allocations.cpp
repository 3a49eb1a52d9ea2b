// SPDX-License-Identifier: MIT
#include "tests/support/Allocations.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <utility>

namespace {
std::atomic<std::size_t> refusedSize = 0;
std::atomic<std::size_t> largestRealloc = 0;
} // namespace

void Allocations::refuseFrom(std::size_t bytes) { refusedSize = bytes; }

std::size_t Allocations::takeLargestRealloc() { return largestRealloc.exchange(0); }

#ifdef __SANITIZE_ADDRESS__
const bool Allocations::areSeen = false;
#else
const bool Allocations::areSeen = true;

namespace {
bool isRefused(std::size_t size)
{
    std::size_t limit = refusedSize;
    return limit != 0 && size >= limit && refusedSize.compare_exchange_strong(limit, 0);
}
} // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

/// The C library's, but for the one request that is to be refused.
void* malloc(std::size_t size) noexcept { return isRefused(size) ? nullptr : __libc_malloc(size); }

/// The same.
void* realloc(void* block, std::size_t size) noexcept
{
    largestRealloc = std::max(largestRealloc.load(), size);
    return isRefused(size) ? nullptr : __libc_realloc(block, size);
}
}
#endif
