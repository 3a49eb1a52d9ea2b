// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QStringList>
#include <QTableView>

#include <initializer_list>
#include <vector>

/// UTF-8 \a texts as a list of strings, for comparing rows and labels.
inline QStringList cells(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings << QString::fromUtf8(text);
    }
    return strings;
}

/// The column labels of \a view, hidden columns included.
inline QStringList labels(const QTableView& view)
{
    QStringList texts;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        texts << view.model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

/// The widths in pixels of the columns that are seen.
inline std::vector<int> widths(const QTableView& view)
{
    std::vector<int> pixels;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        if (!view.isColumnHidden(column)) {
            pixels.push_back(view.columnWidth(column));
        }
    }
    return pixels;
}

/// Whether \a view looks like every list of the till.
inline bool looksLikeAList(const QTableView& view)
{
    return view.styleSheet()
        == QLatin1String("alternate-background-color: LightBlue;background-color: White")
        && view.alternatingRowColors() && view.editTriggers() == QAbstractItemView::NoEditTriggers
        && view.horizontalHeader()->defaultAlignment() == Qt::AlignLeft;
}
