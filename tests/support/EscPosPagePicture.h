// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/EscPosPage.h"

#include <QImage>

/// The paper as it comes out: 80 mm wide (640 dots of 1/203 inch), one pixel a dot, the printing
/// area in its middle, a dashed line at each cut. Needs a QGuiApplication.
QImage pictureOf(const EscPosPage& page);
