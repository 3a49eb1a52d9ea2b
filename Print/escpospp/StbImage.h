// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

/// Whether \a file, read from its start, is a PNM picture with fewer bytes than its size needs:
/// the decoder does not notice. Leaves the file at its start.
bool isPnmThatEndsEarly(std::FILE* file);
