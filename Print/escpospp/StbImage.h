// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

/// Whether \a file, read from its start, is a PNM picture that the decoder gets wrong without
/// noticing: one with fewer bytes than its size needs, or with 16 bits a sample. Leaves the file at
/// its start.
bool isUnreadablePnm(std::FILE* file);
