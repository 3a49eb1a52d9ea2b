// SPDX-License-Identifier: MIT
#pragma once

/// Converts the NUL-terminated \a text from charset \a from to charset \a to with iconv.
/// Returns a buffer ended by four zero bytes, which the caller releases with free(), or null with
/// errno set: EINVAL when a charset is unknown, ENOMEM when memory runs out, EILSEQ when \a to
/// lacks a character. An incomplete multi-byte sequence at the end is dropped.
char* convert(const char* from, const char* to, const char* text);
