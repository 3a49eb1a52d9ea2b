// SPDX-License-Identifier: MIT
#pragma once

#include "app/Receipt.h"

class QTextEdit;

/// Writes \a receipt into \a edit as the paper would show it, in columns of a fixed-pitch typeface
/// of the edit's point size.
void showReceipt(const Receipt& receipt, QTextEdit& edit);
