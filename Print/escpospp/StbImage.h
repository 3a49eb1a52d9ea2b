// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

/// Whether \a file, read from its start, is a PNM picture that the decoder gets wrong without
/// noticing: one with fewer bytes than its size needs, or with 16 bits per sample. The file is at
/// its start again afterwards, and stays the caller's.
bool isUnreadablePnm(std::FILE* file);
