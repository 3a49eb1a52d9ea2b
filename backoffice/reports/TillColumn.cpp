// SPDX-License-Identifier: MIT
#include "backoffice/reports/TillColumn.h"

#include <QCoreApplication>
#include <QStringList>

namespace TillColumn {
namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TillColumn)
};

/// Charts have as many colours.
constexpr std::size_t mostSideBySide = 5;

QString inWords(const ReportOrder& order, const std::vector<QString>& names)
{
    const auto count = static_cast<qint64>(names.size());
    if (names.size() == 1) {
        return Text::tr("caisse %1").arg(names.front());
    }
    if (order.tills.empty()) {
        return Text::tr("toutes les caisses (%1)").arg(order.locale.toString(count));
    }
    if (names.size() > mostSideBySide) {
        return Text::tr("%1 caisses").arg(order.locale.toString(count));
    }
    return Text::tr("caisses %1")
        .arg(QStringList(names.begin(), names.end()).join(QStringLiteral(", ")));
}
} // namespace

bool isSideBySide(const ReportOrder& order, const SalesSource& source)
{
    const std::size_t count = source.tills().size();
    return !order.tills.empty() && count > 1 && count <= mostSideBySide;
}

QString caption() { return Text::tr("Caisse"); }
QString title() { return Text::tr("Par caisse"); }

void append(Table& table, const QString& name, const Table& part)
{
    if (table.columns.empty()) {
        table.columns.push_back({caption(), CellKind::Text});
        table.columns.insert(table.columns.end(), part.columns.begin(), part.columns.end());
    }
    for (const std::vector<QVariant>& cells : part.rows) {
        std::vector<QVariant> row{name};
        row.insert(row.end(), cells.begin(), cells.end());
        table.rows.push_back(std::move(row));
    }
}

void add(Report& report, Table table, const ReportOrder& order, const SalesSource& source)
{
    if (isSideBySide(order, source)) {
        report.tables.push_back(table);
    }
    if (source.namesTills()) {
        report.whole = std::move(table);
    }
}

void addHead(Report& report, const ReportOrder& order, SalesSource& source)
{
    if (source.namesTills()) {
        report.subtitle = Text::tr("%1 – %2").arg(report.subtitle, inWords(order, source.tills()));
    }
    const bool hasTax = order.page == Page::Sales || order.page == Page::Closing;
    const std::optional<QString> remark
        = hasTax && !order.taxRate ? source.taxRemark(order.locale) : std::nullopt;
    if (remark) {
        report.notes.insert(report.notes.begin(), *remark);
    }
}
} // namespace TillColumn
