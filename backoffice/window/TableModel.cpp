// SPDX-License-Identifier: MIT
#include "backoffice/window/TableModel.h"

#include "backoffice/reports/Format.h"

#include <QDate>

#include <cstdlib>

namespace {
bool isNumber(CellKind kind) { return kind >= CellKind::Count; }

/// \a text without accents and case: "Crème" is found by "creme".
QString plain(const QString& text)
{
    const QString parts = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString letters;
    for (const QChar letter : parts) {
        if (!letter.isMark()) {
            letters += letter;
        }
    }
    return letters;
}

/// \a title broken at the blank nearest to its middle, so that a column of short numbers is not as
/// wide as its long title.
QString inTwoLines(const QString& title)
{
    constexpr int longest = 10;
    if (title.size() <= longest) {
        return title;
    }
    int best = -1;
    for (int at = 0; at < title.size(); ++at) {
        const auto distance = [&](int place) { return std::abs(2 * place - title.size()); };
        if (title.at(at) == QLatin1Char(' ') && (best < 0 || distance(at) < distance(best))) {
            best = at;
        }
    }
    return best < 0 ? title : title.left(best) + QLatin1Char('\n') + title.mid(best + 1);
}
} // namespace

TableModel::TableModel(const QLocale& locale, QObject* parent)
    : QAbstractTableModel(parent)
    , locale_(locale)
{ }

void TableModel::setTable(const Table& table)
{
    beginResetModel();
    table_ = table;
    endResetModel();
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    const CellKind kind = table_.columns.at(column).kind;
    switch (role) {
    case Qt::DisplayRole:
        return format(table_.rows.at(row).at(column), kind, locale_);
    case Qt::TextAlignmentRole:
        return static_cast<int>(
            (isNumber(kind) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case valueRole:
        return table_.rows.at(row).at(column);
    case keyRole:
        return key(row);
    default:
        return {};
    }
}

QString TableModel::key(std::size_t row) const
{
    QString key;
    for (std::size_t column = 0; column < table_.columns.size(); ++column) {
        if (!isNumber(table_.columns.at(column).kind)) {
            key += table_.rows.at(row).at(column).toString() + QLatin1Char('\n');
        }
    }
    return key;
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const Column& column = table_.columns.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole) {
        return inTwoLines(column.title);
    }
    if (role == Qt::TextAlignmentRole) {
        return static_cast<int>(
            (isNumber(column.kind) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

TableOrder::TableOrder(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setSortRole(TableModel::valueRole);
}

void TableOrder::search(const QString& text)
{
    searched_ = plain(text.trimmed());
    invalidateFilter();
}

bool TableOrder::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (searched_.isEmpty()) {
        return true;
    }
    const int columns = sourceModel()->columnCount();
    for (int column = 0; column < columns; ++column) {
        if (plain(sourceModel()->index(row, column, parent).data().toString())
                .contains(searched_)) {
            return true;
        }
    }
    return false;
}

bool TableOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QVariant one = left.data(TableModel::valueRole);
    const QVariant other = right.data(TableModel::valueRole);
    if (!one.isValid() || !other.isValid()) {
        return !one.isValid() && other.isValid();
    }
    if (one.userType() == QMetaType::QString) {
        return QString::localeAwareCompare(one.toString(), other.toString()) < 0;
    }
    return QSortFilterProxyModel::lessThan(left, right);
}
