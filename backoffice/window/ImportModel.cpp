// SPDX-License-Identifier: MIT
#include "backoffice/window/ImportModel.h"

#include <QBrush>
#include <QColor>
#include <QFont>

namespace {
/// Light colours that the colour-blind tell apart, behind black letters.
QVariant background(const PlannedLine& line)
{
    switch (line.action) {
    case ImportAction::New:
        return QBrush(line.isWarning ? QColor(255, 214, 153) : QColor(207, 228, 247));
    case ImportAction::Changed:
        return QBrush(QColor(255, 242, 178));
    case ImportAction::Refused:
        return QBrush(QColor(240, 200, 210));
    case ImportAction::Unchanged:
        break;
    }
    return {};
}
} // namespace

ImportModel::ImportModel(ImportKind kind, QObject* parent)
    : QAbstractTableModel(parent)
    , columns_(importColumns(kind))
{
    plan_.kind = kind;
}

void ImportModel::setPlan(ImportPlan plan)
{
    beginResetModel();
    plan_ = std::move(plan);
    endResetModel();
}

int ImportModel::remarkColumn() const { return FirstCell + static_cast<int>(columns_.size()); }

int ImportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(plan_.lines.size());
}

int ImportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : remarkColumn() + 1;
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const PlannedLine& line = plan_.lines.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(line, index.column());
    case actionRole:
        return static_cast<int>(line.action);
    case Qt::TextAlignmentRole:
        return static_cast<int>(
            Qt::AlignVCenter | (isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::BackgroundRole:
        return background(line);
    case Qt::ForegroundRole:
        return background(line).isValid() ? QVariant(QBrush(Qt::black)) : QVariant();
    case Qt::FontRole:
        if (index.column() == Action && line.action == ImportAction::Refused) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

bool ImportModel::isNumber(int column) const
{
    return column == Line
        || (column >= FirstCell && column < remarkColumn()
            && columns_.at(static_cast<std::size_t>(column - FirstCell)).isNumber);
}

QString ImportModel::text(const PlannedLine& line, int column) const
{
    if (column == Line) {
        return QString::number(line.line.line);
    }
    if (column == Action) {
        return actionText(line);
    }
    // A line break in a name would hide the rest of it.
    return column == remarkColumn() ? line.remark
                                    : line.line.cells.value(column - FirstCell).simplified();
}

QString ImportModel::actionText(const PlannedLine& line) const
{
    switch (line.action) {
    case ImportAction::New:
        return line.isWarning ? tr("+ Nouveau (attention)") : tr("+ Nouveau");
    case ImportAction::Changed:
        return plan_.kind == ImportKind::Menu ? tr("≠ Nouveau prix") : tr("≠ Changé");
    case ImportAction::Refused:
        return tr("✕ Refusé");
    case ImportAction::Unchanged:
        break;
    }
    return tr("= Inchangé");
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    if (section == Line) {
        return tr("Ligne");
    }
    if (section == Action) {
        return tr("Que devient-elle ?");
    }
    return section == remarkColumn()
        ? tr("Remarque")
        : columns_.at(static_cast<std::size_t>(section - FirstCell)).title;
}

void ImportRows::showRefusedOnly(bool isOnly)
{
    isRefusedOnly_ = isOnly;
    invalidateFilter();
}

bool ImportRows::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    return !isRefusedOnly_
        || sourceModel()->index(row, 0, parent).data(ImportModel::actionRole).toInt()
        == static_cast<int>(ImportAction::Refused);
}
