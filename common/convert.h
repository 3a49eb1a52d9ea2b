// SPDX-License-Identifier: MIT
#pragma once

/// Converts the NUL-terminated \a text from charset \a from to charset \a to with iconv.
/// Returns a buffer ended by four zero bytes, which the caller releases with free(), or null when a
/// charset is unknown, memory runs out, or \a to lacks a character; an incomplete multi-byte
/// sequence at the end is dropped.
char* convert(const char* from, const char* to, const char* text);
