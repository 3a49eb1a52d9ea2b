// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"

/// The sales screen's notices, tips, labels of lists and formats.
inline constexpr Texts catalogueTexts{"FormVendelMessages"};
