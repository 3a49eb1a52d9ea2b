// SPDX-License-Identifier: MIT
// Any bytes as a menu and as recipes: they are refused with a sentence, or each line has its cells
// and a number that is read back as itself.
#include "backoffice/menu/ImportFile.h"
#include "backoffice/menu/SheetText.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {
void check(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void checkNumber(const WrittenNumber& number)
{
    check(number.isNumber() != number.sql.isEmpty());
    if (!number.isNumber()) {
        return;
    }
    const auto again = WrittenNumber::of(number.sql, QLatin1Char('.'));
    check(again.isNumber() && again.sql == number.sql && again.decimals == number.decimals);
    bool isDouble = false;
    const double value = number.sql.toDouble(&isDouble);
    check(isDouble && std::isfinite(value));
}

void read(const QByteArray& bytes, ImportKind kind)
{
    try {
        const ImportFile file = ImportFile::of(bytes, kind);
        const int columns = static_cast<int>(importColumns(kind).size());
        int last = 0;
        for (const ImportLine& line : file.lines) {
            check(line.cells.size() == columns);
            check(line.line > last);
            last = line.line;
            checkNumber(line.number);
        }
    } catch (const ImportError& error) {
        check(!error.sentence().isEmpty());
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    read(bytes, ImportKind::Menu);
    read(bytes, ImportKind::Recipes);
    return 0;
}
