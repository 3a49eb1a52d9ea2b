// SPDX-License-Identifier: MIT
#include "backoffice/menu/CsvRows.h"

#include "backoffice/menu/SheetText.h"
#include "base/Handle.h"

#include <QCoreApplication>

#include <algorithm>
#include <new>

#include <csv.h>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(CsvRows)
};

constexpr int mostFields = 256;

/// What the parser's callbacks fill.
struct Collected
{
    std::vector<CsvRow> rows;
    CsvRow row;
    /// Whether a record was begun on an earlier line.
    bool isWithin = false;
    bool isTooWide = false;
};

void addField(void* field, std::size_t size, void* collected)
{
    auto& into = *static_cast<Collected*>(collected);
    into.isTooWide = into.isTooWide || into.row.fields.size() == mostFields;
    if (!into.isTooWide) {
        into.row.fields
            += QString::fromUtf8(static_cast<const char*>(field), static_cast<int>(size));
    }
}

void endRow(int /*terminator*/, void* collected)
{
    auto& into = *static_cast<Collected*>(collected);
    const auto isEmpty = [](const QString& field) { return field.trimmed().isEmpty(); };
    if (!std::all_of(into.row.fields.cbegin(), into.row.fields.cend(), isEmpty)) {
        into.rows.push_back(into.row);
    }
    into.row.fields.clear();
    into.isWithin = false;
}

/// Where the line of \a text that begins at \a from ends, its line end included.
int endOfLine(const QByteArray& text, int from)
{
    const auto isLineEnd = [](char letter) { return letter == '\n' || letter == '\r'; };
    const char* const end = text.constData() + text.size();
    const char* found = std::find_if(text.constData() + from, end, isLineEnd);
    if (found != end) {
        found += found[0] == '\r' && found + 1 != end && found[1] == '\n' ? 2 : 1;
    }
    return static_cast<int>(found - text.constData());
}
} // namespace

std::vector<CsvRow> CsvRows::of(const QByteArray& text, char separator, std::size_t most)
{
    csv_parser parser{};
    if (csv_init(&parser, 0) != 0) {
        throw std::bad_alloc();
    }
    const Handle<csv_parser, csv_free> end(&parser);
    csv_set_delim(&parser, static_cast<unsigned char>(separator));
    Collected collected;
    const auto parse = [&](const char* bytes, int size) {
        const auto length = static_cast<std::size_t>(size);
        if (csv_parse(&parser, bytes, length, addField, endRow, &collected) != length) {
            throw std::bad_alloc();
        }
        if (collected.isTooWide) {
            throw ImportError(
                Sentences::tr("Ligne %1 : trop de colonnes.").arg(collected.row.line));
        }
    };
    int line = 0;
    for (int from = 0; from < text.size() && collected.rows.size() < most;) {
        ++line;
        const int next = endOfLine(text, from);
        if (!collected.isWithin) {
            collected.row.line = line;
        }
        const bool isBlank = !collected.isWithin && text.mid(from, next - from).trimmed().isEmpty();
        collected.isWithin = !isBlank;
        parse(text.constData() + from, next - from);
        from = next;
    }
    if (collected.rows.size() >= most) {
        return collected.rows;
    }
    // Ends a last line that has no end of its own, but not what is between quotes.
    parse("\n", 1);
    if (collected.isWithin) {
        throw ImportError(Sentences::tr("Le guillemet de la ligne %1 n'est jamais fermé.")
                              .arg(collected.row.line));
    }
    return collected.rows;
}
