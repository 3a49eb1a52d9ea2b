// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// What pages say of each of several tills.
namespace TillColumn {
/// Whether the tills of \a order were chosen one by one, and are few enough to be told apart.
bool isSideBySide(const ReportOrder& order, const SalesSource& source);

/// "Caisse".
QString caption();
/// "Par caisse".
QString title();

/// Appends the rows of \a part, which are of the till \a name, to \a table, whose first column is
/// the till's and whose others are those of the part.
void append(Table& table, const QString& name, const Table& part);

/// What in \a sales is of the till at the place \a till.
template <class Sales> std::vector<Sales> of(const std::vector<Sales>& sales, std::size_t till)
{
    std::vector<Sales> found;
    for (const Sales& part : sales) {
        if (part.till == static_cast<int>(till)) {
            found.push_back(part);
        }
    }
    return found;
}

/// The tables that \a make makes of each till's name and part of \a sales, as one.
template <class Sales, class Make>
Table joined(const std::vector<Sales>& sales, const SalesSource& source, Make make)
{
    Table table{title(), {}, {}};
    const std::vector<QString> names = source.tills();
    for (std::size_t till = 0; till < names.size(); ++till) {
        append(table, names.at(till), make(of(sales, till)));
    }
    return table;
}

/// Gives \a table to the file that \a report becomes, if \a source names the tills there, and to
/// its reader where the tills of \a order are side by side.
void add(Report& report, Table table, const ReportOrder& order, const SalesSource& source);

/// Says in \a report which tills it is about, and what their tax rates are.
void addHead(Report& report, const ReportOrder& order, SalesSource& source);
} // namespace TillColumn
