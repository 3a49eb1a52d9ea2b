// SPDX-License-Identifier: MIT
#include "backoffice/menu/ImportFile.h"

#include "backoffice/menu/SheetText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(ImportFile)
};

int numberColumn(const std::vector<ImportColumn>& columns)
{
    const auto isNumber = [](const ImportColumn& column) { return column.isNumber; };
    return static_cast<int>(
        std::find_if(columns.begin(), columns.end(), isNumber) - columns.begin());
}

ImportLine lineOf(const CsvRow& row, const SheetLayout& layout)
{
    ImportLine line;
    line.line = row.line;
    for (const int place : layout.places) {
        line.cells += SheetText::withoutGuard(row.fields.value(place));
    }
    const auto isUsed = [](const QString& field) { return !field.trimmed().isEmpty(); };
    const int known = std::min(layout.width, static_cast<int>(row.fields.size()));
    line.isTooWide = std::any_of(row.fields.cbegin() + known, row.fields.cend(), isUsed);
    return line;
}

/// The lines below the heading, numbers not yet read.
std::vector<ImportLine> linesOf(const std::vector<CsvRow>& rows, const SheetLayout& layout)
{
    std::vector<ImportLine> lines;
    for (std::size_t row = layout.hasHeading ? 1 : 0; row < rows.size(); ++row) {
        lines.push_back(lineOf(rows[row], layout));
    }
    return lines;
}

/// How well \a separator cuts the beginning of \a text: the lines that have a number where one is
/// expected, and a heading.
std::size_t fit(const QByteArray& text, char separator, ImportKind kind)
{
    constexpr std::size_t looked = 100;
    try {
        const auto rows = CsvRows::of(text, separator, looked);
        const SheetLayout layout = SheetLayout::of(rows.at(0), kind);
        const auto lines = linesOf(rows, layout);
        const int number = numberColumn(importColumns(kind));
        const auto fits = std::count_if(lines.begin(), lines.end(), [&](const ImportLine& line) {
            return !line.isTooWide
                && WrittenNumber::of(line.cells.at(number)).kind != WrittenNumber::Kind::None;
        });
        return static_cast<std::size_t>(fits) + (layout.hasHeading ? 1 : 0);
    } catch (const std::exception&) {
        return 0;
    }
}

/// Whether \a separator is in the first record of \a text at all.
bool parts(const QByteArray& text, char separator)
{
    try {
        return CsvRows::of(text, separator, 1).at(0).fields.size() > 1;
    } catch (const std::exception&) {
        return false;
    }
}

/// The separator of \a text. Where several fit, a comma is the decimal mark and not the separator.
char separatorOf(const QByteArray& text, ImportKind kind)
{
    constexpr std::array<char, 3> separators{';', '\t', ','};
    const char* best = nullptr;
    std::size_t mostFitting = 0;
    for (const char& separator : separators) {
        const std::size_t fitting = fit(text, separator, kind);
        if (fitting > mostFitting) {
            mostFitting = fitting;
            best = &separator;
        }
    }
    if (best != nullptr) {
        return *best;
    }
    const auto* const found = std::find_if(separators.begin(), separators.end(),
        [&](char separator) { return parts(text, separator); });
    return found == separators.end() ? separators.front() : *found;
}

/// Takes off the line by which spreadsheets agree on a separator, which comes first.
QByteArray withoutSeparatorLine(const QByteArray& text)
{
    constexpr int length = 5;
    const bool hasLine = text.startsWith("sep=") && text.size() > length
        && (text.at(length) == '\n' || text.at(length) == '\r');
    // The line stays, as a blank one, so that the lines keep their numbers.
    return hasLine ? text.mid(length) : text;
}
} // namespace

ImportFile ImportFile::of(const QByteArray& bytes, ImportKind kind)
{
    const QByteArray text = withoutSeparatorLine(SheetText::decoded(bytes).toUtf8());
    const auto rows = CsvRows::of(text, separatorOf(text, kind));
    if (rows.empty()) {
        throw ImportError(Sentences::tr("Le fichier est vide."));
    }
    ImportFile file;
    file.kind = kind;
    file.lines = linesOf(rows, SheetLayout::of(rows.front(), kind));
    const int number = numberColumn(importColumns(kind));
    std::vector<QString> numbers;
    for (const ImportLine& line : file.lines) {
        numbers.push_back(line.cells.at(number));
    }
    const QChar mark = WrittenNumber::commonMark(numbers);
    for (ImportLine& line : file.lines) {
        line.number = WrittenNumber::of(line.cells.at(number), mark);
    }
    return file;
}
