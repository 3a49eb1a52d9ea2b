// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The words of the launcher's boxes that are not given to them.
namespace Wording {
QString title();
QString ok();
QString cancel(bool isEnglish);
/// The headings of a copy's name and size.
QStringList columns(bool isEnglish);

/// \a text with places where even a long path can be broken, and without those where French
/// punctuation would begin a line.
QString breakable(const QString& text);
} // namespace Wording
